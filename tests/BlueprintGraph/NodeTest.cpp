#include "Engine/TimelineTemplate.h"
#include "GraphSupport.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_CallDelegate.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CallParentFunction.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"
#include "K2Node_MakeArray.h"
#include "K2Node_Self.h"
#include "K2Node_SpawnActorFromClass.h"
#include "K2Node_SwitchEnum.h"
#include "K2Node_Timeline.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet/GameplayStatics.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Components/PrimitiveComponent.h"

namespace
{
template <typename LibraryType>
auto Call(const TCHAR* Function)
{
	return [=](UK2Node_CallFunction& Node) { Node.SetFromFunction(LibraryType::StaticClass()->FindFunctionByName(Function)); };
}

struct FCase
{
	const UK2Node* Node;
	const TCHAR* Title;
	const TCHAR* Pins;
};

void Expect(std::initializer_list<FCase> Cases)
{
	for (const FCase& Each : Cases)
	{
		EXPECT_EQ(Each.Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), Each.Title);
		EXPECT_EQ(Describe(Each.Node), Each.Pins) << TCHAR_TO_UTF8(Each.Title);
	}
}
}

TEST(Node, OfACallHasTheFunctionsPinsAndTitle)
{
	const FLamp Lamp;
	Expect({
		{ Lamp.Add<UK2Node_CallFunction>(Call<UKismetSystemLibrary>(TEXT("PrintString"))),
			TEXT("Print String\nTarget is Kismet System Library"),
			TEXT("<execute:exec >then:exec <self:object(KismetSystemLibrary)=/Script/Engine.Default__KismetSystemLibrary* "
				 "<WorldContextObject:object(Object)* <InString:string=Hello <bPrintToScreen:bool=true <bPrintToLog:bool=true "
				 "<TextColor:struct(LinearColor)=(R=0.000000,G=0.660000,B=1.000000,A=1.000000) <Duration:real/float=2.000000 "
				 "<Key:name=None") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<UKismetSystemLibrary>(TEXT("PrintText"))),
			TEXT("Print Text\nTarget is Kismet System Library"),
			TEXT("<execute:exec >then:exec <self:object(KismetSystemLibrary)=/Script/Engine.Default__KismetSystemLibrary* "
				 "<WorldContextObject:object(Object)* <InText:text=Hello <bPrintToScreen:bool=true <bPrintToLog:bool=true "
				 "<TextColor:struct(LinearColor)=(R=0.000000,G=0.660000,B=1.000000,A=1.000000) <Duration:real/float=2.000000 "
				 "<Key:name=None") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<UKismetSystemLibrary>(TEXT("Delay"))), TEXT("Delay\nTarget is Kismet System Library"),
			TEXT("<execute:exec >then:exec <self:object(KismetSystemLibrary)=/Script/Engine.Default__KismetSystemLibrary* "
				 "<WorldContextObject:object(Object)* <Duration:real/float=0.2 <LatentInfo:struct(LatentActionInfo)*") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<UKismetSystemLibrary>(TEXT("MakeLiteralInt"))),
			TEXT("Make Literal Int\nTarget is Kismet System Library"),
			TEXT("<self:object(KismetSystemLibrary)=/Script/Engine.Default__KismetSystemLibrary* <Value:int=0 >ReturnValue:int=0") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<UGameplayStatics>(TEXT("FindNearestActor"))),
			TEXT("Find Nearest Actor\nTarget is Gameplay Statics"),
			TEXT("<self:object(GameplayStatics)=/Script/Engine.Default__GameplayStatics* <Origin:struct(Vector)=0, 0, 0 "
				 "<ActorsToCheck:object(Actor)[]& >Distance:real/float=0.0 >ReturnValue:object(Actor)") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<AActor>(TEXT("SetActorEnableCollision"))),
			TEXT("Set Actor Enable Collision\nTarget is Actor"),
			TEXT("<execute:exec >then:exec <self:object(Actor) <bNewActorEnableCollision:bool=false") },
		{ Lamp.Add<UK2Node_CallFunction>(Call<AActor>(TEXT("K2_DestroyActor"))), TEXT("Destroy Actor\nTarget is Actor"),
			TEXT("<execute:exec >then:exec <self:object(Actor)") },
		{ Lamp.Add<UK2Node_CallFunction>([&](UK2Node_CallFunction& Node) { Node.SetFromFunction(Lamp.ComputeLight); }),
			TEXT("Compute Light"),
			TEXT("<execute:exec >then:exec <self:object/self <Level:int=0 >Light:real/double=0.0 >ReturnValue:bool=false") },
		{ Lamp.Add<UK2Node_CallParentFunction>([](UK2Node_CallParentFunction& Node)
			  { Node.SetFromFunction(AActor::StaticClass()->FindFunctionByName(TEXT("ReceiveTick"))); }),
			TEXT("Parent: Tick"), TEXT("<execute:exec >then:exec <self:object(Actor)* <DeltaSeconds:real/float=0.0") },
		{ Lamp.Add<UK2Node_CallFunction>(), TEXT("None"), TEXT("") },
	});
	const UK2Node_CallFunction* const Delay = Cast<UK2Node_CallFunction>(Lamp.Graph->Nodes[2]);
	EXPECT_TRUE(Delay->IsLatentFunction());
	EXPECT_EQ(Delay->GetThenPin()->GetDisplayName().ToString(), TEXT("Completed"));
}

