#include "LinkerSave.h"

#include "UObject/UObjectGlobals.h"

namespace
{
constexpr EObjectFlags SavedFlags =
	RF_Public | RF_Standalone | RF_Transactional | RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject;

bool IsTransient(const UObject* Object)
{
	while (Object && IsValid(Object) && !Object->HasAnyFlags(RF_Transient))
	{
		Object = Object->GetOuter();
	}
	return Object != nullptr;
}
}

int32 FLinkerSave::GetNumber(UObject* Object)
{
	if (!Object)
	{
		return 0;
	}
	if (const int32* const Known = Numbers.Find(Object))
	{
		return *Known;
	}
	if (IsTransient(Object))
	{
		return Numbers.Add(Object, 0);
	}
	return Object->IsIn(Package) ? AddExport(Object) : AddImport(Object);
}

int32 FLinkerSave::AddExport(UObject* Object)
{
	const int32 Outer = Object->GetOuter() == Package ? 0 : GetNumber(Object->GetOuter());
	const int32 Index = File.Exports.AddDefaulted();
	Objects.Add(Object);
	Numbers.Add(Object, Index + 1);

	FObjectExport Export;
	Export.Outer = Outer;
	Export.Name = Object->GetFName();
	Export.Flags = Object->GetFlags() & SavedFlags;
	Export.Class = GetNumber(Object->GetClass());
	const UStruct* const Type = Cast<UStruct>(Object);
	Export.Super = Type ? GetNumber(Type->GetSuperStruct()) : 0;
	UObject* const Archetype = Object->GetArchetype();
	const bool bMadeByCpp = Archetype->HasAnyFlags(RF_ClassDefaultObject) && Archetype->GetClass()->HasAnyFlags(RF_MarkAsNative);
	Export.Archetype = bMadeByCpp ? 0 : GetNumber(Archetype);
	File.Exports[Index] = Export;
	AddAsset(Object);
	return Index + 1;
}

int32 FLinkerSave::AddImport(const UObject* Object)
{
	const int32 Index = File.Imports.Add({ Object->GetClass()->GetPathName(), Object->GetPathName() });
	return Numbers.Add(Object, -Index - 1);
}

void FLinkerSave::AddAsset(const UObject* Object)
{
	if (Object->IsAsset())
	{
		const FAssetData Data(Object);
		TMap<FName, FString> Tags;
		Data.TagsAndValues.ForEach([&Tags](const TPair<FName, FString>& Tag) { Tags.Add(Tag.Key, Tag.Value); });
		File.Assets.Add({ Data.AssetName, Data.AssetClassPath, MoveTemp(Tags) });
	}
}

void FLinkerSave::WriteExports()
{
	// Writing one object finds further ones.
	for (int32 Index = 0; Index < Objects.Num(); ++Index)
	{
		const int64 Begin = Tell();
		Objects[Index]->Serialize(*this);
		File.Exports[Index].Offset = Begin;
		File.Exports[Index].Size = Tell() - Begin;
		if (const UClass* const Class = Cast<UClass>(Objects[Index]))
		{
			GetNumber(Class->GetDefaultObject(false));
		}
	}
}

FArchive& FLinkerSave::operator<<(FName& Value)
{
	const uint32 Text = Value.GetDisplayIndex();
	const int32* const Known = NameNumbers.Find(Text);
	int32 Index = Known ? *Known : NameNumbers.Add(Text, File.Names.Add(Value.GetPlainNameString()));
	int32 Number = Value.GetNumber();
	return *this << Index << Number;
}

FArchive& FLinkerSave::operator<<(UObject*& Value)
{
	int32 Number = GetNumber(Value);
	return *this << Number;
}
