#include "GraphSupport.h"

namespace
{
/** A property of the kind, for a type to be made of; deleted with the case. */
using FPropertyPtr = std::unique_ptr<FProperty>;

template <typename PropertyType>
FPropertyPtr Make(
	TFunctionRef<void(PropertyType&)> Prepare = [](PropertyType&) {}, uint64 Flags = 0)
{
	auto Property = std::make_unique<PropertyType>(FFieldVariant(), FName("Each"));
	Prepare(*Property);
	Property->SetPropertyFlags(static_cast<EPropertyFlags>(Flags));
	return Property;
}

FPropertyPtr MakeMap()
{
	return Make<FMapProperty>(
		[](FMapProperty& Map)
		{
		Map.KeyProp = new FNameProperty(&Map, TEXT("Key"));
		FObjectProperty* const Value = new FObjectProperty(&Map, TEXT("Value"));
		Value->PropertyClass = AActor::StaticClass();
		Map.ValueProp = Value;
	});
}
}

TEST(PinType, IsThatOfTheProperty)
{
	UEnum* const Enum = StaticEnum<ESpawnActorCollisionHandlingMethod>();
	const auto OfActors = [](auto& Property) { Property.PropertyClass = AActor::StaticClass(); };
	struct FCase
	{
		FPropertyPtr Property;
		const TCHAR* Expected;
	};
	const FCase Cases[] = {
		{ Make<FBoolProperty>(), TEXT("bool") },
		{ Make<FByteProperty>(), TEXT("byte") },
		{ Make<FByteProperty>([=](FByteProperty& Each) { Each.Enum = Enum; }), TEXT("byte(ESpawnActorCollisionHandlingMethod)") },
		{ Make<FEnumProperty>(
			  [=](FEnumProperty& Each)
			  {
			Each.SetEnum(Enum);
			Each.AddCppProperty(new FByteProperty(&Each, TEXT("Number")));
			Each.Link();
		}),
			TEXT("byte(ESpawnActorCollisionHandlingMethod)") },
		{ Make<FIntProperty>(), TEXT("int") },
		{ Make<FInt64Property>(), TEXT("int64") },
		{ Make<FFloatProperty>(), TEXT("real/float") },
		{ Make<FDoubleProperty>(), TEXT("real/double") },
		{ Make<FStrProperty>(), TEXT("string") },
		{ Make<FNameProperty>(), TEXT("name") },
		{ Make<FTextProperty>(), TEXT("text") },
		{ Make<FStructProperty>([](FStructProperty& Each) { Each.Struct = TBaseStructure<FVector>::Get(); }), TEXT("struct(Vector)") },
		{ Make<FObjectProperty>(OfActors), TEXT("object(Actor)") },
		{ Make<FWeakObjectProperty>(OfActors), TEXT("object(Actor)") },
		{ Make<FSoftObjectProperty>(OfActors), TEXT("softobject(Actor)") },
		{ Make<FClassProperty>([](FClassProperty& Each) { Each.MetaClass = AActor::StaticClass(); }), TEXT("class(Actor)") },
		{ Make<FSoftClassProperty>([](FSoftClassProperty& Each) { Each.MetaClass = AActor::StaticClass(); }), TEXT("softclass(Actor)") },
		{ Make<FInterfaceProperty>([](FInterfaceProperty& Each) { Each.InterfaceClass = UInterface::StaticClass(); }),
			TEXT("interface(Interface)") },
		{ Make<FDelegateProperty>(), TEXT("delegate") },
		{ Make<FMulticastInlineDelegateProperty>(), TEXT("mcdelegate") },
		{ Make<FArrayProperty>([](FArrayProperty& Each) { Each.Inner = new FFloatProperty(&Each, TEXT("Element")); }), TEXT("real/float[]") },
		{ Make<FSetProperty>([](FSetProperty& Each) { Each.ElementProp = new FStrProperty(&Each, TEXT("Element")); }), TEXT("string{}") },
		{ MakeMap(), TEXT("name{object(Actor)}") },
		{ Make<FIntProperty>([](FIntProperty&) {}, CPF_Parm | CPF_OutParm | CPF_ReferenceParm), TEXT("int&") },
		{ Make<FIntProperty>([](FIntProperty&) {}, CPF_Parm | CPF_OutParm), TEXT("int") },
		{ Make<FStrProperty>([](FStrProperty&) {}, CPF_Parm | CPF_OutParm | CPF_ReferenceParm | CPF_ConstParm), TEXT("string") },
	};
	for (const FCase& Each : Cases)
	{
		FEdGraphPinType Type;
		EXPECT_TRUE(UEdGraphSchema_K2::ConvertPropertyToPinType(Each.Property.get(), Type)) << TCHAR_TO_UTF8(Each.Expected);
		EXPECT_EQ(Describe(Type), Each.Expected);
		EXPECT_EQ(Type.bIsWeakPointer, Each.Property->IsA<FWeakObjectProperty>());
	}
	for (const FPropertyPtr& Property : { Make<FUInt32Property>(), Make<FInt8Property>(), FPropertyPtr() })
	{
		FEdGraphPinType Type = MakeType(UEdGraphSchema_K2::PC_Int);
		EXPECT_FALSE(UEdGraphSchema_K2::ConvertPropertyToPinType(Property.get(), Type));
		EXPECT_EQ(Type, FEdGraphPinType());
	}
}

