#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "TestKinds.h"
#include "TestSupport.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
class FFileWriter : public FMemoryWriter
{
public:
	explicit FFileWriter(TArray<uint8>& InBytes)
		: FMemoryWriter(InBytes)
	{
		bPersistent = true;
	}
	using FMemoryWriter::operator<<;
	/** By path. */
	FArchive& operator<<(UObject*& Object) override
	{
		FString Path = GetPathNameSafe(Object);
		return *this << Path;
	}
};

class FFileReader : public FMemoryReader
{
public:
	explicit FFileReader(const TArray<uint8>& InBytes)
		: FMemoryReader(InBytes)
	{
		bPersistent = true;
	}
	using FMemoryReader::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		FString Path;
		*this << Path;
		Object = StaticFindObject(nullptr, nullptr, *Path);
		return *this;
	}
};

/** Replaces one object by another. */
class FReplacer : public FArchive
{
public:
	FReplacer(UObject* InFrom, UObject* InTo, bool bWeak)
		: From(InFrom)
		, To(InTo)
	{
		bObjectReferenceCollector = true;
		bWeakReferences = bWeak;
	}
	using FArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		Object = Object == From ? To : Object;
		return *this;
	}

private:
	UObject* From;
	UObject* To;
};

FProperty* Find(const TCHAR* Name)
{
	return UTestKinds::StaticClass()->FindPropertyByName(Name);
}

FString Export(const UTestKinds* Object, const TCHAR* Name, int32 PortFlags = PPF_None)
{
	FString Text;
	Find(Name)->ExportTextItem_InContainer(Text, Object, nullptr, nullptr, PortFlags);
	return Text;
}

bool Import(UTestKinds* Object, const TCHAR* Name, const FString& Text)
{
	const TCHAR* const End = Find(Name)->ImportText_InContainer(*Text, Object, Object, PPF_None, nullptr);
	return End && *End == '\0';
}

FTestKey MakeKey(const TCHAR* Name, int32 Number)
{
	FTestKey Key;
	Key.Name = Name;
	Key.Number = Number;
	return Key;
}

/** An object with a value of each kind that is not the empty one. */
UTestKinds* MakeFull()
{
	UTestKinds* const Object = NewObject<UTestKinds>(GetTransientPackage(), TEXT("Full"));
	Object->Tiny = -128;
	Object->Short = -32768;
	Object->UnsignedShort = 65535;
	Object->Unsigned = 4294967295u;
	Object->UnsignedLong = 18446744073709551615ull;
	Object->Outer = ETestOuter::Far;
	Object->Fixed[1] = 20;
	Object->Weak = Object;
	Object->Soft = Object;
	Object->SoftClass = UTestKinds::StaticClass();
	Object->Class = UTestKinds::StaticClass();
	Object->Greeter = Object;
	Object->Words = { TEXT("one"), TEXT("two \"2\"") };
	Object->Keys.Add(MakeKey(TEXT("k"), 1));
	Object->Counts.Add(TEXT("First"), 1);
	Object->Counts.Add(TEXT("Second"), 2);
	Object->Owners.Add(MakeKey(TEXT("o"), 2), Object);
	Object->Places.Add(-1, FVector(1, 2, 3));
	Object->Ask.BindDynamic(Object, &UTestKinds::Answer);
	Object->OnCounted.AddDynamic(Object, &UTestKinds::NoteCount);
	Object->Place = FVector(1, -2.5, 3e6);
	Object->Transform = FTransform(FQuat(0, 0, 1, 0), FVector(1, 2, 3), FVector(2));
	Object->Color = FLinearColor(0.5f, 0.25f, 1.0f);
	Object->Pixel = FColor(1, 2, 3);
	Object->Guid = FGuid(0x01234567, 0x89abcdef, 0x00000001, 0xfedcba98);
	Object->Time = FDateTime(2026, 1, 31, 12, 30, 15, 250);
	Object->Span = FTimespan(-937845000000);
	Object->Path = FSoftObjectPath(TEXT("/Game/A.A:B.C"));
	Object->Asset = FTopLevelAssetPath(TEXT("/Game/A.A"));
	Object->Tree = MakeKey(TEXT("t"), 1);
	Object->Tree.Children.Add(MakeKey(TEXT("c"), 2));
	return Object;
}

