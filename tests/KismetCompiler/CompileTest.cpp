#include "BlueprintSupport.h"
#include "Components/StaticMeshComponent.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_IfThenElse.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Kismet2/CompilerResultsLog.h"
#include "UObject/Interface.h"
#include "UObject/NoExportTypes.h"

#include <functional>

namespace
{
using FSchema = UEdGraphSchema_K2;

/** "name(Type In, out Type Out)" */
FString Describe(const UFunction* Function)
{
	TArray<FString> Parameters;
	for (TFieldIterator<FProperty> Property(Function, EFieldIterationFlags::None); Property; ++Property)
	{
		const TCHAR* const Kind = Property->HasAnyPropertyFlags(CPF_ReturnParm) ? TEXT("return ")
			: Property->HasAnyPropertyFlags(CPF_OutParm)                        ? TEXT("out ")
			: Property->HasAnyPropertyFlags(CPF_Parm)                           ? TEXT("")
																				: TEXT("local ");
		Parameters.Add(Kind + Property->GetTypeTag().ToString() + TEXT(" ") + Property->GetName());
	}
	return Function->GetName() + TEXT("(") + FString::Join(Parameters, TEXT(", ")) + TEXT(")");
}
}

TEST_F(Blueprints, VariablesBecomePropertiesOfTheirTypesWithTheirDefaults)
{
	UBlueprint* const Blueprint = Make(TEXT("Types"));
	FEdGraphPinType Float = Type(FSchema::PC_Real);
	Float.PinSubCategory = FSchema::PC_Float;
	FEdGraphPinType Self = Type(FSchema::PC_Object);
	Self.PinSubCategory = FSchema::PSC_Self;
	FEdGraphPinType Map = Type(FSchema::PC_Name, nullptr, EPinContainerType::Map);
	Map.PinValueType.TerminalCategory = FSchema::PC_Int;
	UScriptStruct* const Vector = TBaseStructure<FVector>::Get();
	const struct
	{
		const TCHAR* Name;
		FEdGraphPinType Type;
		const TCHAR* Tag;
		const TCHAR* Text;
		const TCHAR* Value;
	} Cases[] = {
		{ TEXT("Open"), Type(FSchema::PC_Boolean), TEXT("BoolProperty"), TEXT("true"), TEXT("True") },
		{ TEXT("Small"), Type(FSchema::PC_Byte), TEXT("ByteProperty"), TEXT("200"), TEXT("200") },
		{ TEXT("Count"), Type(FSchema::PC_Int), TEXT("IntProperty"), TEXT("-5"), TEXT("-5") },
		{ TEXT("Big"), Type(FSchema::PC_Int64), TEXT("Int64Property"), TEXT("5000000000"), TEXT("5000000000") },
		{ TEXT("Real"), Type(FSchema::PC_Real), TEXT("DoubleProperty"), TEXT("0.25"), TEXT("0.250000") },
		{ TEXT("Float"), Float, TEXT("FloatProperty"), TEXT("0.5"), TEXT("0.500000") },
		{ TEXT("Title"), Type(FSchema::PC_String), TEXT("StrProperty"), TEXT("a \"b\""), TEXT("a \"b\"") },
		{ TEXT("Tag"), Type(FSchema::PC_Name), TEXT("NameProperty"), TEXT("Door"), TEXT("Door") },
		{ TEXT("Label"), Type(FSchema::PC_Text), TEXT("TextProperty"), TEXT("Hello"), TEXT("Hello") },
		{ TEXT("Place"), Type(FSchema::PC_Struct, Vector), TEXT("StructProperty<Vector>"), TEXT("(X=1,Z=3)"),
			TEXT("(X=1.000000,Y=0.000000,Z=3.000000)") },
		{ TEXT("Short"), Type(FSchema::PC_Struct, Vector), TEXT("StructProperty<Vector>"), TEXT("1, 2,3"),
			TEXT("(X=1.000000,Y=2.000000,Z=3.000000)") },
		{ TEXT("Collision"), Type(FSchema::PC_Byte, StaticEnum<EComponentMobility::Type>()), nullptr, TEXT("Stationary"),
			TEXT("Stationary") },
		{ TEXT("Mesh"), Type(FSchema::PC_Object, UStaticMeshComponent::StaticClass()), TEXT("ObjectProperty"), TEXT(""), TEXT("None") },
		{ TEXT("Next"), Self, TEXT("ObjectProperty"), TEXT(""), TEXT("None") },
		{ TEXT("Kind"), Type(FSchema::PC_Class, AActor::StaticClass()), TEXT("ClassProperty"), TEXT("/Script/Engine.Pawn"),
			TEXT("/Script/CoreUObject.Class'/Script/Engine.Pawn'") },
		{ TEXT("Asset"), Type(FSchema::PC_SoftObject, UObject::StaticClass()), TEXT("SoftObjectProperty"), TEXT("/Game/A.A"),
			TEXT("/Game/A.A") },
		{ TEXT("Asset2"), Type(FSchema::PC_SoftClass, AActor::StaticClass()), TEXT("SoftClassProperty"), TEXT(""), TEXT("None") },
		{ TEXT("List"), Type(FSchema::PC_Int, nullptr, EPinContainerType::Array), TEXT("ArrayProperty<IntProperty>"), TEXT("(1,2)"),
			TEXT("(1,2)") },
		{ TEXT("Names"), Type(FSchema::PC_Name, nullptr, EPinContainerType::Set), TEXT("SetProperty<NameProperty>"), TEXT("(\"a\")"),
			TEXT("(\"a\")") },
		{ TEXT("Counts"), Map, TEXT("MapProperty<NameProperty,IntProperty>"), TEXT("((\"a\", 1))"), TEXT("((\"a\", 1))") },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_TRUE(FUtils::AddMemberVariable(Blueprint, Case.Name, Case.Type, Case.Text));
	}
	UClass* const Class = Blueprint->GeneratedClass;
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	EXPECT_EQ(Blueprint->GeneratedClass, Class) << "the class is made anew, it is not another one";
	for (const auto& Case : Cases)
	{
		const FProperty* const Property = Class->FindPropertyByName(Case.Name);
		ASSERT_TRUE(Property) << TCHAR_TO_UTF8(Case.Name);
		EXPECT_EQ(Value(Blueprint, Case.Name), Case.Value) << TCHAR_TO_UTF8(Case.Name);
		EXPECT_TRUE(!Case.Tag || Property->GetTypeTag().ToString() == Case.Tag) << TCHAR_TO_UTF8(*Property->GetTypeTag().ToString());
	}
	EXPECT_EQ(FindFProperty<FObjectProperty>(Class, TEXT("Next"))->PropertyClass, Class);
	EXPECT_TRUE(FindFProperty<FObjectProperty>(Class, TEXT("Mesh"))->HasAnyPropertyFlags(CPF_InstancedReference));
}