TEST(Node, OfAVariableHasItsPinAndItsObject)
{
	const FLamp Lamp;
	const auto Member = [](const TCHAR* Name) { return [=](UK2Node_Variable& Node) { Node.VariableReference.SetSelfMember(Name); }; };
	const auto Tags = [](UK2Node_Variable& Node) { Node.VariableReference.SetExternalMember(TEXT("Tags"), AActor::StaticClass()); };
	const FString Owner = Lamp.Class->GetName();
	const auto OfLamp = [&](const TCHAR* Text) { return FString(Text).Replace(TEXT("%"), *Owner); };
	Expect({
		{ Lamp.Add<UK2Node_VariableGet>(Member(TEXT("Health"))), TEXT("Get Health"), *OfLamp(TEXT(">Health:int=0 <self:object(%)*")) },
		{ Lamp.Add<UK2Node_VariableSet>(Member(TEXT("Health"))), TEXT("Set Health"),
			*OfLamp(TEXT("<execute:exec >then:exec <Health:int=0 <self:object(%)* >Output_Get:int=0")) },
		{ Lamp.Add<UK2Node_VariableGet>(Member(TEXT("Wires"))), TEXT("Get Wires"), *OfLamp(TEXT(">Wires:name[] <self:object(%)*")) },
		{ Lamp.Add<UK2Node_VariableGet>(Tags), TEXT("Get Tags"), TEXT(">Tags:name[] <self:object(Actor)") },
		{ Lamp.Add<UK2Node_VariableGet>(Member(TEXT("bCanBeDamaged"))), TEXT("Get bCanBeDamaged"),
			TEXT(">bCanBeDamaged:bool=false <self:object(Actor)*") },
		// One that has only been declared yet, and one that is not there.
		{ Lamp.Add<UK2Node_VariableGet>(Member(TEXT("Glow"))), TEXT("Get Glow"), *OfLamp(TEXT(">Glow:real/double=0.0 <self:object(%)*")) },
		{ Lamp.Add<UK2Node_VariableGet>(Member(TEXT("Missing"))), TEXT("Get Missing"), TEXT("") },
		{ Lamp.Add<UK2Node_VariableSet>(Member(TEXT("Missing"))), TEXT("Set Missing"), TEXT("<execute:exec >then:exec") },
	});
	UK2Node_Variable* const Health = Cast<UK2Node_Variable>(Lamp.Graph->Nodes[0]);
	EXPECT_EQ(Health->GetValuePin(), Health->Pins[0]);
	EXPECT_EQ(Health->FindPin(TEXT("self"))->GetDisplayName().ToString(), TEXT("Target"));
	// The title follows the reference, in its spelling, too.
	for (const TCHAR* const Name : { TEXT("HEALTH"), TEXT("Wires") })
	{
		Health->VariableReference.SetSelfMember(Name);
		EXPECT_EQ(Health->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), FString(TEXT("Get ")) + Name);
	}
}

