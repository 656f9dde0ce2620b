#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "Animation/AnimSequence.h"
#include "Components/PointLightComponent.h"
#include "Curves/CurveFloat.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"
#include "UObject/UnrealType.h"

// The sections that no document reaches.

namespace
{
class ModificationSection : public FBlueprintTest
{
protected:
	struct FCase
	{
		std::string Entries;
		/** "changed " or "same ", and the result object. */
		std::string Answer;
	};
	void Check(FAccess::FSectionOperation Operation, const std::vector<FCase>& Cases, UBlueprint* Blueprint = nullptr) const
	{
		for (const FCase& Case : Cases)
		{
			EXPECT_EQ(FAccess::Apply(Operation, Blueprint ? Blueprint : Lamp.Get(), Case.Entries), Case.Answer) << Case.Entries;
		}
	}

	const FTestBlueprint Lamp{ TEXT("/Game/BP_Lamp"), AActor::StaticClass() };
};
}

TEST_F(ModificationSection, NeedsABlueprintOfItsKind)
{
	const FTestBlueprint Plain(TEXT("/Game/BP_Plain"));
	const std::string Invalid = R"(same {"Error":"Invalid Blueprint provided."})";
	for (const FAccess::FSectionOperation Operation : { FAccess::Functions, FAccess::Graphs, FAccess::Components, FAccess::Interfaces,
			 FAccess::Delegates, FAccess::Timelines, FAccess::Animations })
	{
		EXPECT_EQ(FAccess::Apply(Operation, nullptr, "[]"), Invalid);
	}
	Check(FAccess::Components, { { "[{}]", R"(same {"Error":"Blueprint does not have a SimpleConstructionScript."})" } }, Plain.Get());
	Check(FAccess::Animations, { { "[{}]", R"(same {"Error":"Blueprint is not an Animation Blueprint."})" } });
}

TEST_F(ModificationSection, OfGraphs)
{
	Check(FAccess::Graphs,
		{
			{ R"([{"Name":"G"},{"Type":"EventGraph"},"G"])",
				R"(same {"GraphModifications":["Graph entry missing 'Name' or 'Type' field.","Graph entry missing 'Name' or 'Type' field.",)"
				R"("Graph entry missing 'Name' or 'Type' field."]})" },
			{ R"([{"Name":"EventGraph","Type":"Macro"}])", R"(same {"GraphModifications":["Invalid graph type: Macro"]})" },
			{ R"([{"Name":"eventgraph","Type":"EVENTGRAPH"}])", R"(same {"GraphModifications":["Modified existing graph: eventgraph"]})" },
			{ R"([{"Name":"UserConstructionScript","Type":"EventGraph"}])",
				R"(same {"GraphModifications":["Failed to create graph: UserConstructionScript"]})" },
			{ R"([{"Name":"Night","Type":"eventgraph","Nodes":[{"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"PrintString"}}]}])",
				R"(changed {"GraphModifications":["Created new graph: Night of type eventgraph"]})" },
			{ R"([{"Name":"Night","Type":"EventGraph","Nodes":[{"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"Nothing"}}]}])",
				R"(same {"GraphModifications":["Modified existing graph: Night"]})" },
			{ R"([{"Name":"Night","Type":"EventGraph","Nodes":[{"Class":"UK2Node_CallFunction",
				"Properties":{"FunctionName":"PrintString","Comment":""}}]}])",
				R"(changed {"GraphModifications":["Modified existing graph: Night"]})" },
		});
	ASSERT_EQ(Lamp->UbergraphPages.Num(), 2);
	EXPECT_EQ(Lamp->UbergraphPages[1]->Nodes.Num(), 3) << "also the call of a function that is not there";
}

