#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"
#include "TestKinds.h"
#include "UObject/UnrealType.h"

namespace
{
using Schema = UEdGraphSchema_K2;
const std::string Default = R"({"Category":"None","SubCategory":"None","Container":"None","Flags":[]})";
const std::string Bool = R"({"Category":"bool","SubCategory":"None","Container":"None","Flags":[]})";
const std::string Real = R"({"Category":"real","SubCategory":"double","Container":"None","Flags":[]})";

std::string Of(const std::string& Category, const std::string& Object = "", const std::string& Container = "None")
{
	return R"({"Category":")" + Category + R"(","SubCategory":"None",)" +
		(Object.empty() ? "" : R"("SubCategoryObject":")" + Object + R"(",)") + R"("Container":")" + Container + R"(","Flags":[]})";
}

FEdGraphPinType Map(FEdGraphPinType Key, const FEdGraphPinType& Value)
{
	Key.ContainerType = EPinContainerType::Map;
	Key.PinValueType = FEdGraphTerminalType::FromPinType(Value);
	return Key;
}

FEdGraphPinType WithFlags(FEdGraphPinType Type, bool bReference, bool bConst, bool bWeak, bool bWrapper)
{
	Type.bIsReference = bReference;
	Type.bIsConst = bConst;
	Type.bIsWeakPointer = bWeak;
	Type.bIsUObjectWrapper = bWrapper;
	return Type;
}
}

TEST(PinType, IsWrittenWithItsKeysInOrderAndReadBack)
{
	const FEdGraphPinType Actor = PinType(Schema::PC_Object, AActor::StaticClass());
	const struct
	{
		FEdGraphPinType Type;
		std::string Json;
	} Cases[] = {
		{ FEdGraphPinType(), Default },
		{ PinType(Schema::PC_Boolean), Bool },
		{ PinType(Schema::PC_Real), Real },
		{ PinType(Schema::PC_Struct, TBaseStructure<FVector>::Get(), EPinContainerType::Array),
			Of("struct", "/Script/CoreUObject.Vector", "Array") },
		{ PinType(Schema::PC_Name, nullptr, EPinContainerType::Set), Of("name", "", "Set") },
		{ PinType(Schema::PC_Name, nullptr, EPinContainerType::Map), Of("name", "", "Map") },
		{ Map(PinType(Schema::PC_Name), PinType(Schema::PC_Real)),
			R"({"Category":"name","SubCategory":"None","Container":"Map","ValueType":{"Category":"real","SubCategory":"double"},"Flags":[]})" },
		{ Map(Actor, Actor),
			R"({"Category":"object","SubCategory":"None","SubCategoryObject":"/Script/Engine.Actor","Container":"Map",)"
			R"("ValueType":{"Category":"object","SubCategory":"None","SubCategoryObject":"/Script/Engine.Actor"},"Flags":[]})" },
		{ WithFlags(Actor, true, true, true, true),
			R"({"Category":"object","SubCategory":"None","SubCategoryObject":"/Script/Engine.Actor","Container":"None",)"
			R"("Flags":["Reference","Const","Weak","UObjectWrapper"]})" },
		{ WithFlags(PinType(Schema::PC_String), false, true, false, true),
			R"({"Category":"string","SubCategory":"None","Container":"None","Flags":["Const","UObjectWrapper"]})" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FAccess::Write(Case.Type), Case.Json);
		EXPECT_TRUE(FAccess::ReadPinType(R"({"Type":)" + Case.Json + "}") == Case.Type) << Case.Json;
	}
	FEdGraphPinType NoMap = Map(PinType(Schema::PC_Name), Actor);
	NoMap.ContainerType = EPinContainerType::Set;
	EXPECT_EQ(FAccess::Write(NoMap), Of("name", "", "Set")) << "only a map has a type of values";
}

TEST(PinType, IsReadAsFarAsItCanBeUnderstood)
{
	const struct
	{
		std::string Json;
		std::string Type;
	} Cases[] = {
		{ "{}", Default },
		{ Bool, Default },
		{ R"({"Type":"bool"})", Default },
		{ R"({"Type":{}})", Default },
		{ R"({"type":{"category":"bool","container":"ARRAY","flags":["const","WEAK"]}})",
			R"({"Category":"bool","SubCategory":"None","Container":"Array","Flags":["Const","Weak"]})" },
		{ R"({"Type":{"Category":"No Such Thing","SubCategory":"None"}})", Of("No Such Thing") },
		{ R"({"Type":{"Category":"object","SubCategoryObject":"/Game/Not.Loaded"}})", Of("object") },
		{ R"({"Type":{"Category":"object","SubCategoryObject":""}})", Of("object") },
		{ R"({"Type":{"Category":"int","Container":"Dictionary"}})", Of("int") },
		{ R"({"Type":{"Category":"int","Container":"Array","ValueType":{"Category":"int"}}})", Of("int", "", "Array") },
		{ R"({"Type":{"Category":"int","Container":"Map","ValueType":"int"}})", Of("int", "", "Map") },
		{ R"({"Type":{"Category":"int","Flags":"Const"}})", Of("int") },
		{ R"({"Type":{"Category":"int","Flags":["Volatile",1,null,{},"reference"]}})",
			R"({"Category":"int","SubCategory":"None","Container":"None","Flags":["Reference"]})" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FAccess::Write(FAccess::ReadPinType(Case.Json)), Case.Type) << Case.Json;
	}
}

