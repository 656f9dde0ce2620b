#include "LinkerLoad.h"

#include "Misc/PackageName.h"
#include "PackageLoader.h"
#include "UObject/UObjectGlobals.h"

namespace
{
constexpr int32 MaxDepth = 400;
/** Larger objects are a sign of a damaged file. */
constexpr int32 MaxObjectSize = 1 << 24;
constexpr EObjectFlags LoadedFlags =
	RF_Public | RF_Standalone | RF_Transactional | RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject;
constexpr EObjectFlags InLoading = RF_NeedLoad | RF_NeedPostLoad | RF_WasLoaded;
}

/** Reads one object's values. */
class FLinkerLoad::FValueReader final : public FMemoryReader
{
public:
	FValueReader(FLinkerLoad& InLinker, const FObjectExport& Export, bool bType)
		: FMemoryReader(InLinker.File.ValueBytes + Export.Offset, Export.Size)
		, Linker(InLinker)
		, Needed(bType ? UScriptStruct::StaticClass() : UStruct::StaticClass())
	{
		bPersistent = true;
	}

	using FMemoryReader::operator<<;
	FArchive& operator<<(FName& Value) override
	{
		int32 Index = 0;
		int32 Number = 0;
		*this << Index << Number;
		if (!Linker.Names.IsValidIndex(Index) || Number < 0)
		{
			SetError();
			Value = FName();
			return *this;
		}
		Value = FName(Linker.Names[Index], Number);
		return *this;
	}
	FArchive& operator<<(UObject*& Value) override
	{
		int32 Number = 0;
		*this << Number;
		if (Number > Linker.Exports.Num() || Number < -Linker.Imports.Num())
		{
			SetError();
			Number = 0;
		}
		Value = Linker.Resolve(Number);
		if (Value && Value->HasAnyFlags(RF_NeedLoad) && Value->IsA(Needed))
		{
			Value = Linker.ResolveRead(Number);
		}
		return *this;
	}

private:
	FLinkerLoad& Linker;
	/** What must be complete when it is referred to: a type has values of structs, whose size it must know; a value may be checked
	 * against the classes that it may be of. Classes refer to each other in circles. */
	const UClass* const Needed;
};

bool FLinkerLoad::Open(TArray<uint8> InBytes)
{
	Bytes = MoveTemp(InBytes);
	const FString Fault = File.Unpack(Bytes);
	if (!Fault.IsEmpty())
	{
		Fail(Fault);
		return false;
	}
	Names.Reserve(File.Names.Num());
	for (const FString& Text : File.Names)
	{
		// The number is not in the text; one that ends like a number stays as it is.
		const bool bLikeNumber = !Text.IsEmpty() && FChar::IsDigit(Text[Text.Len() - 1]);
		Names.Add(bLikeNumber ? FName(FName(Text + TEXT("_0")), 0) : FName(Text));
	}
	Exports.SetNum(File.Exports.Num());
	Imports.SetNum(File.Imports.Num());
	return true;
}

void FLinkerLoad::LoadAll()
{
	for (int32 Index = 0; Index < Exports.Num() && !bFailed; ++Index)
	{
		const UObject* const Object = Make(Index);
		// What others are made from comes first: they could not be referred to while they wait for it.
		if (Object && (Object->HasAnyFlags(RF_ClassDefaultObject) || Object->IsA(UField::StaticClass())))
		{
			Read(Index);
		}
	}
	for (int32 Index = 0; Index < Exports.Num() && !bFailed; ++Index)
	{
		Read(Index);
	}
}

UObject* FLinkerLoad::FindExport(const FString& Path, bool& bOutInMaking)
{
	const FName Name(FPackageName::ObjectPathToObjectName(Path));
	for (int32 Index = 0; Index < Exports.Num() && !bFailed; ++Index)
	{
		if (File.Exports[Index].Name == Name)
		{
			UObject* const Object = Make(Index);
			if (Object && Object->GetPathName() == Path)
			{
				return Object;
			}
			bOutInMaking |= Exports[Index].Step == EStep::Making;
		}
	}
	return nullptr;
}

int32 FLinkerLoad::FindIndex(const UObject* Object) const
{
	return Exports.IndexOfByPredicate([Object](const FLoadedExport& Export) { return Export.Object == Object; });
}

void FLinkerLoad::ReadInner(int32 Outermost)
{
	if (Exports[Outermost].bInnerRead)
	{
		return;
	}
	Exports[Outermost].bInnerRead = true;
	TArray<bool> Inside;
	Inside.SetNum(Exports.Num());
	Inside[Outermost] = true;
	for (int32 Index = Outermost + 1; Index < Exports.Num(); ++Index)
	{
		const int32 Outer = File.Exports[Index].Outer;
		Inside[Index] = Outer > 0 && Inside[Outer - 1];
		if (Inside[Index] && Make(Index))
		{
			Read(Index);
		}
	}
}

TArray<UObject*> FLinkerLoad::GetObjects() const
{
	TArray<UObject*> Objects;
	Objects.Reserve(Exports.Num());
	for (const FLoadedExport& Export : Exports)
	{
		Objects.Add(Export.Object);
	}
	return Objects;
}

