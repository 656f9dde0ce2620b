#include "ClassMatch.h"

#include "ClassBuilder.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Serialization/ObjectReader.h"
#include "Serialization/ObjectWriter.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** Writes a class with its functions; it refers to itself and to them by name, so that two classes can be compared. */
class FClassWriter final : public FObjectWriter
{
public:
	FClassWriter(TArray<uint8>& InBytes, UClass& InClass)
		: FObjectWriter(InBytes)
		, Class(InClass)
	{
	}

	void Write()
	{
		Class.Serialize(*this);
		for (UField* Function = Class.Children; Function; Function = Function->Next)
		{
			Function->Serialize(*this);
		}
	}

	using FObjectWriter::operator<<;
	FArchive& operator<<(UObject*& Value) override
	{
		bool bSelf = Value == &Class;
		const bool bMember = Value && Value->GetOuter() == &Class && Value->IsA(UFunction::StaticClass());
		FName Member = bMember ? Value->GetFName() : FName();
		UObject* Other = bSelf || bMember ? nullptr : Value;
		*this << bSelf << Member;
		return FObjectWriter::operator<<(Other);
	}

private:
	UClass& Class;
};

TArray<uint8> Write(UClass& Class)
{
	TArray<uint8> Bytes;
	FClassWriter(Bytes, Class).Write();
	return Bytes;
}

/** What a compile of the class begins with: the metadata stays. */
UBlueprintGeneratedClass* MakeLike(UBlueprintGeneratedClass& Class)
{
	auto* const Like = NewObject<UBlueprintGeneratedClass>(GetTransientPackage(), Class.GetClass(), NAME_None, RF_Transient);
	TArray<uint8> Bytes;
	FObjectWriter Writer(Bytes);
	Class.UField::Serialize(Writer);
	FObjectReader Reader(Bytes);
	Like->UField::Serialize(Reader);
	Like->ClassGeneratedBy = Class.ClassGeneratedBy;
	Like->SetSuperStruct(Class.GetSuperStruct());
	return Like;
}

void Discard(UClass& Class)
{
	for (UField* Function = Class.Children; Function; Function = Function->Next)
	{
		Function->MarkAsGarbage();
	}
	Class.MarkAsGarbage();
}
}

bool DoesClassMatch(UBlueprint& Blueprint)
{
	auto* const Class = Cast<UBlueprintGeneratedClass>(Blueprint.GeneratedClass.Get());
	const bool bDefaults = !Blueprint.NewVariables.ContainsByPredicate(
		[](const FBPVariableDescription& Variable) { return !Variable.DefaultValue.Equals(Variable.CompiledDefaultValue); });
	if (!Class || Class->GetSuperClass() != Blueprint.ParentClass || !bDefaults)
	{
		return false;
	}
	FCompilerResultsLog Silent;
	Silent.bSilentMode = true;
	Silent.bAnnotateMentionedNodes = false;
	UBlueprintGeneratedClass* const Fresh = MakeLike(*Class);
	BuildBlueprintClass(Blueprint, *Fresh, Class, Silent);
	const bool bSame = Write(*Class) == Write(*Fresh);
	Discard(*Fresh);
	return bSame;
}