TEST(PinType, NamesTheSignatureOfADelegate)
{
	const FLamp Lamp;
	FEdGraphPinType Type;
	ASSERT_TRUE(UEdGraphSchema_K2::ConvertPropertyToPinType(Lamp.Class->FindPropertyByName(TEXT("OnBroken")), Type));
	EXPECT_EQ(Type.PinSubCategoryMemberReference.MemberName, FName("OnBroken__DelegateSignature"));
	EXPECT_EQ(UEdGraphSchema_K2::FindDelegateSignature(Type, nullptr), Lamp.Class->FindFunctionByName(TEXT("OnBroken__DelegateSignature")));
	// One that belongs to no class.
	ASSERT_TRUE(UEdGraphSchema_K2::ConvertPropertyToPinType(AActor::StaticClass()->FindPropertyByName(TEXT("OnDestroyed")), Type));
	const UFunction* const Signature = UEdGraphSchema_K2::FindDelegateSignature(Type, nullptr);
	ASSERT_TRUE(Signature);
	EXPECT_TRUE(Signature->FindPropertyByName(TEXT("DestroyedActor")));
}

TEST(PinType, CanFlowIntoAnotherByTheRulesOfItsKind)
{
	using FSchema = UEdGraphSchema_K2;
	UClass* const Actor = AActor::StaticClass();
	UClass* const Component = UActorComponent::StaticClass();
	UEnum* const Enum = StaticEnum<ESpawnActorCollisionHandlingMethod>();
	FEdGraphPinType Float(FSchema::PC_Real, FSchema::PC_Float, nullptr, EPinContainerType::None, false, {});
	FEdGraphPinType Self(FSchema::PC_Object, FSchema::PSC_Self, nullptr, EPinContainerType::None, false, {});
	const auto Map = [](FName Key, FName Value)
	{
		FEdGraphPinType Type = MakeType(Key, nullptr, EPinContainerType::Map);
		Type.PinValueType.TerminalCategory = Value;
		return Type;
	};
	struct FCase
	{
		FEdGraphPinType From;
		FEdGraphPinType To;
		bool bThere;
		bool bBack;
	};
	const FCase Cases[] = {
		{ MakeType(FSchema::PC_Int), MakeType(FSchema::PC_Int), true, true },
		{ MakeType(FSchema::PC_Int), MakeType(FSchema::PC_Real), false, false },
		{ MakeType(FSchema::PC_Int), MakeType(FSchema::PC_Int64), false, false },
		{ MakeType(FSchema::PC_Name), MakeType(FSchema::PC_String), false, false },
		{ Float, MakeType(FSchema::PC_Real), true, true },
		{ MakeType(FSchema::PC_Byte, Enum), MakeType(FSchema::PC_Byte), true, false },
		{ MakeType(FSchema::PC_Byte, Enum), MakeType(FSchema::PC_Byte, StaticEnum<ETeleportType>()), false, false },
		{ MakeType(FSchema::PC_Object, Actor), MakeType(FSchema::PC_Object, UObject::StaticClass()), true, false },
		{ MakeType(FSchema::PC_Object, Actor), MakeType(FSchema::PC_Object, Component), false, false },
		{ MakeType(FSchema::PC_Object, Actor), MakeType(FSchema::PC_SoftObject, Actor), false, false },
		{ MakeType(FSchema::PC_Class, Actor), MakeType(FSchema::PC_Class, UObject::StaticClass()), true, false },
		{ Self, MakeType(FSchema::PC_Object, Actor), true, false },
		{ Self, MakeType(FSchema::PC_Object, Component), false, false },
		{ MakeType(FSchema::PC_Interface, UInterface::StaticClass()), MakeType(FSchema::PC_Object, UObject::StaticClass()), true, false },
		{ MakeType(FSchema::PC_Struct, TBaseStructure<FVector>::Get()), MakeType(FSchema::PC_Struct, TBaseStructure<FRotator>::Get()),
			false, false },
		{ MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Array), MakeType(FSchema::PC_Int), false, false },
		{ MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Array), MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Set), false,
			false },
		{ MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Array), MakeType(FSchema::PC_Wildcard, nullptr, EPinContainerType::Array),
			true, true },
		{ MakeType(FSchema::PC_Int), MakeType(FSchema::PC_Wildcard, nullptr, EPinContainerType::Array), false, false },
		{ MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Array), MakeType(FSchema::PC_Wildcard), true, true },
		{ Map(FSchema::PC_Name, FSchema::PC_Int), Map(FSchema::PC_Name, FSchema::PC_Int), true, true },
		{ Map(FSchema::PC_Name, FSchema::PC_Int), Map(FSchema::PC_Name, FSchema::PC_String), false, false },
	};
	const FLamp Lamp;
	for (const FCase& Each : Cases)
	{
		const std::string Trace = TCHAR_TO_UTF8(*(Describe(Each.From) + TEXT(" -> ") + Describe(Each.To)));
		EXPECT_EQ(Schema().ArePinTypesCompatible(Each.From, Each.To, Lamp.Class), Each.bThere) << Trace;
		EXPECT_EQ(Schema().ArePinTypesCompatible(Each.To, Each.From, Lamp.Class), Each.bBack) << Trace << ", back";
	}
}