struct FKindCase
{
	const TCHAR* Name;
	const TCHAR* CppType;
	const TCHAR* Tag;
	const TCHAR* Text;
	const TCHAR* Delimited; // Null for the same.
};

#define FULL "/Script/TestObjects.TestKinds'/Engine/Transient.Full'"
#define KINDS "/Script/TestObjects.TestKinds"
const FKindCase Kinds[] = {
	{ TEXT("Tiny"), TEXT("int8"), TEXT("Int8Property"), TEXT("-128"), nullptr },
	{ TEXT("Short"), TEXT("int16"), TEXT("Int16Property"), TEXT("-32768"), nullptr },
	{ TEXT("UnsignedShort"), TEXT("uint16"), TEXT("UInt16Property"), TEXT("65535"), nullptr },
	{ TEXT("Unsigned"), TEXT("uint32"), TEXT("UInt32Property"), TEXT("4294967295"), nullptr },
	{ TEXT("UnsignedLong"), TEXT("uint64"), TEXT("UInt64Property"), TEXT("18446744073709551615"), nullptr },
	{ TEXT("Outer"), TEXT("TEnumAsByte<ETestOuter>"), TEXT("ByteProperty<ETestOuter>"), TEXT("Far"), nullptr },
	{ TEXT("Weak"), TEXT("TWeakObjectPtr<UTestKinds>"), TEXT("WeakObjectProperty"), TEXT(FULL), TEXT("\"" FULL "\"") },
	{ TEXT("Soft"), TEXT("TSoftObjectPtr<UTestKinds>"), TEXT("SoftObjectProperty"), TEXT("/Engine/Transient.Full"),
		TEXT("\"/Engine/Transient.Full\"") },
	{ TEXT("SoftClass"), TEXT("TSoftClassPtr<UTestKinds>"), TEXT("SoftClassProperty"), TEXT(KINDS), TEXT("\"" KINDS "\"") },
	{ TEXT("Class"), TEXT("TSubclassOf<UObject>"), TEXT("ClassProperty"), TEXT("/Script/CoreUObject.Class'" KINDS "'"),
		TEXT("\"/Script/CoreUObject.Class'" KINDS "'\"") },
	{ TEXT("Greeter"), TEXT("TScriptInterface<ITestGreeter>"), TEXT("InterfaceProperty"), TEXT(FULL), TEXT("\"" FULL "\"") },
	{ TEXT("Words"), TEXT("TSet<FString>"), TEXT("SetProperty<StrProperty>"), TEXT("(\"one\",\"two \\\"2\\\"\")"), nullptr },
	{ TEXT("Keys"), TEXT("TSet<FTestKey>"), TEXT("SetProperty<StructProperty<TestKey>>"), TEXT("((Name=\"k\",Number=1,Children=()))"),
		nullptr },
	{ TEXT("Counts"), TEXT("TMap<FName,int32>"), TEXT("MapProperty<NameProperty,IntProperty>"), TEXT("((\"First\", 1),(\"Second\", 2))"),
		nullptr },
	{ TEXT("Owners"), TEXT("TMap<FTestKey,TObjectPtr<UObject>>"), TEXT("MapProperty<StructProperty<TestKey>,ObjectProperty>"),
		TEXT("(((Name=\"o\",Number=2,Children=()), \"" FULL "\"))"), nullptr },
	{ TEXT("Places"), TEXT("TMap<int8,FVector>"), TEXT("MapProperty<Int8Property,StructProperty<Vector>>"),
		TEXT("((-1, (X=1.000000,Y=2.000000,Z=3.000000)))"), nullptr },
	{ TEXT("Ask"), TEXT("FScriptDelegate"), TEXT("DelegateProperty"), TEXT("/Engine/Transient.Full.Answer"), nullptr },
	{ TEXT("OnCounted"), TEXT("FMulticastScriptDelegate"), TEXT("MulticastInlineDelegateProperty"),
		TEXT("(/Engine/Transient.Full.NoteCount)"), nullptr },
	{ TEXT("Place"), TEXT("FVector"), TEXT("StructProperty<Vector>"), TEXT("(X=1.000000,Y=-2.500000,Z=3000000.000000)"), nullptr },
	{ TEXT("Transform"), TEXT("FTransform"), TEXT("StructProperty<Transform>"),
		TEXT("(Rotation=(X=0.000000,Y=0.000000,Z=1.000000,W=0.000000),Translation=(X=1.000000,Y=2.000000,Z=3.000000),"
			 "Scale3D=(X=2.000000,Y=2.000000,Z=2.000000))"),
		nullptr },
	{ TEXT("Color"), TEXT("FLinearColor"), TEXT("StructProperty<LinearColor>"), TEXT("(R=0.500000,G=0.250000,B=1.000000,A=1.000000)"),
		nullptr },
	{ TEXT("Pixel"), TEXT("FColor"), TEXT("StructProperty<Color>"), TEXT("(B=3,G=2,R=1,A=255)"), nullptr },
	{ TEXT("Guid"), TEXT("FGuid"), TEXT("StructProperty<Guid>"), TEXT("0123456789ABCDEF00000001FEDCBA98"), nullptr },
	{ TEXT("Time"), TEXT("FDateTime"), TEXT("StructProperty<DateTime>"), TEXT("2026.01.31-12.30.15.250"), nullptr },
	{ TEXT("Span"), TEXT("FTimespan"), TEXT("StructProperty<Timespan>"), TEXT("-1.02:03:04.5000000"), nullptr },
	{ TEXT("Path"), TEXT("FSoftObjectPath"), TEXT("StructProperty<SoftObjectPath>"), TEXT("/Game/A.A:B.C"), TEXT("\"/Game/A.A:B.C\"") },
	{ TEXT("Asset"), TEXT("FTopLevelAssetPath"), TEXT("StructProperty<TopLevelAssetPath>"), TEXT("/Game/A.A"), TEXT("\"/Game/A.A\"") },
	{ TEXT("Tree"), TEXT("FTestKey"), TEXT("StructProperty<TestKey>"),
		TEXT("(Name=\"t\",Number=1,Children=((Name=\"c\",Number=2,Children=())))"), nullptr },
};
}

