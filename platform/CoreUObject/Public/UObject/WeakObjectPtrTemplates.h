#pragma once

// The engine keeps the template apart from FWeakObjectPtr.
#include "UObject/WeakObjectPtr.h"