TEST_F(ModificationSection, NodesAreMadeOfThreeClassesWithTheirSubject)
{
	UEdGraph* const Graph = Lamp->UbergraphPages[0];
	const struct
	{
		const char* Entry;
		bool bMade;
	} Cases[] = {
		{ R"({"Properties":{"VariableName":"X"}})", false },
		{ R"({"Class":"K2Node_VariableGet","Properties":{"VariableName":"X"}})", false },
		{ R"({"Class":"UK2Node_VariableGet"})", false },
		{ R"({"Class":"UK2Node_VariableGet","Properties":{"FunctionName":"X"}})", false },
		{ R"({"Class":"UK2Node_CallFunction","Properties":{"VariableName":"X"}})", false },
		{ R"({"Class":"UK2Node_VariableGet","Properties":{"VariableName":"X"}})", true },
		{ R"({"Class":"UK2NODE_VARIABLESET","Properties":{"VariableName":"X"}})", true },
		{ R"({"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"printstring"}})", true },
	};
	for (const auto& Case : Cases)
	{
		const int32 Before = Graph->Nodes.Num();
		const UEdGraphNode* const Node = FAccess::CreateNode(Case.Entry, Graph);
		EXPECT_EQ(Node != nullptr, Case.bMade) << Case.Entry;
		EXPECT_EQ(Graph->Nodes.Num(), Before + Case.bMade) << Case.Entry;
		EXPECT_TRUE(!Node || Node->NodeGuid.IsValid()) << Case.Entry;
	}
	EXPECT_FALSE(FAccess::CreateNode(Cases[5].Entry, nullptr));
	EXPECT_FALSE(FAccess::CreateNode(Cases[5].Entry, NewObject<UEdGraph>(GetTransientPackage())));
}