TEST_F(Blueprints, APropertyHasWhatTheDescriptionSays)
{
	UBlueprint* const Blueprint = Make(TEXT("Described"));
	AddInt(Blueprint, TEXT("Health"));
	FBPVariableDescription& Health = Variable(Blueprint, TEXT("Health"));
	EXPECT_EQ(Health.PropertyFlags, 0x10005u);
	Health.PropertyFlags |= CPF_Net | CPF_RepNotify | CPF_SaveGame;
	Health.RepNotifyFunc = FName(TEXT("OnRep_Health"));
	Health.Category = FText::FromString(TEXT("Stats"));
	Health.SetMetaData(TEXT("Tooltip"), TEXT("Hit points"));
	Compile(Blueprint);
	const FProperty* const Property = Blueprint->GeneratedClass->FindPropertyByName(TEXT("Health"));
	EXPECT_EQ(static_cast<uint64>(Property->GetPropertyFlags()), 0x10005ull | CPF_Net | CPF_RepNotify | CPF_SaveGame);
	EXPECT_EQ(Property->RepNotifyFunc, FName(TEXT("OnRep_Health")));
	EXPECT_EQ(Property->GetMetaData(TEXT("Category")), TEXT("Stats"));
	EXPECT_EQ(Property->GetMetaData(TEXT("Tooltip")), TEXT("Hit points"));
	EXPECT_EQ(Property->GetOwnerClass(), Blueprint->GeneratedClass);
	EXPECT_TRUE(Blueprint->GeneratedClass->HasAnyClassFlags(CLASS_CompiledFromBlueprint));
}

