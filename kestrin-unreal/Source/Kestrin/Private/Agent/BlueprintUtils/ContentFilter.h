#pragma once

class FProperty;
class UFunction;

// Whether the user wants the assistant to see a part of a class, by the setting BlueprintContentFilter.
bool PassesContentFilter(const FProperty& Property);
bool PassesContentFilter(const UFunction& Function);