TEST_F(ModificationSection, PinsAreSetAndLinkedByTitle)
{
	UEdGraph* const Graph = Lamp.MakeEmptyEventGraph();
	const auto Print = [Graph]
	{ return FAccess::CreateNode(R"({"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"PrintString"}})", Graph); };
	UEdGraphNode* const First = Print();
	First->RemovePin(First->FindPin(TEXT("then")));
	UEdGraphNode* const Second = Print();
	UEdGraphNode* const Third = Print();
	const std::string Title = R"("print string\nTARGET is Kismet System Library")";
	const struct
	{
		std::string Properties;
		bool bSet;
	} Cases[] = {
		{ R"({"Pins":{}})", false },
		{ R"({"Pins":[7,{"Value":"x"},{"PinName":"Nowhere","Value":"x"},{"PinName":"InString"}]})", false },
		{ R"({"Pins":[{"PinName":"InString","Connections":[{"Node":"Nobody","Pin":"then"},{"Pin":"then"},7]}]})", false },
		{ R"({"Pins":[{"PinName":"instring","Value":"a"},{"PinName":"bPrintToLog","Direction":"Sideways"},
			{"PinName":"then","Direction":"INPUT"}]})",
			true },
		{ R"({"Pins":[{"PinName":"execute","Connections":[{"Node":)" + Title + R"(,"Pin":"then"}]}]})", true },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FAccess::ModifyNode(Third, R"({"Properties":)" + Case.Properties + "}"), Case.bSet) << Case.Properties;
	}
	EXPECT_FALSE(FAccess::ModifyNode(Third, R"({"Comment":"outside","Pins":[{"PinName":"InString","Value":"b"}]})"));
	EXPECT_FALSE(FAccess::ModifyNode(nullptr, R"({"Properties":{"Comment":"x"}})"));
	EXPECT_EQ(ToUtf8(Third->FindPin(TEXT("InString"))->DefaultValue), "a");
	EXPECT_EQ(Third->FindPin(TEXT("bPrintToLog"))->Direction, EGPD_Output);
	EXPECT_EQ(Third->FindPin(TEXT("then"))->Direction, EGPD_Input);
	ASSERT_EQ(Third->FindPin(TEXT("execute"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Third->FindPin(TEXT("execute"))->LinkedTo[0]->GetOwningNode(), Second) << "the first of the title that has the pin";
}

TEST_F(ModificationSection, OfComponents)
{
	Check(FAccess::Components,
		{
			{ R"([{"Name":"Glow"},7])",
				R"(same {"ComponentModifications":["Component entry missing 'Name' or 'Type' field.",)"
				R"("Component entry missing 'Name' or 'Type' field."]})" },
			{ R"([{"Name":"Glow","Type":"Actor"},{"Name":"Glow","Type":"Nothing"}])",
				R"(same {"ComponentModifications":["Invalid component class: Actor","Invalid component class: Nothing"]})" },
			{ R"([{"Name":"Base","Type":"PrimitiveComponent"}])",
				R"(same {"ComponentModifications":["Failed to create component: Base"]})" },
			{ R"~([{"Name":"Glow","Type":"PointLightComponent","Properties":{"Intensity":7.5,"bVisible":false,"LightColor":[1],"Nothing":"x",
				"ComponentTags":"(\"warm\",\"low\")"},"Transform":{"Location":{"X":1,"Y":2,"Z":3},"Rotation":{"Pitch":10,"Yaw":20},
				"Scale":{"X":2,"Y":2,"Z":2}},"Mobility":"stationary"}])~",
				R"(changed {"ComponentModifications":["Created new component: Glow of type PointLightComponent"]})" },
			// What counts as a change of one that is there.
			{ R"([{"Name":"glow","Type":"Nothing"}])", R"(same {"ComponentModifications":["Modified existing component: glow"]})" },
			{ R"([{"Name":"Glow","Type":"","Transform":{"Location":{"X":1,"Y":2}},"Properties":{"Nothing":1,"LightColor":[]}}])",
				R"(same {"ComponentModifications":["Modified existing component: Glow"]})" },
			{ R"([{"Name":"Glow","Type":"","Mobility":"Sliding"}])",
				R"(changed {"ComponentModifications":["Modified existing component: Glow"]})" },
			{ R"([{"Name":"Glow","Type":"","Properties":{"intensity":"much"}}])",
				R"(changed {"ComponentModifications":["Modified existing component: Glow"]})" },
			{ R"([{"Name":"Glow","Type":"","Transform":{"Rotation":{"Pitch":10,"Yaw":20,"Roll":30}}}])",
				R"(changed {"ComponentModifications":["Modified existing component: Glow"]})" },
		});
	const USCS_Node* const Node = Lamp->SimpleConstructionScript->FindSCSNode(TEXT("Glow"));
	ASSERT_TRUE(Node);
	const UPointLightComponent* const Glow = Cast<UPointLightComponent>(Node->ComponentTemplate);
	ASSERT_TRUE(Glow);
	EXPECT_EQ(Glow->Intensity, 7.5f);
	EXPECT_FALSE(Glow->IsVisible());
	EXPECT_EQ(Glow->ComponentTags.Num(), 2);
	EXPECT_EQ(Glow->GetRelativeLocation(), FVector(1, 2, 3));
	EXPECT_TRUE(Glow->GetRelativeRotation().Equals(FRotator(10, 20, 30), 1e-6));
	EXPECT_EQ(Glow->GetRelativeScale3D(), FVector(2, 2, 2));
	EXPECT_EQ(Glow->Mobility, EComponentMobility::Stationary);
	Lamp.Compile();
	EXPECT_TRUE(Lamp.GetClass()->FindPropertyByName(TEXT("Glow")));
}

