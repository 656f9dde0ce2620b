#include "UObject/GeneratedCode.h"

#include "Modules/ModuleManager.h"
#include "ObjectConstruction.h"
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
void LayOutBitField(FBoolProperty& Property, const FPropertyInfo& Info)
{
	const auto Deleter = [](uint8* Memory) { ::operator delete(Memory, std::align_val_t(alignof(std::max_align_t))); };
	const std::unique_ptr<uint8, decltype(Deleter)> Memory(
		static_cast<uint8*>(::operator new(Info.OwnerSize, std::align_val_t(alignof(std::max_align_t)))), Deleter);
	std::memset(Memory.get(), 0, Info.OwnerSize);
	Info.SetBit(Memory.get());
	const uint8* const Byte = std::find_if(Memory.get(), Memory.get() + Info.OwnerSize, [](uint8 Each) { return Each != 0; });
	Property.SetBitField(*Byte);
	Property.Offset_Internal = static_cast<int32>(Byte - Memory.get());
}

FProperty* MakeProperty(FFieldVariant Owner, const FPropertyInfo& Info);

FProperty* MakeEnum(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FEnumProperty* const Property = new FEnumProperty(Owner, Info.Name);
	Property->SetEnum(Info.Enum());
	const FName Name("UnderlyingType");
	const auto Make = [&]() -> FProperty*
	{
		switch (Info.Size)
		{
		case -1: return new FInt8Property(Property, Name);
		case -2: return new FInt16Property(Property, Name);
		case -4: return new FIntProperty(Property, Name);
		case -8: return new FInt64Property(Property, Name);
		case 1: return new FByteProperty(Property, Name);
		case 2: return new FUInt16Property(Property, Name);
		case 4: return new FUInt32Property(Property, Name);
		case 8: return new FUInt64Property(Property, Name);
		}
		checkNoEntry();
	};
	Property->AddCppProperty(Make());
	return Property;
}

template <typename T>
T* MakeObject(FFieldVariant Owner, const FPropertyInfo& Info)
{
	T* const Property = new T(Owner, Info.Name);
	Property->PropertyClass = Info.Class();
	return Property;
}

template <typename T>
T* MakeClass(FFieldVariant Owner, const FPropertyInfo& Info)
{
	T* const Property = new T(Owner, Info.Name);
	Property->MetaClass = Info.Class();
	return Property;
}

FProperty* MakeInterface(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FInterfaceProperty* const Property = new FInterfaceProperty(Owner, Info.Name);
	Property->InterfaceClass = Info.Class();
	return Property;
}

FProperty* MakeStruct(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FStructProperty* const Property = new FStructProperty(Owner, Info.Name);
	Property->Struct = Info.Struct();
	return Property;
}

FProperty* MakeByte(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FByteProperty* const Property = new FByteProperty(Owner, Info.Name);
	Property->Enum = Info.Enum ? Info.Enum() : nullptr;
	return Property;
}

FProperty* MakeArray(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FArrayProperty* const Property = new FArrayProperty(Owner, Info.Name);
	Property->Inner = MakeProperty(Property, *Info.Inner);
	return Property;
}

FProperty* MakeSet(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FSetProperty* const Property = new FSetProperty(Owner, Info.Name);
	Property->ElementProp = MakeProperty(Property, *Info.Inner);
	return Property;
}

FProperty* MakeMap(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FMapProperty* const Property = new FMapProperty(Owner, Info.Name);
	Property->KeyProp = MakeProperty(Property, *Info.Inner);
	Property->ValueProp = MakeProperty(Property, *Info.Value);
	return Property;
}

template <typename T>
FProperty* MakeDelegate(FFieldVariant Owner, const FPropertyInfo& Info)
{
	T* const Property = new T(Owner, Info.Name);
	Property->SignatureFunction = Info.Signature();
	return Property;
}

