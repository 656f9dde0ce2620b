#include "UObject/Interface.h"

#include "UObject/GeneratedCode.h"
#include "UObject/ScriptInterface.h"
#include "UObject/UObjectGlobals.h"

DLLEXPORT UClass* Z_Construct_UClass_UInterface()
{
	static constexpr UECodeGen::FClassInfo Info{ .Type = { .Package = "/Script/CoreUObject",
													 .Name = "Interface",
													 .Size = sizeof(UInterface),
													 .Alignment = alignof(UInterface),
													 .Super = &UObject::StaticClass },
		.Flags = CLASS_Abstract | CLASS_Interface,
		.Constructor = [](void* Memory, const FObjectInitializer&) { new (Memory) UInterface(); } };
	static UClass* Made = nullptr;
	return UECodeGen::Construct(Made, Info);
}

UClass* UInterface::StaticClass()
{
	return Z_Construct_UClass_UInterface();
}

bool FScriptInterface::Set(UObject* InObject, const UClass* InterfaceClass)
{
	if (InObject && !InObject->GetClass()->ImplementsInterface(InterfaceClass))
	{
		return false;
	}
	Object = InObject;
	Interface = InObject ? InObject->GetNativeInterfaceAddress(InterfaceClass) : nullptr;
	return true;
}

void* UObject::GetNativeInterfaceAddress(const UClass* InterfaceClass)
{
	for (const UClass* Class = GetClass(); Class; Class = Class->GetSuperClass())
	{
		for (const FImplementedInterface& Each : Class->Interfaces)
		{
			if (!Each.bImplementedByK2 && Each.Class->IsChildOf(InterfaceClass))
			{
				return reinterpret_cast<uint8*>(this) + Each.PointerOffset;
			}
		}
	}
	return nullptr;
}

UFunction* UObject::FindFunctionChecked(FName FunctionName) const
{
	UFunction* const Function = FindFunction(FunctionName);
	checkf(Function, TEXT("%s has no function %s"), *GetFullName(), *FunctionName.ToString());
	return Function;
}