TEST(PropertyKind, HasItsTypeItsTextAndItsBytes)
{
	UTestKinds* const Full = MakeFull();
	for (const FKindCase& Each : Kinds)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Name));
		const FProperty* const Property = Find(Each.Name);
		ASSERT_NE(Property, nullptr);
		EXPECT_EQ(Property->GetCPPType(), Each.CppType);
		EXPECT_EQ(Property->GetTypeTag().ToString(), Each.Tag);
		EXPECT_EQ(Export(Full, Each.Name), Each.Text);
		EXPECT_EQ(Export(Full, Each.Name, PPF_Delimited), Each.Delimited ? Each.Delimited : Each.Text);

		UTestKinds* const ByText = NewObject<UTestKinds>();
		EXPECT_FALSE(Property->Identical_InContainer(ByText, Full));
		EXPECT_TRUE(Import(ByText, Each.Name, Each.Text));
		EXPECT_TRUE(Property->Identical_InContainer(ByText, Full));

		TArray<uint8> Bytes;
		FFileWriter Writer(Bytes);
		Property->SerializeItem(Writer, Property->ContainerPtrToValuePtr<void>(Full));
		UTestKinds* const ByBytes = NewObject<UTestKinds>();
		FFileReader Reader(Bytes);
		Property->SerializeItem(Reader, Property->ContainerPtrToValuePtr<void>(ByBytes));
		EXPECT_FALSE(Reader.IsError());
		EXPECT_EQ(Reader.Tell(), Bytes.Num());
		EXPECT_TRUE(Property->Identical_InContainer(ByBytes, Full));

		// Cut anywhere, the bytes are an error and nothing worse.
		for (int32 Length = 0; Length < Bytes.Num(); ++Length)
		{
			const TArray<uint8> Some(Bytes.GetData(), Length);
			FFileReader Cut(Some);
			Property->SerializeItem(Cut, Property->ContainerPtrToValuePtr<void>(NewObject<UTestKinds>()));
			EXPECT_TRUE(Cut.IsError()) << Length;
		}
	}
}