TEST(PinType, OfAPropertyIsTheSchemas)
{
	const auto Write = [](const TCHAR* Name) { return FAccess::Write(UTestKinds::StaticClass()->FindPropertyByName(Name)); };
	EXPECT_EQ(FAccess::Write(static_cast<FProperty*>(nullptr)), Default);
	EXPECT_EQ(Write(TEXT("Place")), Of("struct", "/Script/CoreUObject.Vector"));
	EXPECT_EQ(Write(TEXT("Counts")),
		R"({"Category":"name","SubCategory":"None","Container":"Map","ValueType":{"Category":"int","SubCategory":"None"},"Flags":[]})");
	EXPECT_EQ(Write(TEXT("Soft")), Of("softobject", "/Script/TestObjects.TestKinds"));
}

TEST(PropertyType, GivesThePinTypeOfItsRow)
{
	const struct
	{
		const char* Json;
		std::string Type;
	} Cases[] = {
		{ R"({"Type":"BoolProperty"})", Bool },
		{ R"({"type":"BOOLPROPERTY"})", Bool },
		{ R"({"Type":"ByteProperty"})", Of("byte") },
		{ R"({"Type":"IntProperty"})", Of("int") },
		{ R"({"Type":"Int64Property"})", Of("int64") },
		{ R"({"Type":"FloatProperty"})", Real },
		{ R"({"Type":"DoubleProperty"})", Real },
		{ R"({"Type":"NameProperty"})", Of("name") },
		{ R"({"Type":"StrProperty"})", Of("string") },
		{ R"({"Type":"TextProperty"})", Of("text") },
		{ R"({"Type":"EnumProperty","EnumType":"/Script/Kestrin.EKestrinMode"})", Of("byte", "/Script/Kestrin.EKestrinMode") },
		{ R"({"Type":"EnumProperty","EnumType":"/Script/Kestrin.ENone"})", Default },
		{ R"({"Type":"EnumProperty","EnumType":"/Script/Engine.Actor"})", Default },
		{ R"({"Type":"EnumProperty","EnumType":""})", Default },
		{ R"({"Type":"EnumProperty"})", Default },
		{ R"({"Type":"StructProperty","StructType":"vector"})", Of("struct", "/Script/CoreUObject.Vector") },
		{ R"({"Type":"StructProperty","StructType":"Rotator"})", Of("struct", "/Script/CoreUObject.Rotator") },
		{ R"({"Type":"StructProperty","StructType":"TRANSFORM"})", Of("struct", "/Script/CoreUObject.Transform") },
		{ R"({"Type":"StructProperty","StructType":"/Script/CoreUObject.LinearColor"})", Of("struct", "/Script/CoreUObject.LinearColor") },
		{ R"({"Type":"StructProperty","StructType":"LinearColor"})", Default },
		{ R"({"Type":"StructProperty","StructType":""})", Default },
		{ R"({"Type":"ObjectProperty","PropertyClass":"/Script/Engine.Actor"})", Of("object", "/Script/Engine.Actor") },
		{ R"({"Type":"ObjectProperty","PropertyClass":"/Script/TestObjects.TestGreeter"})",
			Of("interface", "/Script/TestObjects.TestGreeter") },
		{ R"({"Type":"ObjectProperty","PropertyClass":"/Game/No.No_C"})", Default },
		{ R"({"Type":"ObjectProperty","PropertyClass":""})", Default },
		{ R"({"Type":"ObjectProperty"})", Default },
		{ R"({"Type":"SoftObjectProperty","PropertyClass":"/Script/Engine.Actor"})", Of("softobject", "/Script/Engine.Actor") },
		{ R"({"Type":"ClassProperty","PropertyClass":"/Script/Engine.Actor"})", Of("class", "/Script/Engine.Actor") },
		{ R"({"Type":"ClassProperty","PropertyClass":"/Script/TestObjects.TestGreeter"})", Of("class", "/Script/TestObjects.TestGreeter") },
		{ R"({"Type":"SoftClassProperty","PropertyClass":"/Script/Engine.Actor"})", Of("softclass", "/Script/Engine.Actor") },
		{ R"({"Type":"ArrayProperty","InnerType":{"Type":"NameProperty"}})", Of("name", "", "Array") },
		{ R"({"Type":"ArrayProperty","InnerType":{"Type":"ArrayProperty","InnerType":{"Type":"NameProperty"}}})", Of("name", "", "Array") },
		{ R"({"Type":"ArrayProperty","InnerType":{"Type":"NoProperty"}})", Of("None", "", "Array") },
		{ R"({"Type":"ArrayProperty","InnerType":"NameProperty"})", Default },
		{ R"({"Type":"ArrayProperty"})", Default },
		{ R"({"Type":"SetProperty","InnerType":{"Type":"NameProperty"}})", Default },
		{ R"({"Type":"MapProperty"})", Default },
		{ R"({"Type":"bool"})", Default },
		{ R"({"Type":{"Type":"BoolProperty"}})", Default },
		{ "{}", Default },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FAccess::Write(FAccess::ReadPropertyType(Case.Json)), Case.Type) << Case.Json;
	}
}

class PropertyTypeOfAssets : public FBlueprintTest
{
};

TEST_F(PropertyTypeOfAssets, LoadsTheClassThatAPinTypeOnlyLooksFor)
{
	FTestBlueprint(TEXT("/Game/Doors/BP_Door"), AActor::StaticClass()).Save();
	Forget();
	const std::string Path = "/Game/Doors/BP_Door.BP_Door_C";
	EXPECT_EQ(FAccess::Write(FAccess::ReadPinType(R"({"Type":{"Category":"object","SubCategoryObject":")" + Path + "\"}}")), Of("object"));
	EXPECT_EQ(
		FAccess::Write(FAccess::ReadPropertyType(R"({"Type":"ObjectProperty","PropertyClass":")" + Path + "\"}")), Of("object", Path));
}
