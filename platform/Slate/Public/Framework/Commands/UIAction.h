#pragma once

#include "Delegates/Delegate.h"

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);
