#pragma once

#include "CoreTypes.h"

class FString;
class FName;
class FText;
template <typename T>
class TArray;
template <typename T>
class TSet;
template <typename K, typename V>
class TMap;
