#include "ContentFilter.h"

#include "KestrinSettings.h"
#include "UObject/UnrealType.h"

namespace
{
bool Passes(bool bVisible, const UClass* Owner)
{
	switch (GetDefault<UKestrinSettings>()->BlueprintContentFilter)
	{
	case EKestrinBlueprintContentFilter::UseAllContent: return true;
	case EKestrinBlueprintContentFilter::UseOnlyBlueprintVisibleContent: return bVisible;
	case EKestrinBlueprintContentFilter::UseOnlyBlueprintClassContent:
		return bVisible && Owner && Owner->HasAnyClassFlags(CLASS_CompiledFromBlueprint);
	default: return false;
	}
}
}

bool PassesContentFilter(const FProperty& Property)
{
	return Passes(Property.HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly), Property.GetOwnerClass());
}

bool PassesContentFilter(const UFunction& Function)
{
	return Passes(
		Function.HasAnyFunctionFlags(FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_BlueprintPure), Function.GetOwnerClass());
}