void FLinkerLoad::Fail(const FString& Reason)
{
	if (!bFailed)
	{
		bFailed = true;
		Warn(TEXT("the package is refused: ") + Reason);
	}
}

void FLinkerLoad::Warn(const FString& Text) const
{
	if (!Loader.IsQuiet())
	{
		UE_LOG(LogLinker, Warning, TEXT("%s: %s"), *Filename, *Text);
	}
}

UObject* FLinkerLoad::Make(int32 Index)
{
	FLoadedExport& Export = Exports[Index];
	if (Export.Step != EStep::Untouched || bFailed)
	{
		return Export.Object;
	}
	const TGuardValue<int32> Deeper(Loader.Depth, Loader.Depth + 1);
	if (Loader.Depth > MaxDepth)
	{
		Fail(TEXT("its objects depend on each other too deeply"));
		return nullptr;
	}
	Export.Step = EStep::Making;
	Export.Object = MakeObject(File.Exports[Index]);
	Export.Step = Export.Object ? EStep::Made : EStep::Read;
	return Export.Object;
}

UObject* FLinkerLoad::MakeObject(const FObjectExport& Export)
{
	UObject* const Outer = Export.Outer ? Make(Export.Outer - 1) : Package;
	UObject* const ClassObject = ResolveRead(Export.Class);
	UClass* const Class = Cast<UClass>(ClassObject);
	if (!Outer || !Class)
	{
		if (Outer)
		{
			Warn(FString::Printf(TEXT("%s is left out: its class is missing"), *Export.Name.ToString()));
		}
		return nullptr;
	}
	constexpr EClassFlags Unfit = CLASS_Abstract;
	const bool bDefaultObject = (Export.Flags & RF_ClassDefaultObject) != RF_NoFlags;
	if (Class->HasAnyFlags(RF_NeedLoad) || Class->IsChildOf(UPackage::StaticClass()) || (Class->HasAnyClassFlags(Unfit) && !bDefaultObject))
	{
		Warn(FString::Printf(TEXT("%s is left out: no object can be made of %s"), *Export.Name.ToString(), *Class->GetPathName()));
		return nullptr;
	}
	UObject* Archetype = ResolveArchetype(Export.Archetype);
	if (bFailed)
	{
		return nullptr;
	}
	if (bDefaultObject)
	{
		return TakeDefaultObject(Export, Class, Outer);
	}
	Archetype = Archetype && Class->IsChildOf(Archetype->GetClass()) ? Archetype : nullptr;
	return MakeNamed(Export, Class, Outer, Archetype);
}

UObject* FLinkerLoad::TakeDefaultObject(const FObjectExport& Export, UClass* Class, const UObject* Outer)
{
	if (Class->GetOuter() != Outer || Class->GetDefaultObjectName() != Export.Name || Class->HasAnyFlags(RF_MarkAsNative))
	{
		Fail(TEXT("a default object is not its class's"));
		return nullptr;
	}
	UObject* const Object = Class->GetDefaultObject();
	Object->SetFlags(InLoading | (Export.Flags & LoadedFlags));
	return Object;
}

UObject* FLinkerLoad::MakeNamed(const FObjectExport& Export, UClass* Class, UObject* Outer, UObject* Archetype)
{
	const EObjectFlags Flags = InLoading | (Export.Flags & LoadedFlags & ~RF_ClassDefaultObject);
	if (Outer == Package && Export.Name.ToString().StartsWith(TEXT("Default__")))
	{
		Fail(TEXT("an object that is no class's default object is named like one"));
		return nullptr;
	}
	UObject* const Found = StaticFindObjectFast(nullptr, Outer, Export.Name);
	if (!Found)
	{
		return StaticConstructObject(Class, Outer, Export.Name, Flags, Archetype);
	}
	if (Found->HasAnyFlags(RF_NeedLoad | RF_ClassDefaultObject | RF_MarkAsNative))
	{
		Fail(FString::Printf(TEXT("it has two objects named %s"), *Export.Name.ToString()));
		return nullptr;
	}
	// The constructor of what lies around it has made it.
	if (Found->GetClass() == Class)
	{
		Found->SetFlags(Flags);
		return Found;
	}
	Found->MarkAsGarbage();
	return StaticConstructObject(Class, Outer, Export.Name, Flags, Archetype);
}

void FLinkerLoad::Read(int32 Index)
{
	FLoadedExport& Export = Exports[Index];
	if (Export.Step != EStep::Made || bFailed)
	{
		return;
	}
	const TGuardValue<int32> Deeper(Loader.Depth, Loader.Depth + 1);
	if (Loader.Depth > MaxDepth)
	{
		Fail(TEXT("its objects depend on each other too deeply"));
		return;
	}
	Export.Step = EStep::Reading;
	UStruct* const Type = Cast<UStruct>(Export.Object);
	if (Type && !PrepareType(Type, File.Exports[Index]))
	{
		return;
	}
	FValueReader Reader(*this, File.Exports[Index], Type != nullptr);
	Export.Object->Serialize(Reader);
	if (Reader.IsError() || Reader.Tell() != Reader.TotalSize())
	{
		Fail(FString::Printf(TEXT("the values of %s make no sense"), *Export.Object->GetName()));
		return;
	}
	if (Type)
	{
		CheckType(Type);
	}
	Export.Object->ClearFlags(RF_NeedLoad);
	Export.Step = EStep::Read;
}