TEST_F(ModificationSection, OfInterfaces)
{
	const FTestBlueprint Light(TEXT("/Game/BPI_Light"), UInterface::StaticClass(), BPTYPE_Interface);
	const std::string Path = "/Game/BPI_Light.BPI_Light_C";
	Check(FAccess::Interfaces,
		{
			{ R"([{"Functions":[]},[]])",
				R"(same {"InterfaceModifications":["Interface entry missing 'Name' field.","Interface entry missing 'Name' field."]})" },
			{ R"([{"Name":"Nothing"},{"Name":""},{"Name":"/Script/Engine.Actor"}])",
				R"(same {"InterfaceModifications":["Interface class not found: Nothing","Interface class not found: ",)"
				R"("Interface class not found: /Script/Engine.Actor"]})" },
			{ R"([{"Name":")" + Path + R"(","Functions":[{"Name":"Shine"},{},7,{"Name":"shine"},{"Name":"Fade"}]},{"Name":")" + Path +
					R"(","Functions":[{"Name":"More"}]}])",
				R"(changed {"InterfaceModifications":["Created interface function: Shine","Created interface function: Fade","Added interface: )" +
					Path + R"(","Interface already implemented: )" + Path + "\"]}" },
		});
	ASSERT_EQ(Lamp->ImplementedInterfaces.Num(), 1);
	ASSERT_EQ(Lamp->ImplementedInterfaces[0].Graphs.Num(), 2);
	EXPECT_EQ(ToUtf8(Lamp->ImplementedInterfaces[0].Graphs[0]->GetName()), Path + "_Shine");
	EXPECT_TRUE(Lamp->ImplementedInterfaces[0].Graphs[0]->Nodes.IsEmpty());
}

TEST_F(ModificationSection, OfDelegates)
{
	Check(FAccess::Delegates,
		{
			{ R"([{},7])",
				R"(same {"DelegateModifications":["Delegate entry missing Name field.","Delegate entry missing Name field."]})" },
			{ R"([{"Name":"OnLit","Signature":{"InParameters":[{"Name":"bBright","Type":"BOOLEAN"},{"Name":"x","Type":"bool"},{"Name":"y"},7,
				{"Name":"Count","Type":"Integer"},{"Name":"Heat","Type":"Float"},{"Name":"Who","Type":"String"}]}},{"Name":"OnOut"}])",
				R"(changed {"DelegateModifications":["Created new delegate: OnLit","Created new delegate: OnOut"]})" },
		});
	const UFunction* const Signature = FindObject<UFunction>(Lamp.GetClass(), TEXT("OnLit_Signature"));
	ASSERT_TRUE(Signature);
	std::string Parameters;
	for (TFieldIterator<FProperty> Property(Signature); Property; ++Property)
	{
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Parm));
		Parameters += ToUtf8(Property->GetClass()->GetName() + TEXT(" ") + Property->GetName() + TEXT(";"));
	}
	EXPECT_EQ(Parameters, "BoolProperty bBright;IntProperty Count;FloatProperty Heat;StrProperty Who;");
	EXPECT_FALSE(FindObject<UFunction>(Lamp.GetClass(), TEXT("OnOut_Signature")));
	EXPECT_EQ(Lamp->NewVariables[0].PropertyFlags & 0x30000000, 0x10000000) << "assignable";
	Lamp.Compile();
	// What the compile made of it is found; what is only described is not.
	Check(FAccess::Delegates, { { R"([{"Name":"onlit"}])", R"(same {"DelegateModifications":["Delegate already exists: onlit"]})" } });
}

TEST_F(ModificationSection, OfTimelines)
{
	Check(FAccess::Timelines,
		{
			{ R"([{},7])",
				R"(same {"TimelineModifications":["Timeline entry missing 'Name' field.","Timeline entry missing 'Name' field."]})" },
			{ R"([{"Name":"Flicker","Curves":[{"Name":"Heat","Type":"floatcurve","Points":[{"Time":0,"Value":1},{"Time":1},7,
				{"Time":2,"Value":0.5}]},{"Name":"Color","Type":"VectorCurve"},{"Type":"FloatCurve"},{"Name":"Flat","Type":"FloatCurve"}]}])",
				R"(changed {"TimelineModifications":["Added curve Heat to timeline Flicker","Added curve Flat to timeline Flicker",)"
				R"("Created new timeline: Flicker"]})" },
			{ R"([{"Name":"flicker"}])", R"(same {"TimelineModifications":["Modified existing timeline: flicker"]})" },
			{ R"([{"Name":"FLICKER","Curves":[{"Name":"Late","Type":"FloatCurve"}]}])",
				R"(changed {"TimelineModifications":["Added curve Late to timeline FLICKER","Modified existing timeline: FLICKER"]})" },
		});
	ASSERT_EQ(Lamp->Timelines.Num(), 1);
	const UTimelineTemplate& Flicker = *Lamp->Timelines[0];
	EXPECT_TRUE(Flicker.HasAnyFlags(RF_Transactional));
	ASSERT_EQ(Flicker.FloatTracks.Num(), 3);
	EXPECT_EQ(Flicker.FloatTracks[0].GetTrackName(), FName(TEXT("Heat")));
	ASSERT_EQ(Flicker.FloatTracks[0].CurveFloat->FloatCurve.GetNumKeys(), 2);
	EXPECT_EQ(Flicker.FloatTracks[0].CurveFloat->GetFloatValue(1.0f), 0.75f);
	EXPECT_EQ(Flicker.FloatTracks[1].CurveFloat->FloatCurve.GetNumKeys(), 0);
	Lamp.Compile();
}

