#include "ObjectTable.h"
#include "UObject/UObjectGlobals.h"

/** The classes that reflection itself consists of. They come first, for no object can be made without them. */
struct FIntrinsicTypes
{
	static const FIntrinsicTypes& Get()
	{
		static FIntrinsicTypes Types;
		if (!Types.Object)
		{
			Types.Make();
		}
		return Types;
	}

	UClass* Object = nullptr;
	UClass* Package = nullptr;
	UClass* Field = nullptr;
	UClass* Struct = nullptr;
	UClass* ScriptStruct = nullptr;
	UClass* Function = nullptr;
	UClass* Enum = nullptr;
	UClass* Class = nullptr;

private:
	static constexpr EObjectFlags Flags = RF_Public | RF_MarkAsNative;

	/** Packages and classes refer to each other, so both are made without their class first. */
	void Make()
	{
		UPackage* const Home = MakeWithoutClass<UPackage>(nullptr, TEXT("/Script/CoreUObject"));
		Object = MakeClass<UObject>(Home, TEXT("Object"), nullptr);
		Package = MakeClass<UPackage>(Home, TEXT("Package"), Object);
		Field = MakeClass<UField>(Home, TEXT("Field"), Object);
		Struct = MakeClass<UStruct>(Home, TEXT("Struct"), Field);
		ScriptStruct = MakeClass<UScriptStruct>(Home, TEXT("ScriptStruct"), Struct);
		Function = MakeClass<UFunction>(Home, TEXT("Function"), Struct);
		Enum = MakeClass<UEnum>(Home, TEXT("Enum"), Field);
		Class = MakeClass<UClass>(Home, TEXT("Class"), Struct);
		for (UClass* const Each : { Object, Package, Field, Struct, ScriptStruct, Function, Enum, Class })
		{
			FObjectTable::Get().SetClass(Each, Class);
		}
		FObjectTable::Get().SetClass(Home, Package);
	}

	template <typename T>
	static T* MakeWithoutClass(UObject* Outer, const TCHAR* Name)
	{
		const FObjectInitializer Initializer(nullptr, Outer, Name, Flags);
		return new (::operator new(sizeof(T), std::align_val_t(alignof(T)))) T();
	}

	template <typename T>
	static UClass* MakeClass(UObject* Outer, const TCHAR* Name, UClass* Super)
	{
		UClass* const Made = MakeWithoutClass<UClass>(Outer, Name);
		Made->SuperStruct = Super;
		Made->PropertiesSize = sizeof(T);
		Made->MinAlignment = alignof(T);
		Made->ClassFlags = CLASS_Native | CLASS_Intrinsic;
		Made->ClassConstructor = [](void* Memory, const FObjectInitializer&) { new (Memory) T(); };
		return Made;
	}
};

#define IMPLEMENT_INTRINSIC_CLASS(Name)                                                                                                    \
	DLLEXPORT UClass* Z_Construct_UClass_U##Name()                                                                                         \
	{                                                                                                                                      \
		return FIntrinsicTypes::Get().Name;                                                                                                \
	}                                                                                                                                      \
	UClass* U##Name::StaticClass()                                                                                                         \
	{                                                                                                                                      \
		return FIntrinsicTypes::Get().Name;                                                                                                \
	}

IMPLEMENT_INTRINSIC_CLASS(Object)
IMPLEMENT_INTRINSIC_CLASS(Package)
IMPLEMENT_INTRINSIC_CLASS(Field)
IMPLEMENT_INTRINSIC_CLASS(Struct)
IMPLEMENT_INTRINSIC_CLASS(ScriptStruct)
IMPLEMENT_INTRINSIC_CLASS(Function)
IMPLEMENT_INTRINSIC_CLASS(Enum)
IMPLEMENT_INTRINSIC_CLASS(Class)