bool FLinkerLoad::PrepareType(UStruct* Type, const FObjectExport& Export)
{
	UClass* const Class = Cast<UClass>(Type);
	UStruct* Super = Cast<UStruct>(ResolveRead(Export.Super));
	if (bFailed)
	{
		return false;
	}
	if (Class && !Super)
	{
		// The class lives on, with what it has itself.
		Warn(FString::Printf(TEXT("the parent class of %s is missing"), *Type->GetName()));
		Super = UObject::StaticClass();
	}
	if (Super && Super->HasAnyFlags(RF_NeedLoad))
	{
		Fail(FString::Printf(
			TEXT("%s derives from %s, which derives from it or could not be loaded"), *Type->GetName(), *Super->GetPathName()));
		return false;
	}
	const bool bSameKind = !Super ||
		(Super->IsA(UClass::StaticClass()) == (Class != nullptr) &&
			Super->IsA(UFunction::StaticClass()) == Type->IsA(UFunction::StaticClass()));
	// Reflection and packages consist of C++ classes alone.
	const bool bOfCpp = Class && (Super->IsChildOf(UField::StaticClass()) || Super->IsChildOf(UPackage::StaticClass()));
	if (!bSameKind || bOfCpp)
	{
		Fail(FString::Printf(TEXT("%s can't derive from %s"), *Type->GetName(), *Super->GetPathName()));
		return false;
	}
	Type->SetSuperStruct(Super);
	return true;
}

void FLinkerLoad::CheckType(UStruct* Type)
{
	const UStruct* const Super = Type->GetSuperStruct();
	const int32 Least = Super ? Super->GetPropertiesSize() : 0;
	if (Type->GetPropertiesSize() < Least || Type->GetPropertiesSize() > MaxObjectSize)
	{
		Fail(FString::Printf(TEXT("%s has no size that a type can have"), *Type->GetName()));
	}
	if (UClass* const Class = Cast<UClass>(Type))
	{
		Class->ClassFlags &= ~(CLASS_Native | CLASS_Intrinsic);
	}
}

UObject* FLinkerLoad::Resolve(int32 Number)
{
	if (Number >= 0)
	{
		return Number > 0 ? Make(Number - 1) : nullptr;
	}
	const int32 Index = -Number - 1;
	if (!Imports[Index].bTried)
	{
		ResolveImport(Index);
	}
	return Imports[Index].Object;
}

void FLinkerLoad::ResolveImport(int32 Index)
{
	const FObjectImport& Import = File.Imports[Index];
	bool bInMaking = false;
	UObject* const Object = Loader.FindOrMake(Import.Path, bInMaking);
	const UClass* const Class = FindObject<UClass>(nullptr, *Import.Class);
	const bool bFits = Object && (!Class || Object->IsA(Class));
	Imports[Index].Object = bFits ? Object : nullptr;
	Imports[Index].bTried = !bInMaking;
	if (!bFits && !bInMaking)
	{
		Warn(FString::Printf(TEXT("%s '%s' is %s"), *Import.Class, *Import.Path, Object ? TEXT("of another class") : TEXT("missing")));
	}
}

UObject* FLinkerLoad::ResolveRead(int32 Number)
{
	UObject* const Object = Resolve(Number);
	if (!Object || !Object->HasAnyFlags(RF_NeedLoad))
	{
		return Object;
	}
	if (const FPlace Place = FindPlace(Number, Object); Place.Linker)
	{
		Place.Linker->Read(Place.Index);
	}
	if (Object->HasAnyFlags(RF_NeedLoad) && Object->IsA(UScriptStruct::StaticClass()))
	{
		Fail(FString::Printf(TEXT("%s contains itself"), *Object->GetName()));
		return nullptr;
	}
	return Object;
}

UObject* FLinkerLoad::ResolveArchetype(int32 Number)
{
	UObject* const Object = ResolveRead(Number);
	bool* const bKnown = Number < 0 ? &Imports[-Number - 1].bInnerRead : nullptr;
	if (!Object || (bKnown && *bKnown))
	{
		return Object;
	}
	if (bKnown)
	{
		*bKnown = true;
	}
	if (const FPlace Place = FindPlace(Number, Object); Place.Linker)
	{
		Place.Linker->ReadInner(Place.Index);
	}
	return Object;
}

FLinkerLoad::FPlace FLinkerLoad::FindPlace(int32 Number, const UObject* Object)
{
	if (Number > 0)
	{
		return { this, Number - 1 };
	}
	FLinkerLoad* const Other = Loader.Find(Object->GetPackage());
	const int32 Index = Other ? Other->FindIndex(Object) : INDEX_NONE;
	return { Index == INDEX_NONE ? nullptr : Other, Index };
}