TEST_F(ModificationSection, OfAnimations)
{
	UBlueprint* const Dance = FKismetEditorUtilities::CreateBlueprint(UAnimInstance::StaticClass(), CreatePackage(TEXT("/Game/ABP_Dance")),
		TEXT("ABP_Dance"), BPTYPE_Normal, UAnimBlueprint::StaticClass(), UAnimBlueprintGeneratedClass::StaticClass());
	for (const TCHAR* const Name : { TEXT("Idle"), TEXT("Empty") })
	{
		FBlueprintEditorUtils::AddMemberVariable(Dance, Name, PinType(UEdGraphSchema_K2::PC_Object, UAnimSequence::StaticClass()));
	}
	FKismetEditorUtilities::CompileBlueprint(Dance);
	UAnimSequence* const Sequence = NewObject<UAnimSequence>(GetTransientPackage());
	UObject* const Defaults = Dance->GeneratedClass->GetDefaultObject();
	CastFieldChecked<FObjectProperty>(Dance->GeneratedClass->FindPropertyByName(TEXT("Idle")))
		->SetObjectPropertyValue_InContainer(Defaults, Sequence);
	Check(FAccess::Animations,
		{
			{ R"([{"Name":"Idle"},7])",
				R"(same {"AnimationModifications":["Animation entry missing 'Name' or 'Type' field.",)"
				R"("Animation entry missing 'Name' or 'Type' field."]})" },
			{ R"([{"Name":"A","Type":"blendspace"},{"Name":"B","Type":"ANIMMONTAGE"},{"Name":"C","Type":"Pose"}])",
				R"(same {"AnimationModifications":["BlendSpace modification not implemented: A","AnimMontage modification not implemented: B"]})" },
			{ R"([{"Name":"Idle","Type":"AnimationSequence"}])", R"(same {})" },
			{ R"([{"Name":"idle","Type":"animationsequence","Properties":{"bLooping":true,"PlayRate":2}},
				{"Name":"Idle","Type":"AnimationSequence"}])",
				R"(changed {"AnimationModifications":["Modified existing animation sequence: idle",)"
				R"("Modified existing animation sequence: Idle"]})" },
			{ R"([{"Name":"Run","Type":"AnimationSequence","Properties":{"bLooping":false,"PlayRate":2}},{"Name":"Empty","Type":"AnimationSequence"}])",
				R"(changed {"AnimationModifications":["Created new animation sequence reference: Run",)"
				R"("Created new animation sequence reference: Empty"]})" },
		},
		Dance);
	EXPECT_TRUE(Sequence->bLoop);
	EXPECT_EQ(Sequence->RateScale, 2.0f);
	ASSERT_EQ(Dance->NewVariables.Num(), 3) << "one that is there is not made again";
	const FBPVariableDescription& Run = Dance->NewVariables[2];
	EXPECT_EQ(ToUtf8(Run.GetMetaData(TEXT("bLooping"))), "false");
	EXPECT_EQ(ToUtf8(Run.GetMetaData(TEXT("PlayRate"))), "2.000000");
	EXPECT_EQ(Run.PropertyFlags & 5, 5u);
	EXPECT_EQ(Run.VarType.PinSubCategoryObject.Get(), UAnimSequence::StaticClass());
}
