#include "UObject/Property.h"

void FProperty::VisitReferences(const void*, TFunctionRef<void(UObject*)>) const {}