TEST(PinDefault, IsCheckedByItsType)
{
	using FSchema = UEdGraphSchema_K2;
	UEnum* const Enum = StaticEnum<ESpawnActorCollisionHandlingMethod>();
	const FEdGraphPinType Vector = MakeType(FSchema::PC_Struct, TBaseStructure<FVector>::Get());
	struct FCase
	{
		FEdGraphPinType Type;
		TArray<const TCHAR*> Right;
		TArray<const TCHAR*> Wrong;
	};
	const FCase Cases[] = {
		{ MakeType(FSchema::PC_Boolean), { TEXT("true"), TEXT("False"), TEXT("0"), TEXT("") }, { TEXT("maybe"), TEXT("2") } },
		{ MakeType(FSchema::PC_Int), { TEXT("0"), TEXT("-12"), TEXT("+7"), TEXT(" 5 "), TEXT("2147483647"), TEXT("") },
			{ TEXT("2147483648"), TEXT("1.5"), TEXT("a"), TEXT("-"), TEXT("1 2"), TEXT("0x10") } },
		{ MakeType(FSchema::PC_Int64), { TEXT("-9223372036854775808"), TEXT("9223372036854775807") },
			{ TEXT("9223372036854775808"), TEXT("99999999999999999999999999") } },
		{ MakeType(FSchema::PC_Byte), { TEXT("0"), TEXT("255") }, { TEXT("256"), TEXT("-1") } },
		{ MakeType(FSchema::PC_Byte, Enum), { TEXT("AlwaysSpawn"), TEXT("ESpawnActorCollisionHandlingMethod::AlwaysSpawn") },
			{ TEXT("Never"), TEXT("1") } },
		{ MakeType(FSchema::PC_Real), { TEXT("0.5"), TEXT("-.5"), TEXT("5."), TEXT("1e-7"), TEXT("2.0f"), TEXT("7") },
			{ TEXT("."), TEXT("1e"), TEXT("nan"), TEXT("inf"), TEXT("1,5"), TEXT("0x1p3") } },
		{ MakeType(FSchema::PC_String), { TEXT("anything (at all") }, {} },
		{ MakeType(FSchema::PC_Name), { TEXT("None") }, {} },
		{ Vector, { TEXT("1, 2.5, -3"), TEXT("(X=1,Y=2,Z=3)"), TEXT("(X=1)") },
			{ TEXT("1,2"), TEXT("1,2,3,4"), TEXT("(X=1"), TEXT("up") } },
		{ MakeType(FSchema::PC_Struct, TBaseStructure<FLinearColor>::Get()), { TEXT("(R=0.5,G=0,B=0,A=1)") },
			{ TEXT("red"), TEXT("(R=1) x") } },
		{ MakeType(FSchema::PC_Object, AActor::StaticClass()), { TEXT("") }, { TEXT("/Game/Lamp") } },
		{ MakeType(FSchema::PC_SoftObject, AActor::StaticClass()), { TEXT("/Game/Lamp.Lamp") }, {} },
		{ MakeType(FSchema::PC_Int, nullptr, EPinContainerType::Array), { TEXT("") }, { TEXT("(1,2)") } },
	};
	for (const FCase& Each : Cases)
	{
		for (const TArray<const TCHAR*>* const Texts : { &Each.Right, &Each.Wrong })
		{
			for (const TCHAR* const Text : *Texts)
			{
				FString Message;
				const bool bRight = Schema().DefaultValueSimpleValidation(Each.Type, TEXT("Pin"), Text, nullptr, FText(), &Message);
				EXPECT_EQ(bRight, Texts == &Each.Right) << TCHAR_TO_UTF8(*Describe(Each.Type)) << " " << TCHAR_TO_UTF8(Text);
				EXPECT_EQ(Message.IsEmpty(), bRight);
			}
		}
	}
	const FEdGraphPinType ActorClass = MakeType(FSchema::PC_Class, AActor::StaticClass());
	EXPECT_TRUE(Schema().DefaultValueSimpleValidation(ActorClass, TEXT("Pin"), FString(), AActor::StaticClass(), FText()));
	EXPECT_FALSE(Schema().DefaultValueSimpleValidation(ActorClass, TEXT("Pin"), FString(), UObject::StaticClass(), FText()));
}
