#include "UObject/GeneratedCode.h"

#include "Modules/ModuleManager.h"
#include "ObjectTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <bit>
#include <cstdlib>
#include <memory>

namespace UECodeGen
{
namespace
{
constexpr EObjectFlags TypeFlags = RF_Public | RF_MarkAsNative;

template <typename T>
T* MakeType(UObject* Outer, const char* Name)
{
	return static_cast<T*>(AllocateObject(T::StaticClass(), Outer, Name, TypeFlags));
}

template <typename T>
T* MakeType(const char* Package, const char* Name)
{
	UPackage* const Home = CreatePackage(*FString(Package));
	Home->SetFlags(TypeFlags);
	return MakeType<T>(Home, Name);
}

template <typename FieldType>
void SetMetaData(FieldType& Field, const TTable<FMetaDataPair>& MetaData)
{
	for (const FMetaDataPair& Pair : MetaData)
	{
		Field.SetMetaData(Pair.Key, Pair.Value);
	}
}

/** Lets the generated code set its bit in zeroed memory, and looks which one it was. */
FBoolProperty* MakeBitField(UStruct* Owner, const FPropertyInfo& Info)
{
	const auto Deleter = [](uint8* Memory) { ::operator delete(Memory, std::align_val_t(alignof(std::max_align_t))); };
	const std::unique_ptr<uint8, decltype(Deleter)> Memory(
		static_cast<uint8*>(::operator new(Info.OwnerSize, std::align_val_t(alignof(std::max_align_t)))), Deleter);
	std::memset(Memory.get(), 0, Info.OwnerSize);
	Info.SetBit(Memory.get());
	const uint8* const Byte = std::find_if(Memory.get(), Memory.get() + Info.OwnerSize, [](uint8 Each) { return Each != 0; });
	FBoolProperty* const Property = new FBoolProperty(Owner, Info.Name, *Byte);
	Property->Offset_Internal = static_cast<int32>(Byte - Memory.get());
	return Property;
}

FProperty* MakeProperty(UStruct* Owner, const FPropertyInfo& Info);

FProperty* MakeKind(UStruct* Owner, const FPropertyInfo& Info)
{
	const FName Name = Info.Name;
	switch (Info.Kind)
	{
	case EPropertyKind::Bool: return Info.SetBit ? MakeBitField(Owner, Info) : new FBoolProperty(Owner, Name);
	case EPropertyKind::Byte: return new FByteProperty(Owner, Name, Info.Enum ? Info.Enum() : nullptr);
	case EPropertyKind::Int: return new FIntProperty(Owner, Name);
	case EPropertyKind::Int64: return new FInt64Property(Owner, Name);
	case EPropertyKind::Float: return new FFloatProperty(Owner, Name);
	case EPropertyKind::Double: return new FDoubleProperty(Owner, Name);
	case EPropertyKind::Str: return new FStrProperty(Owner, Name);
	case EPropertyKind::Name: return new FNameProperty(Owner, Name);
	case EPropertyKind::Text: return new FTextProperty(Owner, Name);
	case EPropertyKind::Enum: return new FEnumProperty(Owner, Name, Info.Enum(), static_cast<int32>(Info.Size));
	case EPropertyKind::Object: return new FObjectProperty(Owner, Name, Info.Class());
	case EPropertyKind::Class: return new FClassProperty(Owner, Name, Info.Class());
	case EPropertyKind::Struct: return new FStructProperty(Owner, Name, Info.Struct());
	case EPropertyKind::Array: return new FArrayProperty(Owner, Name, MakeProperty(Owner, *Info.Inner));
	}
	checkNoEntry();
}

FProperty* MakeProperty(UStruct* Owner, const FPropertyInfo& Info)
{
	FProperty* const Property = MakeKind(Owner, Info);
	Property->SetPropertyFlags(static_cast<EPropertyFlags>(Info.Flags));
	if (!Info.SetBit)
	{
		Property->Offset_Internal = static_cast<int32>(Info.Offset);
	}
	SetMetaData(*Property, Info.MetaData);
	return Property;
}

void AddProperties(UStruct* Owner, const TTable<FPropertyInfo>& Properties)
{
	for (const FPropertyInfo& Info : Properties)
	{
		Owner->AddProperty(MakeProperty(Owner, Info));
	}
}

void AddFunctions(UClass* Owner, const TTable<FFunctionInfo>& Functions)
{
	for (const FFunctionInfo& Info : Functions)
	{
		UFunction* const Function = MakeType<UFunction>(Owner, Info.Name);
		Function->FunctionFlags = Info.Flags;
		Function->Native = Info.Native;
		Function->PropertiesSize = static_cast<int32>(Info.ParmsSize);
		Function->MinAlignment = alignof(std::max_align_t);
		SetMetaData(*Function, Info.MetaData);
		AddProperties(Function, Info.Parameters);
		Owner->AddFunction(Function);
	}
}

/** What classes and structs share, but for the properties. */
template <typename T>
void SetType(T* Made, const TTypeInfo<T>& Info)
{
	Made->PropertiesSize = static_cast<int32>(Info.Size);
	Made->MinAlignment = static_cast<int32>(Info.Alignment);
	Made->SuperStruct = Info.Super ? Info.Super() : nullptr;
	SetMetaData(*Made, Info.MetaData);
}

TArray<const FModuleTypes*>& GetPendingModules()
{
	static TArray<const FModuleTypes*> Pending;
	return Pending;
}
}

UClass* Construct(UClass*& Made, const FClassInfo& Info)
{
	if (Made)
	{
		return Made;
	}
	Made = MakeType<UClass>(Info.Type.Package, Info.Type.Name);
	SetType(Made, Info.Type);
	const UClass* const Super = Made->GetSuperClass();
	Made->ClassFlags = Info.Flags | CLASS_Native | (Super->ClassFlags & CLASS_Inherit);
	Made->ClassConfigName = Info.Config ? FName(Info.Config) : Super->ClassConfigName;
	Made->ClassConstructor = Info.Constructor;
	AddProperties(Made, Info.Type.Properties);
	AddFunctions(Made, Info.Functions);
	return Made;
}

UScriptStruct* Construct(UScriptStruct*& Made, const FStructInfo& Info)
{
	if (!Made)
	{
		Made = MakeType<UScriptStruct>(Info.Type.Package, Info.Type.Name);
		Made->Ops = Info.Ops;
		SetType(Made, Info.Type);
		AddProperties(Made, Info.Type.Properties);
	}
	return Made;
}

UEnum* Construct(UEnum*& Made, const FEnumInfo& Info)
{
	if (Made)
	{
		return Made;
	}
	Made = MakeType<UEnum>(Info.Package, Info.Name);
	Made->CppType = Info.Name;
	SetMetaData(*Made, Info.MetaData);
	const FString Prefix = Info.bScoped ? Made->CppType + TEXT("::") : FString();
	int64 Highest = -1;
	bool bHasMax = false;
	for (const FEnumeratorInfo& Each : Info.Enumerators)
	{
		FFieldMetaData MetaData;
		for (const FMetaDataPair& Pair : Each.MetaData)
		{
			MetaData.Set(Pair.Key, Pair.Value);
		}
		const FString Name(Each.Name);
		Made->AddEnumerator(FName(Prefix + Name), Each.Value, MetaData);
		Highest = std::max(Highest, Each.Value);
		bHasMax |= Name == TEXT("MAX") || Name.EndsWith(TEXT("_MAX"));
	}
	if (!bHasMax)
	{
		Made->AddEnumerator(FName(Prefix + Made->CppType + TEXT("_MAX")), Highest + 1, FFieldMetaData());
	}
	return Made;
}

namespace
{
/** A module's types are made before the module starts. */
const FDelegateHandle OnModuleLoaded =
	FModuleManager::Get().OnProcessLoadedObjectsCallback().AddLambda([](FName, bool) { ProcessNewlyLoadedUObjects(); });
}

FRegisterModuleTypes::FRegisterModuleTypes(const FModuleTypes& Types)
{
	GetPendingModules().Add(&Types);
}
}

void ProcessNewlyLoadedUObjects()
{
	using namespace UECodeGen;
	if (GetPendingModules().IsEmpty())
	{
		return;
	}
	const TArray<const FModuleTypes*> Modules = MoveTemp(GetPendingModules());
	TArray<UClass*> Classes;
	for (const FModuleTypes* const Types : Modules)
	{
		for (UEnum* (*const Enum)() : Types->Enums)
		{
			Enum();
		}
		for (UScriptStruct* (*const Struct)() : Types->Structs)
		{
			Struct();
		}
		for (UClass* (*const Class)() : Types->Classes)
		{
			Classes.Add(Class());
		}
	}
	for (const UClass* const Class : Classes)
	{
		Class->GetDefaultObject();
	}
}