FProperty* MakeKind(FFieldVariant Owner, const FPropertyInfo& Info)
{
	const FName Name = Info.Name;
	switch (Info.Kind)
	{
	case EPropertyKind::Bool: return new FBoolProperty(Owner, Name);
	case EPropertyKind::Int8: return new FInt8Property(Owner, Name);
	case EPropertyKind::Int16: return new FInt16Property(Owner, Name);
	case EPropertyKind::Int: return new FIntProperty(Owner, Name);
	case EPropertyKind::Int64: return new FInt64Property(Owner, Name);
	case EPropertyKind::Byte: return MakeByte(Owner, Info);
	case EPropertyKind::UInt16: return new FUInt16Property(Owner, Name);
	case EPropertyKind::UInt32: return new FUInt32Property(Owner, Name);
	case EPropertyKind::UInt64: return new FUInt64Property(Owner, Name);
	case EPropertyKind::Float: return new FFloatProperty(Owner, Name);
	case EPropertyKind::Double: return new FDoubleProperty(Owner, Name);
	case EPropertyKind::Str: return new FStrProperty(Owner, Name);
	case EPropertyKind::Name: return new FNameProperty(Owner, Name);
	case EPropertyKind::Text: return new FTextProperty(Owner, Name);
	case EPropertyKind::Enum: return MakeEnum(Owner, Info);
	case EPropertyKind::Object: return MakeObject<FObjectProperty>(Owner, Info);
	case EPropertyKind::Class: return MakeClass<FClassProperty>(Owner, Info);
	case EPropertyKind::WeakObject: return MakeObject<FWeakObjectProperty>(Owner, Info);
	case EPropertyKind::SoftObject: return MakeObject<FSoftObjectProperty>(Owner, Info);
	case EPropertyKind::SoftClass: return MakeClass<FSoftClassProperty>(Owner, Info);
	case EPropertyKind::Interface: return MakeInterface(Owner, Info);
	case EPropertyKind::Struct: return MakeStruct(Owner, Info);
	case EPropertyKind::Array: return MakeArray(Owner, Info);
	case EPropertyKind::Set: return MakeSet(Owner, Info);
	case EPropertyKind::Map: return MakeMap(Owner, Info);
	case EPropertyKind::Delegate: return MakeDelegate<FDelegateProperty>(Owner, Info);
	case EPropertyKind::MulticastDelegate: return MakeDelegate<FMulticastInlineDelegateProperty>(Owner, Info);
	}
	checkNoEntry();
}

FProperty* MakeProperty(FFieldVariant Owner, const FPropertyInfo& Info)
{
	FProperty* const Property = MakeKind(Owner, Info);
	Property->SetPropertyFlags(static_cast<EPropertyFlags>(Info.Flags));
	Property->ArrayDim = Info.ArrayDim;
	Property->Offset_Internal = static_cast<int32>(Info.Offset);
	if (Info.SetBit)
	{
		LayOutBitField(*CastFieldChecked<FBoolProperty>(Property), Info);
	}
	Property->Link();
	SetMetaData(*Property, Info.MetaData);
	Property->RepNotifyFunc = FName(Property->GetMetaData(TEXT("ReplicatedUsing")));
	return Property;
}

void AddProperties(UStruct* Owner, const TTable<FPropertyInfo>& Properties)
{
	for (const FPropertyInfo& Info : Properties)
	{
		Owner->AddCppProperty(MakeProperty(Owner, Info));
	}
}

/** Made is set before the parameters are made, whose types may refer back. */
void MakeFunction(UFunction*& Made, UObject* Outer, const FFunctionInfo& Info)
{
	UFunction* const Function = MakeType<UFunction>(Outer, Info.Name);
	Made = Function;
	Function->FunctionFlags = Info.Flags;
	Function->Native = Info.Native;
	Function->PropertiesSize = static_cast<int32>(Info.ParmsSize);
	Function->MinAlignment = alignof(std::max_align_t);
	SetMetaData(*Function, Info.MetaData);
	AddProperties(Function, Info.Parameters);
}

void AddInterfaces(UClass* Owner, const TTable<FInterfaceInfo>& Interfaces)
{
	for (const FInterfaceInfo& Info : Interfaces)
	{
		if (Info.Class)
		{
			FImplementedInterface Interface;
			Interface.Class = Info.Class();
			Interface.PointerOffset = Info.Offset();
			Owner->Interfaces.Add(Interface);
		}
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
	for (const FFunctionInfo& Function : Info.Functions)
	{
		UFunction* Own = nullptr;
		MakeFunction(Own, Made, Function);
		Made->AddFunction(Own);
	}
	AddInterfaces(Made, Info.Interfaces);
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

UFunction* Construct(UFunction*& Made, const FSignatureInfo& Info)
{
	if (!Made)
	{
		UObject* const Home = Info.Class ? Info.Class() : static_cast<UObject*>(CreatePackage(*FString(Info.Package)));
		Home->SetFlags(TypeFlags);
		// The class's own delegate properties ask for it while the class is made.
		if (!Made)
		{
			MakeFunction(Made, Home, Info.Function);
		}
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
		for (UFunction* (*const Signature)() : Types->Signatures)
		{
			Signature();
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