TEST(Node, OfAnEventHasTheFunctionsInputsAsOutputs)
{
	const FLamp Lamp;
	const auto Override = [](const TCHAR* Name)
	{
		return [=](UK2Node_Event& Node)
		{
			Node.EventReference.SetExternalMember(Name, AActor::StaticClass());
			Node.bOverrideFunction = true;
			};
	};
	const auto Custom = [](UK2Node_CustomEvent& Node) { Node.CustomFunctionName = TEXT("LightUp"); };
	const auto Bound = [&](UK2Node_ComponentBoundEvent& Node)
	{
		FObjectProperty* const Bulb = FLamp::AddProperty<FObjectProperty>(Lamp.Class, TEXT("Bulb"));
		Bulb->PropertyClass = UPrimitiveComponent::StaticClass();
		Node.InitializeComponentBoundEventParams(
			Bulb, FindFProperty<FMulticastDelegateProperty>(UPrimitiveComponent::StaticClass(), TEXT("OnComponentBeginOverlap")));
	};
	UK2Node_CustomEvent* const LightUp = Lamp.Add<UK2Node_CustomEvent>(Custom);
	LightUp->CreateUserDefinedPin(TEXT("Level"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output);
	Expect({
		{ Lamp.Add<UK2Node_Event>(Override(TEXT("ReceiveTick"))), TEXT("Event Tick"),
			TEXT(">OutputDelegate:delegate >then:exec >DeltaSeconds:real/float=0.0") },
		{ Lamp.Add<UK2Node_Event>(Override(TEXT("ReceiveActorBeginOverlap"))), TEXT("Event ActorBeginOverlap"),
			TEXT(">OutputDelegate:delegate >then:exec >OtherActor:object(Actor)") },
		{ Lamp.Add<UK2Node_Event>(Override(TEXT("ReceiveNothing"))), TEXT("Event ReceiveNothing"),
			TEXT(">OutputDelegate:delegate >then:exec") },
		{ LightUp, TEXT("LightUp\nCustom Event"), TEXT(">OutputDelegate:delegate >then:exec >Level:int") },
	});
	const UK2Node_ComponentBoundEvent* const Overlap = Lamp.Add<UK2Node_ComponentBoundEvent>(Bound);
	EXPECT_EQ(Overlap->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), TEXT("On Component Begin Overlap (Bulb)"));
	EXPECT_TRUE(Overlap->FindPin(TEXT("OtherActor"), EGPD_Output));
	EXPECT_TRUE(Overlap->GetFunctionName().ToString().StartsWith(TEXT("BndEvt__")));
}

