#pragma once

#include "Policies/JsonPrintPolicy.h"