TEST(PropertyKind, IsDefinedInBytesAndMadeFromThem)
{
	for (const FKindCase& Each : Kinds)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Name));
		FProperty* Original = Find(Each.Name);
		TArray<uint8> Bytes;
		FFileWriter Writer(Bytes);
		SerializeField(Writer, Original, UTestKinds::StaticClass());
		FProperty* Copy = nullptr;
		FFileReader Reader(Bytes);
		SerializeField(Reader, Copy, UTestKinds::StaticClass());
		ASSERT_NE(Copy, nullptr);
		EXPECT_EQ(Copy->GetFName(), Original->GetFName());
		EXPECT_EQ(Copy->GetTypeTag(), Original->GetTypeTag());
		EXPECT_EQ(Copy->GetCPPType(), Original->GetCPPType());
		EXPECT_EQ(Copy->GetPropertyFlags(), Original->GetPropertyFlags());
		EXPECT_EQ(Copy->GetSize(), Original->GetSize());
		EXPECT_EQ(Copy->GetMinAlignment(), Original->GetMinAlignment());
		delete Copy;
		for (int32 Length = 0; Length < Bytes.Num(); ++Length)
		{
			FProperty* Half = nullptr;
			const TArray<uint8> Some(Bytes.GetData(), Length);
			FFileReader Cut(Some);
			SerializeField(Cut, Half, UTestKinds::StaticClass());
			EXPECT_TRUE(Cut.IsError() && !Half) << Length;
		}
	}
}

TEST(PropertyKind, ReadsDamagedAndEndlessTextWithoutHarm)
{
	struct
	{
		const TCHAR* Name;
		FString Text;
	} const Cases[] = {
		{ TEXT("Tiny"), TEXT("128") },
		{ TEXT("UnsignedShort"), TEXT("-1") },
		{ TEXT("UnsignedLong"), TEXT("18446744073709551616") },
		{ TEXT("Weak"), TEXT("/Script/TestObjects.TestKinds") },
		{ TEXT("Greeter"), TEXT("/Script/TestObjects.TestKinds") },
		{ TEXT("Words"), TEXT("(\"one\"") },
		{ TEXT("Counts"), TEXT("((a, 1),(b))") },
		{ TEXT("Counts"), TEXT("(a, 1)") },
		{ TEXT("Counts"), TEXT("((a, x))") },
		{ TEXT("Ask"), TEXT("/Script/TestObjects.TestKinds.Nothing") },
		{ TEXT("OnCounted"), TEXT("Nothing") },
		{ TEXT("Guid"), TEXT("0123456789ABCDEF00000001FEDCBA9") },
		{ TEXT("Time"), TEXT("2026.02.30-12.00.00") },
		{ TEXT("Span"), TEXT("25:00:00.0000000") },
		{ TEXT("Place"), TEXT("(X=one)") },
		{ TEXT("Tree"), FString(TEXT("(Children=(")) + FString::ChrN(1000000, '(') },
		{ TEXT("Tree"), FString::ChrN(1000000, '(') },
	};
	for (const auto& Each : Cases)
	{
		EXPECT_FALSE(Import(NewObject<UTestKinds>(), Each.Name, Each.Text)) << TCHAR_TO_UTF8(*Each.Text.Left(100));
	}
	FString Deep;
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Deep += TEXT("(Children=(");
	}
	EXPECT_FALSE(Import(NewObject<UTestKinds>(), TEXT("Tree"), Deep));
	UTestKinds* const Object = NewObject<UTestKinds>();
	EXPECT_TRUE(Import(Object, TEXT("Words"), TEXT("(") + FString::ChrN(1000000, 'x') + TEXT(")")));
	EXPECT_EQ(Object->Words.Array()[0].Len(), 1000000);
}