TEST(Node, OfAnyOtherKindHasThePinsOfItsKind)
{
	const FLamp Lamp;
	UTimelineTemplate* const Glow = NewObject<UTimelineTemplate>(Lamp.Class, FName(TEXT("Fade_Template")));
	FTTFloatTrack& Track = Glow->FloatTracks.AddDefaulted_GetRef();
	Track.SetTrackName(TEXT("Alpha"), Glow);
	Glow->EventTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Blink"), Glow);
	Lamp.Blueprint->Timelines.Add(Glow);
	const auto Dispatcher = [](UK2Node_BaseMCDelegate& Node) { Node.DelegateReference.SetSelfMember(TEXT("OnBroken")); };
	Expect({
		{ Lamp.Add<UK2Node_IfThenElse>(), TEXT("Branch"), TEXT("<execute:exec <Condition:bool=true >then:exec >else:exec") },
		{ Lamp.Add<UK2Node_ExecutionSequence>(), TEXT("Sequence"), TEXT("<execute:exec >then_0:exec >then_1:exec") },
		{ Lamp.Add<UK2Node_Timeline>([](UK2Node_Timeline& Node) { Node.TimelineName = TEXT("Fade"); }), TEXT("Fade"),
			TEXT("<Play:exec <PlayFromStart:exec <Stop:exec <Reverse:exec <ReverseFromEnd:exec <SetNewTime:exec <NewTime:real/float=0.0 "
				 ">Update:exec >Finished:exec >Direction:byte(ETimelineDirection) >Blink:exec >Alpha:real/float") },
		{ Lamp.Add<UK2Node_DynamicCast>([](UK2Node_DynamicCast& Node) { Node.TargetType = AActor::StaticClass(); }), TEXT("Cast To Actor"),
			TEXT("<execute:exec >then:exec >CastFailed:exec <Object:wildcard(Object) >AsActor:object(Actor) >bSuccess:bool*") },
		{ Lamp.Add<UK2Node_SpawnActorFromClass>(), TEXT("SpawnActor NONE"),
			TEXT("<execute:exec >then:exec <Class:class(Actor) >ReturnValue:object(Actor) <SpawnTransform:struct(Transform) "
				 "<CollisionHandlingOverride:byte(ESpawnActorCollisionHandlingMethod)=Undefined <Owner:object(Actor)") },
		{ Lamp.Add<UK2Node_Self>(), TEXT("Self"), TEXT(">self:object/self") },
		{ Lamp.Add<UK2Node_MakeArray>(), TEXT("Make Array"), TEXT(">Array:wildcard[] <[0]:wildcard") },
		{ Lamp.Add<UK2Node_SwitchEnum>([](UK2Node_SwitchEnum& Node) { Node.SetEnum(StaticEnum<ETeleportType>()); }),
			TEXT("Switch on ETeleportType"),
			TEXT("<execute:exec <Selection:byte(ETeleportType)=None >None:exec >TeleportPhysics:exec >ResetPhysics:exec") },
		{ Lamp.Add<UK2Node_Knot>(), TEXT("Reroute Node"), TEXT("<InputPin:wildcard >OutputPin:wildcard") },
		{ Lamp.Add<UK2Node_CallDelegate>(Dispatcher), TEXT("Call OnBroken"),
			TEXT("<execute:exec >then:exec <self:object/self <Force:real/double=0.0") },
		{ Lamp.Add<UK2Node_AddDelegate>(Dispatcher), TEXT("Bind Event to OnBroken"),
			TEXT("<execute:exec >then:exec <self:object/self <Delegate:delegate&") },
	});
}

TEST(Node, OfASequenceKeepsItsWaysInOrder)
{
	const FLamp Lamp;
	UK2Node_ExecutionSequence* const Node = Lamp.Add<UK2Node_ExecutionSequence>();
	Node->AddInputPin();
	UK2Node_IfThenElse* const Last = Lamp.Add<UK2Node_IfThenElse>();
	Node->GetThenPinGivenIndex(2)->MakeLinkTo(Last->GetExecPin());
	Node->RemovePinFromExecutionNode(Node->GetThenPinGivenIndex(0));
	Node->ReconstructNode();
	EXPECT_EQ(Describe(Node), TEXT("<execute:exec >then_0:exec >then_1:exec"));
	EXPECT_EQ(Last->GetExecPin()->LinkedTo[0], Node->GetThenPinGivenIndex(1));
	Node->RemovePinFromExecutionNode(Node->GetThenPinGivenIndex(0));
	EXPECT_EQ(Node->Pins.Num(), 3);
}

TEST(Node, ToSpawnAnActorHasAnInputForEachExposedVariable)
{
	const FLamp Lamp;
	FLamp::AddProperty<FDoubleProperty>(Lamp.Class, TEXT("Height"), CPF_Edit | CPF_BlueprintVisible | CPF_ExposeOnSpawn);
	Lamp.Class->StaticLink();
	UK2Node_SpawnActorFromClass* const Node = Lamp.Add<UK2Node_SpawnActorFromClass>();
	Schema().TrySetDefaultObject(*Node->GetClassPin(), Lamp.Class);
	ASSERT_TRUE(Node->FindPin(TEXT("Height")));
	EXPECT_TRUE(Node->IsSpawnVarPin(Node->FindPin(TEXT("Height"))));
	EXPECT_EQ(Node->GetResultPin()->PinType.PinSubCategoryObject.Get(), Lamp.Class);
	Schema().TrySetDefaultValue(*Node->FindPin(TEXT("Height")), TEXT("2.5"));
	Node->ReconstructNode();
	EXPECT_EQ(Node->FindPin(TEXT("Height"))->DefaultValue, TEXT("2.5"));
	Schema().TrySetDefaultObject(*Node->GetClassPin(), AActor::StaticClass());
	EXPECT_FALSE(Node->FindPin(TEXT("Height")));
	EXPECT_EQ(Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString(), TEXT("SpawnActor Actor"));
}