TEST_F(Blueprints, GraphsAndEventsBecomeFunctions)
{
	UBlueprint* const Blueprint = Make(TEXT("Functions"));
	UClass* const Class = Blueprint->GeneratedClass;
	EXPECT_FALSE(Class->FindFunctionByName(TEXT("ReceiveTick"), false)) << "the event is there, but disabled";

	UEdGraph* const Graph = AddFunction(Blueprint, TEXT("Open"));
	auto* const Entry = Find<UK2Node_FunctionEntry>(Graph);
	Entry->CreateUserDefinedPin(TEXT("Speed"), Type(FSchema::PC_Real), EGPD_Output);
	Entry->MetaData.Category = FText::FromString(TEXT("Doors"));
	Entry->LocalVariables.AddDefaulted_GetRef().VarName = FName(TEXT("Step"));
	Entry->LocalVariables[0].VarType = Type(FSchema::PC_Int);
	auto* const Exit = AddNode<UK2Node_FunctionResult>(Graph);
	Exit->CreateUserDefinedPin(TEXT("Opened"), Type(FSchema::PC_Boolean), EGPD_Input);
	Exit->CreateUserDefinedPin(FSchema::PN_ReturnValue, Type(FSchema::PC_Int), EGPD_Input);
	auto* const Custom = AddNode<UK2Node_CustomEvent>(FUtils::FindEventGraph(Blueprint));
	Custom->CustomFunctionName = FName(TEXT("Ring"));
	Custom->CreateUserDefinedPin(TEXT("Times"), Type(FSchema::PC_Int), EGPD_Output);
	for (UEdGraphNode* const Node : FUtils::FindEventGraph(Blueprint)->Nodes)
	{
		Node->SetEnabledState(ENodeEnabledState::Enabled);
	}
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);

	const UFunction* const Open = Class->FindFunctionByName(TEXT("Open"), false);
	ASSERT_TRUE(Open);
	EXPECT_EQ(Describe(Open),
		TEXT("Open(DoubleProperty Speed, out BoolProperty Opened, return IntProperty ReturnValue, local IntProperty Step)"));
	EXPECT_TRUE(Open->FunctionFlags == (FUNC_Public | FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_HasOutParms));
	EXPECT_EQ(Open->GetMetaData(TEXT("Category")), TEXT("Doors"));
	const UFunction* const Ring = Class->FindFunctionByName(TEXT("Ring"), false);
	ASSERT_TRUE(Ring);
	EXPECT_EQ(Describe(Ring), TEXT("Ring(IntProperty Times)"));
	const UFunction* const Tick = Class->FindFunctionByName(TEXT("ReceiveTick"), false);
	ASSERT_TRUE(Tick);
	EXPECT_EQ(Describe(Tick), TEXT("ReceiveTick(FloatProperty DeltaSeconds)"));
	EXPECT_TRUE(Tick->HasAnyFunctionFlags(FUNC_BlueprintEvent));
	const UFunction* const All = Class->FindFunctionByName(TEXT("ExecuteUbergraph_Functions"), false);
	ASSERT_TRUE(All);
	EXPECT_FALSE(All->HasAnyFunctionFlags(FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_BlueprintPure));
}

