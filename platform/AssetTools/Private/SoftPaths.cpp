#include "SoftPaths.h"

#include "UObject/NoExportTypes.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

namespace
{
class FSoftPathReplacer
{
public:
	FSoftPathReplacer(FName InOldPackage, FName InNewPackage, const TMap<FName, FName>& InNewNames)
		: OldPackage(InOldPackage)
		, NewPackage(InNewPackage)
		, NewNames(InNewNames)
	{
	}

	/** @return whether there was something to replace */
	bool ReplaceAll(const UStruct* Type, void* Container) const
	{
		bool bReplaced = false;
		for (TFieldIterator<FProperty> Property(Type); Property; ++Property)
		{
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				bReplaced |= Replace(*Property, Property->ContainerPtrToValuePtr<void>(Container, Index));
			}
		}
		return bReplaced;
	}

private:
	bool Replace(const FProperty* Property, void* Value) const
	{
		if (Property->IsA<FSoftObjectProperty>())
		{
			auto* const Pointer = static_cast<FSoftObjectPtr*>(Value);
			FSoftObjectPath Path = Pointer->ToSoftObjectPath();
			const bool bReplaced = Replace(Path);
			*Pointer = bReplaced ? FSoftObjectPtr(Path) : *Pointer;
			return bReplaced;
		}
		if (const auto* const Struct = CastField<FStructProperty>(Property))
		{
			const bool bPath = Struct->Struct->IsChildOf(TBaseStructure<FSoftObjectPath>::Get());
			return bPath ? Replace(*static_cast<FSoftObjectPath*>(Value)) : ReplaceAll(Struct->Struct, Value);
		}
		return ReplaceElements(Property, Value);
	}

	bool ReplaceElements(const FProperty* Property, void* Value) const
	{
		bool bReplaced = false;
		if (const auto* const Array = CastField<FArrayProperty>(Property))
		{
			const FScriptArrayHelper Helper(Array, Value);
			for (int32 Index = 0; Index < Helper.Num(); ++Index)
			{
				bReplaced |= Replace(Array->Inner, Helper.GetElementPtr(Index));
			}
		}
		else if (const auto* const Set = CastField<FSetProperty>(Property))
		{
			FScriptSetHelper Helper(Set, Value);
			bReplaced = ReplaceKeys(Helper, Set->ElementProp, nullptr);
		}
		else if (const auto* const Map = CastField<FMapProperty>(Property))
		{
			FScriptMapHelper Helper(Map, Value);
			bReplaced = ReplaceKeys(Helper, Map->KeyProp, Map->ValueProp);
		}
		return bReplaced;
	}

	bool ReplaceKeys(FScriptHashedHelper& Helper, const FProperty* Key, const FProperty* Value) const
	{
		bool bReplaced = false;
		for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
		{
			if (Helper.IsValidIndex(Index))
			{
				bReplaced |= Replace(Key, Helper.GetKeyPtr(Index));
				bReplaced |= Value && Replace(Value, Helper.GetValuePtr(Index));
			}
		}
		Helper.RehashIfNeeded();
		return bReplaced;
	}

	bool Replace(FSoftObjectPath& Path) const
	{
		const FName* const NewName = Path.GetLongPackageFName() == OldPackage ? NewNames.Find(Path.GetAssetFName()) : nullptr;
		if (NewName)
		{
			Path = FSoftObjectPath(FTopLevelAssetPath(NewPackage, *NewName), Path.GetSubPathString());
		}
		return NewName != nullptr;
	}

	const FName OldPackage;
	const FName NewPackage;
	const TMap<FName, FName>& NewNames;
};
}

TArray<UPackage*> ReplaceSoftPaths(FName OldPackage, FName NewPackage, const TMap<FName, FName>& NewNames)
{
	const FSoftPathReplacer Replacer(OldPackage, NewPackage, NewNames);
	TArray<UPackage*> Changed;
	for (TObjectIterator<UObject> Object(RF_NoFlags); Object; ++Object)
	{
		if (Replacer.ReplaceAll(Object->GetClass(), *Object) && Object->GetPackage())
		{
			Object->MarkPackageDirty();
			Changed.AddUnique(Object->GetPackage());
		}
	}
	return Changed;
}