TEST(PropertyKind, TellsWhatItCouldNotRead)
{
	class FLines : public FOutputDevice
	{
	public:
		void Serialize(const TCHAR* Message, ELogVerbosity::Type, const FName&) override { Text += Message; }
		FString Text;
	} Lines;
	UTestKinds* const Object = NewObject<UTestKinds>();
	Find(TEXT("Counts"))->ImportText_InContainer(TEXT("((a, many))"), Object, Object, PPF_None, &Lines);
	EXPECT_EQ(Lines.Text, TEXT("/Script/TestObjects.TestKinds:Counts: '((a, many))' is no TMap<FName,int32>")) << "once";
}

TEST(PropertyOfFixedSize, HasSeveralValues)
{
	UTestKinds* const Object = NewObject<UTestKinds>();
	const FProperty* const Fixed = Find(TEXT("Fixed"));
	EXPECT_EQ(Fixed->ArrayDim, 3);
	EXPECT_EQ(Fixed->GetSize(), 12);
	EXPECT_EQ(Fixed->ContainerPtrToValuePtr<int32>(Object, 2), &Object->Fixed[2]);
	UTestKinds* const Other = NewObject<UTestKinds>();
	Object->Fixed[2] = 30;
	Fixed->CopyCompleteValue_InContainer(Other, Object);
	EXPECT_EQ(Other->Fixed[2], 30);
	Other->Fixed[0] = 0;
	EXPECT_FALSE(Fixed->Identical_InContainer(Object, Other, 0));
	EXPECT_TRUE(Fixed->Identical_InContainer(Object, Other, 2));
}

TEST(ScriptSet, IsTheSameAsTheCppType)
{
	UTestKinds* const Object = NewObject<UTestKinds>();
	FScriptMapHelper Map(CastField<FMapProperty>(Find(TEXT("Counts"))), &Object->Counts);
	// Beyond the size up to which a map is searched in a row, both ways.
	for (int32 Index = 0; Index < 100; ++Index)
	{
		const FName Key(*FString::Printf(TEXT("Key%dx"), Index));
		Map.AddPair(&Key, &Index);
	}
	ASSERT_EQ(Object->Counts.Num(), 100);
	for (int32 Index = 0; Index < 100; ++Index)
	{
		EXPECT_EQ(Object->Counts.FindRef(*FString::Printf(TEXT("KEY%dX"), Index)), Index);
	}
	Object->Counts.Remove(TEXT("Key7x"));
	Object->Counts.Add(TEXT("New"), -1);
	const FName New(TEXT("new"));
	EXPECT_EQ(Map.FindIndex(&New), 7) << "in the hole";
	Map.RemoveAt(8);
	EXPECT_FALSE(Map.IsValidIndex(8));
	EXPECT_FALSE(Object->Counts.Contains(TEXT("Key8x")));
	EXPECT_EQ(Object->Counts.Num(), 99);
	const FName Key9(TEXT("Key9x"));
	EXPECT_EQ(*reinterpret_cast<int32*>(Map.FindValueFromKey(&Key9)), 9);
	Map.EmptyValues();
	EXPECT_TRUE(Object->Counts.IsEmpty());

	// A value that is aligned otherwise than the key, and strings, which must not be moved as bytes.
	Object->Places.Add(1, FVector(1, 2, 3));
	const FScriptMapHelper Places(CastField<FMapProperty>(Find(TEXT("Places"))), &Object->Places);
	EXPECT_EQ(*reinterpret_cast<FVector*>(Places.GetValuePtr(0)), FVector(1, 2, 3));
	FScriptSetHelper Words(CastField<FSetProperty>(Find(TEXT("Words"))), &Object->Words);
	for (int32 Index = 0; Index < 20; ++Index)
	{
		const FString Word = FString::FromInt(Index);
		Words.AddElement(&Word);
		Words.AddElement(&Word);
	}
	EXPECT_EQ(Object->Words.Num(), 20);
	EXPECT_TRUE(Object->Words.Contains(TEXT("19")));
	EXPECT_EQ(Object->Words.Array()[0], TEXT("0"));
}