TEST_F(Blueprints, ComponentsTimelinesAndInterfacesAreTakenOver)
{
	UBlueprint* const Interface = Make(TEXT("Usable"), UInterface::StaticClass(), BPTYPE_Interface);
	AddFunction(Interface, TEXT("Use"));
	EXPECT_EQ(Compile(Interface), BS_UpToDate);
	UBlueprint* const Blueprint = Make(TEXT("Whole"));
	UClass* const Class = Blueprint->GeneratedClass;
	USCS_Node* const Lamp = Blueprint->SimpleConstructionScript->CreateNode(UStaticMeshComponent::StaticClass(), TEXT("Lamp"));
	Blueprint->SimpleConstructionScript->AddNode(Lamp);
	UTimelineTemplate* const Timeline = FUtils::AddNewTimeline(Blueprint, TEXT("Fade"));
	Timeline->FloatTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Alpha"), Timeline);
	const FName Track = Timeline->FloatTracks[0].GetPropertyName();
	EXPECT_TRUE(FUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass.Get()));
	EXPECT_FALSE(FUtils::ImplementNewInterface(Blueprint, Interface->GeneratedClass.Get()));
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);

	const auto* const Property = FindFProperty<FObjectProperty>(Class, TEXT("Lamp"));
	ASSERT_TRUE(Property);
	EXPECT_EQ(Property->PropertyClass, UStaticMeshComponent::StaticClass());
	EXPECT_TRUE(Property->HasAllPropertyFlags(CPF_BlueprintVisible | CPF_InstancedReference));
	EXPECT_FALSE(Class->FindPropertyByName(TEXT("DefaultSceneRoot"))) << "Lamp is the root now";
	EXPECT_TRUE(FindFProperty<FFloatProperty>(Class, Track));
	EXPECT_TRUE(FindFProperty<FObjectProperty>(Class, TEXT("Fade")));
	EXPECT_TRUE(Class->ImplementsInterface(Interface->GeneratedClass));
	EXPECT_FALSE(FUtils::AddNewTimeline(Blueprint, TEXT("fade"))) << "there is one";
}

TEST_F(Blueprints, AnEventDispatcherKeepsTheSignatureThatItWasGiven)
{
	UBlueprint* const Blueprint = Make(TEXT("Dispatcher"));
	UClass* const Class = Blueprint->GeneratedClass;
	EXPECT_TRUE(FUtils::AddMemberVariable(Blueprint, TEXT("OnRung"), Type(FSchema::PC_Delegate)));
	UFunction* const Given = NewObject<UFunction>(Class, TEXT("OnRung_Signature"), RF_Public | RF_Transient);
	auto* const Times = new FIntProperty(Given, TEXT("Times"), RF_Public);
	Times->SetPropertyFlags(CPF_Parm);
	Given->AddCppProperty(Times);
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	Given->MarkAsGarbage();
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	CollectGarbage(RF_Standalone);
	const auto* const Property = FindFProperty<FMulticastDelegateProperty>(Class, TEXT("OnRung"));
	ASSERT_TRUE(Property && Property->SignatureFunction);
	EXPECT_EQ(Describe(Property->SignatureFunction), TEXT("OnRung__DelegateSignature(IntProperty Times)"));
	EXPECT_TRUE(Property->HasAllPropertyFlags(CPF_BlueprintAssignable | CPF_BlueprintCallable));
}