TEST(Reference, IsPassedToCollectors)
{
	UTestKinds* const Full = NewObject<UTestKinds>();
	UTestKinds* const Other = NewObject<UTestKinds>();
	Full->Owners.Add(MakeKey(TEXT("a"), 1), Full);
	Full->Weak = Full;
	Full->Greeter = Full;
	Full->Ask.BindDynamic(Full, &UTestKinds::Answer);
	for (const bool bWeak : { false, true })
	{
		FReplacer Replacer(Full, Other, bWeak);
		for (TFieldIterator<FProperty> Property(UTestKinds::StaticClass()); Property; ++Property)
		{
			if (Property->ContainsObjectReference())
			{
				Property->SerializeItem(Replacer, Property->ContainerPtrToValuePtr<void>(Full));
			}
		}
		EXPECT_EQ(Full->Owners.FindRef(MakeKey(TEXT("a"), 1)), Other);
		EXPECT_EQ(Full->Greeter.GetObject(), Other);
		EXPECT_EQ(Full->Weak.Get(), bWeak ? Other : Full);
		EXPECT_EQ(Full->Ask.GetUObject(), bWeak ? Other : Full);
	}
	EXPECT_FALSE(Find(TEXT("Tree"))->ContainsObjectReference()) << "and the search ends";
	EXPECT_FALSE(Find(TEXT("Soft"))->ContainsObjectReference());
}

TEST(Interface, IsReachedFromTheObject)
{
	UTestKinds* const Object = NewObject<UTestKinds>();
	EXPECT_TRUE(UTestKinds::StaticClass()->ImplementsInterface(UTestGreeter::StaticClass()));
	EXPECT_TRUE(UTestGreeter::StaticClass()->HasAnyClassFlags(CLASS_Interface));
	EXPECT_EQ(Object->GetNativeInterfaceAddress(UTestGreeter::StaticClass()), static_cast<ITestGreeter*>(Object));
	EXPECT_EQ(NewObject<UTestObject>()->GetNativeInterfaceAddress(UTestGreeter::StaticClass()), nullptr);
	TScriptInterface<ITestGreeter> Greeter = Object;
	EXPECT_EQ(Greeter->Greet(TEXT("you")), TEXT("Hello, you"));
	Greeter = NewObject<UTestObject>();
	EXPECT_FALSE(Greeter) << "has not the interface";
	EXPECT_EQ(ITestGreeter::Execute_Count(Object, 2), 3);
	struct
	{
		FString Name = TEXT("me");
		FString ReturnValue;
	} Parms;
	Object->ProcessEvent(UTestGreeter::StaticClass()->FindFunctionByName(TEXT("Greet")), &Parms);
	EXPECT_EQ(Parms.ReturnValue, TEXT("Hello, me"));
}