TEST_F(Blueprints, FaultsAreLoggedAndTheClassIsThereAllTheSame)
{
	const struct
	{
		const TCHAR* Name;
		std::function<void(UBlueprint*)> Break;
		const TCHAR* Message;
		EBlueprintStatus Status = BS_Error;
	} Cases[] = {
		{ TEXT("OddCast"),
			[](UBlueprint* It)
			{
				auto* const Cast = AddNode<UK2Node_DynamicCast>(FUtils::FindEventGraph(It));
				Cast->TargetType = AActor::StaticClass();
				Cast->ReconstructNode();
			},
			TEXT("has no object to cast"), BS_UpToDateWithWarnings },
		{ TEXT("NoFunction"), [](UBlueprint* It) { AddNode<UK2Node_CallFunction>(FUtils::FindEventGraph(It)); }, TEXT("function") },
		{ TEXT("NoVariable"),
			[](UBlueprint* It)
			{
				GetDefault<FSchema>()->SpawnVariableGetNode(FVector2D(), FUtils::FindEventGraph(It), TEXT("Lost"), nullptr);
			},
			TEXT("Lost") },
		{ TEXT("NoType"), [](UBlueprint* It) { It->NewVariables.AddDefaulted_GetRef().VarName = FName(TEXT("Odd")); },
			TEXT("The type of the variable Odd") },
		{ TEXT("GoneType"),
			[](UBlueprint* It) { FUtils::AddMemberVariable(It, TEXT("Odd"), Type(FSchema::PC_Struct)); },
			TEXT("The type of the variable Odd") },
		{ TEXT("BadDefault"), [](UBlueprint* It) { AddInt(It, TEXT("Odd"), TEXT("5 apples")); }, TEXT("5 apples") },
		{ TEXT("NoParent"), [](UBlueprint* It) { It->ParentClass = nullptr; }, TEXT("parent class") },
		{ TEXT("OwnParent"), [](UBlueprint* It) { It->ParentClass = It->GeneratedClass; }, TEXT("can't derive from") },
		{ TEXT("NoEntry"),
			[](UBlueprint* It)
			{
				It->FunctionGraphs.Add(FUtils::CreateNewGraph(It, TEXT("Empty"), UEdGraph::StaticClass(), FSchema::StaticClass()));
			},
			TEXT("Empty has no entry") },
		{ TEXT("TwoFunctions"),
			[](UBlueprint* It)
			{
				AddFunction(It, TEXT("Twice"));
				AddNode<UK2Node_CustomEvent>(FUtils::FindEventGraph(It))->CustomFunctionName = FName(TEXT("Twice"));
			},
			TEXT("name of the function Twice is taken") },
		{ TEXT("BadLink"),
			[](UBlueprint* It)
			{
				auto* const Event = AddNode<UK2Node_CustomEvent>(FUtils::FindEventGraph(It));
				Event->CustomFunctionName = FName(TEXT("Go"));
				Event->CreateUserDefinedPin(TEXT("Where"), Type(FSchema::PC_Struct, TBaseStructure<FVector>::Get()), EGPD_Output)
					->MakeLinkTo(AddNode<UK2Node_IfThenElse>(FUtils::FindEventGraph(It))->FindPin(FSchema::PN_Condition));
			},
			TEXT("does not fit") },
		{ TEXT("SameSide"),
			[](UBlueprint* It)
			{
				auto* const Branch = AddNode<UK2Node_IfThenElse>(FUtils::FindEventGraph(It));
				Branch->FindPin(FSchema::PN_Condition)
					->MakeLinkTo(AddNode<UK2Node_IfThenElse>(FUtils::FindEventGraph(It))->FindPin(FSchema::PN_Condition));
			},
			TEXT("same side") },
		{ TEXT("BadPinDefault"),
			[](UBlueprint* It)
			{
				AddNode<UK2Node_IfThenElse>(FUtils::FindEventGraph(It))->FindPin(FSchema::PN_Condition)->DefaultValue = TEXT("maybe");
			},
			TEXT("maybe") },
	};
	for (const auto& Case : Cases)
	{
		UBlueprint* const Blueprint = Make(Case.Name);
		AddInt(Blueprint, TEXT("Sound"), TEXT("7"));
		Compile(Blueprint);
		UClass* const Parent = Blueprint->ParentClass;
		const int32 Variables = Blueprint->NewVariables.Num();
		Case.Break(Blueprint);
		Log.Lines.Empty();
		FCompilerResultsLog Results;
		FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::None, &Results);
		EXPECT_EQ(Blueprint->Status, Case.Status) << TCHAR_TO_UTF8(Case.Name);
		EXPECT_EQ(Results.NumErrors > 0, Case.Status == BS_Error) << TCHAR_TO_UTF8(Case.Name);
		EXPECT_TRUE(Log.HasLineWith(Case.Message))
			<< TCHAR_TO_UTF8(Case.Name) << " " << TCHAR_TO_UTF8(*FString::Join(Log.Lines, TEXT("\n")));
		EXPECT_EQ(Value(Blueprint, TEXT("Sound")), TEXT("7")) << TCHAR_TO_UTF8(Case.Name);

		Blueprint->ParentClass = Parent;
		Blueprint->NewVariables.SetNum(Variables);
		FUtils::FindEventGraph(Blueprint)->Nodes.Empty();
		Blueprint->FunctionGraphs.SetNum(1);
		EXPECT_EQ(Compile(Blueprint), BS_UpToDate) << TCHAR_TO_UTF8(Case.Name) << " repaired";
	}
}