TEST(Event, RunsItsCodeOrNothing)
{
	UTestKinds* const Object = NewObject<UTestKinds>();
	double Large = 1.5;
	EXPECT_TRUE(Object->Double(1, Large));
	EXPECT_EQ(Large, 3.0);
	EXPECT_EQ(Object->Tell(TEXT("a")), TEXT("")) << "nobody handles it";

	// As a Blueprint would take it over.
	UFunction* const Tell = UTestKinds::StaticClass()->FindFunctionByName(TEXT("Tell"));
	Tell->Native = [](UObject*, void* Parms)
	{
		FString* const Strings = static_cast<FString*>(Parms);
		Strings[1] = Strings[0] + TEXT("!");
	};
	EXPECT_EQ(Object->Tell(TEXT("a")), TEXT("a!"));
	Tell->Native = nullptr;
}

TEST(DynamicDelegate, CallsThroughReflection)
{
	UTestKinds* const Object = NewObject<UTestKinds>();
	EXPECT_FALSE(Object->Ask.IsBound());
	Object->Ask.BindDynamic(Object, &UTestKinds::Answer);
	EXPECT_EQ(Object->Ask.Execute(41), TEXT("42"));
	Object->OnCounted.AddDynamic(Object, &UTestKinds::NoteCount);
	Object->OnCounted.AddUniqueDynamic(Object, &UTestKinds::NoteCount);
	Object->OnCounted.Broadcast(3, TEXT("moths"));
	EXPECT_EQ(Object->Noted, TEXT("3 moths;"));
	Object->OnCounted.RemoveDynamic(Object, &UTestKinds::NoteCount);
	Object->OnCounted.Broadcast(4, TEXT("moths"));
	EXPECT_EQ(Object->Noted, TEXT("3 moths;"));
	const UFunction* const Signature = CastField<FMulticastDelegateProperty>(Find(TEXT("OnCounted")))->SignatureFunction;
	EXPECT_EQ(Signature->GetPathName(), TEXT("/Script/TestObjects.TestCounted__DelegateSignature"));
	EXPECT_EQ(Signature->FindPropertyByName(TEXT("What"))->GetCPPType(), TEXT("FString"));
	EXPECT_EQ(CastField<FDelegateProperty>(Find(TEXT("Ask")))->SignatureFunction->GetOuter(), UTestKinds::StaticClass());
}

TEST(SoftReference, FindsItsObjectAndLosesIt)
{
	struct
	{
		const TCHAR* Text;
		const TCHAR* Package;
		const TCHAR* Asset;
		const TCHAR* SubPath;
	} const Cases[] = {
		{ TEXT("/Game/A"), TEXT("/Game/A"), TEXT(""), TEXT("") },
		{ TEXT("/Game/A.B"), TEXT("/Game/A"), TEXT("B"), TEXT("") },
		{ TEXT("/Game/A.B:C.D"), TEXT("/Game/A"), TEXT("B"), TEXT("C.D") },
		{ TEXT(""), TEXT(""), TEXT(""), TEXT("") },
	};
	for (const auto& Each : Cases)
	{
		const FSoftObjectPath Path(Each.Text);
		EXPECT_EQ(Path.GetLongPackageName(), Each.Package);
		EXPECT_EQ(Path.GetAssetName(), Each.Asset);
		EXPECT_EQ(Path.GetSubPathString(), Each.SubPath);
		EXPECT_EQ(Path.ToString(), Each.Text);
		EXPECT_EQ(FSoftObjectPath(FString::Printf(TEXT("/Script/Engine.X'%s'"), Each.Text)).ToString(), Each.Text);
	}
	TSoftObjectPtr<UTestKinds> Soft = NewObject<UTestKinds>(GetTransientPackage(), TEXT("Lost"));
	EXPECT_NE(Soft.Get(), nullptr);
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Soft.Get(), nullptr);
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_EQ(TSoftObjectPtr<UTestObject>(FSoftObjectPath(KINDS)).Get(), nullptr) << "of another class";
}
