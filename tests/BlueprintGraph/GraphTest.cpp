#include "../Engine/Snapshot.h"
#include "GraphSupport.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_DynamicCast.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"
#include "K2Node_MakeArray.h"
#include "K2Node_Self.h"
#include "K2Node_SwitchEnum.h"
#include "K2Node_Timeline.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet/GameplayStatics.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Kismet2/CompilerResultsLog.h"

namespace
{
UK2Node_CallFunction* AddCall(const FLamp& Lamp, const TCHAR* Function)
{
	return Lamp.Add<UK2Node_CallFunction>(
		[=](UK2Node_CallFunction& Node) { Node.SetFromFunction(UKismetSystemLibrary::StaticClass()->FindFunctionByName(Function)); });
}

UK2Node_VariableGet* AddGet(const FLamp& Lamp, const TCHAR* Variable)
{
	return Schema().SpawnVariableGetNode(FVector2D(0, 0), Lamp.Graph, Variable, nullptr);
}

/** The names of a function graph's terminators with their pins. */
FString DescribeTerminators(const UEdGraph* Graph)
{
	FString Text;
	for (const UEdGraphNode* const Node : Graph->Nodes)
	{
		Text += (Text.IsEmpty() ? TEXT("") : TEXT(" | ")) + Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString() + TEXT(" ") +
			Describe(Node);
	}
	return Text;
}
}

TEST(Connection, IsAllowedRefusedOrReplacesOthers)
{
	const FLamp Lamp;
	const UK2Node_CallFunction* const Print = AddCall(Lamp, TEXT("PrintString"));
	const UK2Node_IfThenElse* const Branch = Lamp.Add<UK2Node_IfThenElse>();
	const UK2Node_IfThenElse* const Other = Lamp.Add<UK2Node_IfThenElse>();
	const UK2Node_VariableGet* const Health = AddGet(Lamp, TEXT("Health"));
	const UK2Node_VariableGet* const Damaged = AddGet(Lamp, TEXT("bCanBeDamaged"));
	const UK2Node_CallFunction* const Name = AddCall(Lamp, TEXT("MakeLiteralString"));
	const UK2Node_Self* const Self = Lamp.Add<UK2Node_Self>();
	const UK2Node_DynamicCast* const CastNode = Lamp.Add<UK2Node_DynamicCast>();
	Branch->GetElsePin()->MakeLinkTo(Other->GetExecPin());
	Name->GetReturnValuePin()->MakeLinkTo(Print->FindPin(TEXT("InString")));
	UEdGraphPin* const Orphan = Health->FindPin(TEXT("self"));
	Orphan->bOrphanedPin = true;

	struct FCase
	{
		const TCHAR* What;
		UEdGraphPin* A;
		UEdGraphPin* B;
		ECanCreateConnectionResponse Expected;
	};
	const FCase Cases[] = {
		{ TEXT("exec"), Branch->GetThenPin(), Print->GetExecPin(), CONNECT_RESPONSE_MAKE },
		{ TEXT("exec, second into one input"), Print->GetThenPin(), Other->GetExecPin(), CONNECT_RESPONSE_MAKE },
		{ TEXT("exec, second out of one output"), Branch->GetElsePin(), Print->GetExecPin(), CONNECT_RESPONSE_BREAK_OTHERS_A },
		{ TEXT("the same, given the other way round"), Print->GetExecPin(), Branch->GetElsePin(), CONNECT_RESPONSE_BREAK_OTHERS_B },
		{ TEXT("bool"), Damaged->GetValuePin(), Branch->GetConditionPin(), CONNECT_RESPONSE_MAKE },
		{ TEXT("second output of a value"), Name->GetReturnValuePin(), Print->FindPin(TEXT("Key")), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("second into a value input"), Name->GetReturnValuePin(), Print->FindPin(TEXT("InString")), CONNECT_RESPONSE_BREAK_OTHERS_B },
		{ TEXT("int to bool"), Health->GetValuePin(), Branch->GetConditionPin(), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("value to exec"), Damaged->GetValuePin(), Branch->GetExecPin(), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("two inputs"), Branch->GetExecPin(), Print->GetExecPin(), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("one node"), Branch->GetThenPin(), Branch->GetExecPin(), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("self to an object"), Self->Pins[0], Print->FindPin(TEXT("WorldContextObject")), CONNECT_RESPONSE_MAKE },
		{ TEXT("object to a cast"), Self->Pins[0], CastNode->GetCastSourcePin(), CONNECT_RESPONSE_MAKE },
		{ TEXT("string to a cast"), Name->GetReturnValuePin(), CastNode->GetCastSourcePin(), CONNECT_RESPONSE_DISALLOW },
		{ TEXT("orphan"), Self->Pins[0], Orphan, CONNECT_RESPONSE_DISALLOW },
	};
	for (const FCase& Each : Cases)
	{
		const FPinConnectionResponse Response = Schema().CanCreateConnection(Each.A, Each.B);
		EXPECT_EQ(Response.Response, Each.Expected) << TCHAR_TO_UTF8(Each.What);
		EXPECT_EQ(Response.Message.IsEmpty(), Response.Response == CONNECT_RESPONSE_MAKE) << TCHAR_TO_UTF8(Each.What);
	}
	EXPECT_TRUE(Schema().TryCreateConnection(Branch->GetElsePin(), Print->GetExecPin()));
	EXPECT_EQ(Branch->GetElsePin()->LinkedTo.Num(), 1);
	EXPECT_FALSE(Other->GetExecPin()->HasAnyConnections());
}

TEST(Wildcard, TakesTheTypeOfWhatIsLinked)
{
	const FLamp Lamp;
	const UEdGraphPin* const Health = AddGet(Lamp, TEXT("Health"))->GetValuePin();
	UK2Node_MakeArray* const Array = Lamp.Add<UK2Node_MakeArray>();
	Array->AddInputPin();
	UK2Node_Knot* const First = Lamp.Add<UK2Node_Knot>();
	UK2Node_Knot* const Second = Lamp.Add<UK2Node_Knot>();
	First->GetOutputPin()->MakeLinkTo(Second->GetInputPin());
	Second->GetOutputPin()->MakeLinkTo(Array->FindPin(TEXT("[1]")));
	EXPECT_EQ(Describe(Array), TEXT(">Array:wildcard[] <[0]:wildcard <[1]:wildcard"));
	const_cast<UEdGraphPin*>(Health)->MakeLinkTo(First->GetInputPin());
	EXPECT_EQ(Describe(Second), TEXT("<InputPin:int=0 >OutputPin:int"));
	Array->ReconstructNode();
	EXPECT_EQ(Describe(Array), TEXT(">Array:int[] <[0]:int=0 <[1]:int=0"));
	EXPECT_TRUE(Array->FindPin(TEXT("[1]"))->HasAnyConnections());
	Array->BreakAllNodeLinks();
	First->BreakAllNodeLinks();
	EXPECT_EQ(Describe(Second), TEXT("<InputPin:wildcard >OutputPin:wildcard"));
}

TEST(Call, GivesObjectsOfTheClassThatItIsGiven)
{
	const FLamp Lamp;
	struct FCase
	{
		const TCHAR* Function;
		const TCHAR* Output;
	};
	for (const FCase& Each : { FCase{ TEXT("GetActorOfClass"), TEXT("ReturnValue") }, { TEXT("GetAllActorsOfClass"), TEXT("OutActors") } })
	{
		UK2Node_CallFunction* const Node = Lamp.Add<UK2Node_CallFunction>(
			[&](UK2Node_CallFunction& New) { New.SetFromFunction(UGameplayStatics::StaticClass()->FindFunctionByName(Each.Function)); });
		const auto GetClass = [&] { return Node->FindPin(Each.Output)->PinType.PinSubCategoryObject.Get(); };
		EXPECT_EQ(GetClass(), AActor::StaticClass());
		Schema().TrySetDefaultObject(*Node->FindPin(TEXT("ActorClass")), Lamp.Class);
		EXPECT_EQ(GetClass(), Lamp.Class) << TCHAR_TO_UTF8(Each.Function);
		Node->ReconstructNode();
		EXPECT_EQ(GetClass(), Lamp.Class) << TCHAR_TO_UTF8(Each.Function);
		Schema().TrySetDefaultObject(*Node->FindPin(TEXT("ActorClass")), nullptr);
		EXPECT_EQ(GetClass(), AActor::StaticClass());
	}
}

TEST(SpawnedVariableNode, RefersToWhereTheVariableIs)
{
	const FLamp Lamp;
	struct FCase
	{
		const TCHAR* Name;
		UStruct* Source;
		bool bSelf;
		bool bLocal;
		UClass* Parent;
	};
	const FCase Cases[] = {
		{ TEXT("Health"), nullptr, true, false, nullptr },
		{ TEXT("Health"), Lamp.Class, true, false, nullptr },
		{ TEXT("bCanBeDamaged"), AActor::StaticClass(), true, false, nullptr },
		{ TEXT("bAutoActivate"), UActorComponent::StaticClass(), false, false, UActorComponent::StaticClass() },
		{ TEXT("Count"), Lamp.ComputeLight, false, true, nullptr },
	};
	for (const FCase& Each : Cases)
	{
		const UK2Node_VariableSet* const Node = Schema().SpawnVariableSetNode(FVector2D(12.9, -7.5), Lamp.Graph, Each.Name, Each.Source);
		ASSERT_TRUE(Node);
		EXPECT_TRUE(Lamp.Graph->Nodes.Contains(Node));
		EXPECT_TRUE(Node->NodeGuid.IsValid());
		EXPECT_EQ(Node->NodePosX, 12);
		EXPECT_EQ(Node->NodePosY, -7);
		EXPECT_EQ(Node->VariableReference.IsSelfContext(), Each.bSelf) << TCHAR_TO_UTF8(Each.Name);
		EXPECT_EQ(Node->VariableReference.IsLocalScope(), Each.bLocal) << TCHAR_TO_UTF8(Each.Name);
		EXPECT_EQ(Node->VariableReference.GetMemberParentClass(), Each.Parent) << TCHAR_TO_UTF8(Each.Name);
	}
	UEdGraph* const Outside = NewObject<UEdGraph>();
	EXPECT_FALSE(Schema().SpawnVariableGetNode(FVector2D(0, 0), Outside, TEXT("Health"), nullptr));
	EXPECT_TRUE(Outside->Nodes.IsEmpty());
}

TEST(LocalVariable, HasTheTypeThatTheEntryDeclares)
{
	const FLamp Lamp;
	UEdGraph* const Graph = Lamp.AddFunctionGraph(TEXT("Count"));
	Schema().CreateFunctionGraphTerminators(*Graph, static_cast<const UFunction*>(nullptr));
	FBPVariableDescription& Total = CastChecked<UK2Node_FunctionEntry>(Graph->Nodes[0])->LocalVariables.AddDefaulted_GetRef();
	Total.VarName = TEXT("Total");
	Total.VarType = MakeType(UEdGraphSchema_K2::PC_Int64);
	const UK2Node_VariableGet* const Node = Lamp.Add<UK2Node_VariableGet>(
		[](UK2Node_VariableGet& Each) { Each.VariableReference.SetLocalMember(TEXT("Total"), TEXT("Count"), FGuid()); }, Graph);
	EXPECT_EQ(Describe(Node), TEXT(">Total:int64=0"));
}

TEST(FunctionGraph, HasItsTerminators)
{
	const FLamp Lamp;
	UClass* const None = nullptr;
	const UFunction* const NoSignature = nullptr;
	const auto Make = [&](const TCHAR* Name, auto Signature)
	{
		UEdGraph* const Graph = Lamp.AddFunctionGraph(Name);
		Schema().CreateFunctionGraphTerminators(*Graph, Signature);
		return Graph;
	};
	EXPECT_EQ(DescribeTerminators(Make(TEXT("FirstOne"), None)), TEXT("First One >then:exec"));
	EXPECT_EQ(DescribeTerminators(Make(TEXT("SecondOne"), NoSignature)), TEXT("Second One >then:exec"));
	// A class without such a function.
	EXPECT_EQ(DescribeTerminators(Make(TEXT("OnRep_Health"), UFunction::StaticClass())), TEXT("On Rep Health >then:exec"));
	UEdGraph* const Copy = Make(TEXT("DimLight"), const_cast<const UFunction*>(Lamp.ComputeLight));
	EXPECT_EQ(DescribeTerminators(Copy),
		TEXT("Dim Light >then:exec >Level:int | Return Node <execute:exec <Light:real/double <ReturnValue:bool"));
	EXPECT_EQ(CastChecked<UK2Node_FunctionEntry>(Copy->Nodes[0])->UserDefinedPins.Num(), 1);
	// An override has the function's pins, not pins of its own.
	UEdGraph* const Override = Make(TEXT("GetDistanceTo"), AActor::StaticClass());
	EXPECT_EQ(DescribeTerminators(Override),
		TEXT("Get Distance To >then:exec >OtherActor:object(Actor) | Return Node <execute:exec <ReturnValue:real/float=0.0"));
	EXPECT_TRUE(Override->Nodes[0]->FindPin(TEXT("then"))->LinkedTo.Contains(Override->Nodes[1]->FindPin(TEXT("execute"))));
	EXPECT_TRUE(CastChecked<UK2Node_FunctionEntry>(Override->Nodes[0])->UserDefinedPins.IsEmpty());

	Schema().AddExtraFunctionFlags(Override, FUNC_Net | FUNC_Native);
	Schema().MarkFunctionEntryAsEditable(Copy, true);
	const UK2Node_FunctionEntry* const Entry = CastChecked<UK2Node_FunctionEntry>(Override->Nodes[0]);
	EXPECT_EQ(Entry->GetExtraFlags(), static_cast<int32>(FUNC_Net));
	EXPECT_TRUE((Entry->GetFunctionFlags() & FUNC_BlueprintCallable) != 0);
	EXPECT_TRUE(CastChecked<UK2Node_EditablePinBase>(Copy->Nodes[1])->IsEditable());
}

TEST(UserDefinedPins, HaveUniqueNamesAndAreTheSameOnAllExits)
{
	const FLamp Lamp;
	UEdGraph* const Graph = Lamp.AddFunctionGraph(TEXT("Mix"));
	Schema().CreateFunctionGraphTerminators(*Graph, static_cast<const UFunction*>(nullptr));
	UK2Node_FunctionEntry* const Entry = CastChecked<UK2Node_FunctionEntry>(Graph->Nodes[0]);
	UK2Node_FunctionResult* const Exit = Lamp.Add<UK2Node_FunctionResult>([](UK2Node_FunctionResult&) {}, Graph);
	const FEdGraphPinType Int = MakeType(UEdGraphSchema_K2::PC_Int);
	for (const TCHAR* const Name : { TEXT("A"), TEXT("a"), TEXT("then") })
	{
		Entry->CreateUserDefinedPin(Name, Int, EGPD_Output);
	}
	Exit->CreateUserDefinedPin(TEXT("A"), Int, EGPD_Input);
	Exit->CreateUserDefinedPin(TEXT("A"), Int, EGPD_Input, false);
	EXPECT_EQ(Describe(Entry), TEXT(">then:exec >A:int >a1:int >then1:int"));
	EXPECT_EQ(Describe(Exit), TEXT("<execute:exec <A2:int <A:int"));
	const UK2Node_FunctionResult* const Second = Lamp.Add<UK2Node_FunctionResult>([](UK2Node_FunctionResult&) {}, Graph);
	EXPECT_EQ(Describe(Second), Describe(Exit));

	FSnapshot Snapshot({ Entry });
	Entry->RemoveUserDefinedPinByName(TEXT("A"));
	EXPECT_EQ(Describe(Entry), TEXT(">then:exec >a1:int >then1:int"));
	EXPECT_TRUE(Snapshot.Restore());
	EXPECT_TRUE(Entry->UserDefinedPinExists(TEXT("A")));
	Entry->ReconstructNode();
	EXPECT_EQ(Describe(Entry), TEXT(">then:exec >A:int >a1:int >then1:int"));
}

TEST(Reconstruction, KeepsLinksAndValuesAndLetsLinkedPinsStayAsOrphans)
{
	FLamp Lamp;
	const auto AddParameter = [&](const TCHAR* Name) { FLamp::AddProperty<FIntProperty>(Lamp.ComputeLight, Name, CPF_Parm); };
	UK2Node_CallFunction* const Call =
		Lamp.Add<UK2Node_CallFunction>([&](UK2Node_CallFunction& Node) { Node.SetFromFunction(Lamp.ComputeLight); });
	const UK2Node_IfThenElse* const Branch = Lamp.Add<UK2Node_IfThenElse>();
	UEdGraphPin* const Health = AddGet(Lamp, TEXT("Health"))->GetValuePin();
	Call->GetThenPin()->MakeLinkTo(Branch->GetExecPin());
	Call->GetReturnValuePin()->MakeLinkTo(Branch->GetConditionPin());
	Health->MakeLinkTo(Call->FindPin(TEXT("Level")));
	const FGuid Id = Call->GetThenPin()->PinId;

	// The result is gone; the input has another type, and a new one stands before it.
	Lamp.ComputeLight->DestroyChildPropertiesAndResetPropertyLinks();
	AddParameter(TEXT("Scale"));
	FLamp::AddProperty<FStrProperty>(Lamp.ComputeLight, TEXT("Level"), CPF_Parm);
	Call->FindPin(TEXT("Level"))->DefaultValue = TEXT("12");
	Call->ReconstructNode();
	EXPECT_EQ(Describe(Call), TEXT("<execute:exec >then:exec <self:object/self <Scale:int=0 <Level:string=12 >ReturnValue:bool=false!"));
	EXPECT_EQ(Call->GetThenPin()->PinId, Id);
	EXPECT_EQ(Branch->GetExecPin()->LinkedTo, TArray<UEdGraphPin*>({ Call->GetThenPin() }));
	EXPECT_EQ(Health->LinkedTo, TArray<UEdGraphPin*>({ Call->FindPin(TEXT("Level")) }));
	EXPECT_EQ(Branch->GetConditionPin()->LinkedTo.Num(), 1);

	// A value that is none of the new type goes.
	Lamp.ComputeLight->DestroyChildPropertiesAndResetPropertyLinks();
	AddParameter(TEXT("Level"));
	Call->FindPin(TEXT("Level"))->DefaultValue = TEXT("many");
	Branch->GetConditionPin()->BreakAllPinLinks();
	Call->ReconstructNode();
	EXPECT_EQ(Describe(Call), TEXT("<execute:exec >then:exec <self:object/self <Level:int=0"));

	// A function that is gone, and comes back.
	Call->FunctionReference.SetSelfMember(TEXT("Gone"));
	Call->ReconstructNode();
	EXPECT_EQ(Describe(Call), TEXT(">then:exec! <Level:int=0!"));
	Call->SetFromFunction(Lamp.ComputeLight);
	Call->ReconstructNode();
	EXPECT_EQ(Describe(Call), TEXT("<execute:exec >then:exec <self:object/self <Level:int=0"));
	EXPECT_TRUE(Call->GetThenPin()->HasAnyConnections());
}

TEST(PinDefault, IsSetOnlyToWhatFits)
{
	const FLamp Lamp;
	UK2Node_CallFunction* const Print = AddCall(Lamp, TEXT("PrintText"));
	UEdGraphPin& Duration = *Print->FindPin(TEXT("Duration"));
	Schema().TrySetDefaultValue(Duration, TEXT("long"));
	EXPECT_EQ(Duration.DefaultValue, TEXT("2.000000"));
	Schema().TrySetDefaultValue(Duration, TEXT("7.5"));
	EXPECT_EQ(Duration.DefaultValue, TEXT("7.5"));
	Schema().ResetPinToAutogeneratedDefaultValue(&Duration);
	EXPECT_EQ(Duration.DefaultValue, TEXT("2.000000"));
	UEdGraphPin& Text = *Print->FindPin(TEXT("InText"));
	Schema().TrySetDefaultValue(Text, TEXT("NSLOCTEXT(\"Lamp\", \"On\", \"It is on\")"));
	EXPECT_EQ(Text.DefaultTextValue.ToString(), TEXT("It is on"));
	EXPECT_TRUE(Text.DefaultValue.IsEmpty());
	UEdGraphPin& Class = *AddCall(Lamp, TEXT("IsValidClass"))->FindPin(TEXT("Class"));
	Schema().TrySetDefaultValue(Class, TEXT("/Script/Engine.Actor"));
	EXPECT_EQ(Class.DefaultObject.Get(), AActor::StaticClass());
	Schema().TrySetDefaultValue(Class, TEXT("NoSuchClass"));
	EXPECT_EQ(Class.DefaultObject.Get(), AActor::StaticClass());
	// What has to be linked.
	const UK2Node_MakeArray* const Array = Lamp.Add<UK2Node_MakeArray>();
	UK2Node_VariableSet* const Wires = Schema().SpawnVariableSetNode(FVector2D(0, 0), Lamp.Graph, TEXT("Wires"), nullptr);
	EXPECT_TRUE(Schema().IsCurrentPinDefaultValid(Wires->FindPin(TEXT("Wires"))).IsEmpty());
	EXPECT_TRUE(Schema().IsCurrentPinDefaultValid(Array->FindPin(TEXT("[0]"))).IsEmpty());
}

TEST(Validation, TellsWhatIsWrongWithANode)
{
	FLamp Lamp;
	UFunction* const Gone = Lamp.AddFunction(TEXT("Gone"), FUNC_BlueprintCallable);
	FLamp::AddProperty<FIntProperty>(Gone, TEXT("Level"), CPF_Parm);
	UK2Node_CallFunction* const Orphaned = Lamp.Add<UK2Node_CallFunction>([&](UK2Node_CallFunction& Node) { Node.SetFromFunction(Gone); });
	AddGet(Lamp, TEXT("Health"))->GetValuePin()->MakeLinkTo(Orphaned->FindPin(TEXT("Level")));
	Gone->DestroyChildPropertiesAndResetPropertyLinks();
	Orphaned->ReconstructNode();
	const auto Variable = [](const TCHAR* Name, UClass* Class)
	{ return [=](UK2Node_Variable& Node) { Node.VariableReference.SetExternalMember(Name, Class); }; };
	UK2Node_DynamicCast* const Never =
		Lamp.Add<UK2Node_DynamicCast>([](UK2Node_DynamicCast& Node) { Node.TargetType = UActorComponent::StaticClass(); });
	Lamp.Add<UK2Node_Self>()->Pins[0]->MakeLinkTo(Never->GetCastSourcePin());

	struct FCase
	{
		const UK2Node* Node;
		int32 Errors;
		int32 Warnings;
		const TCHAR* Text;
	};
	const FCase Cases[] = {
		{ AddCall(Lamp, TEXT("PrintString")), 0, 0, TEXT("") },
		{ Lamp.Add<UK2Node_CallFunction>([](UK2Node_CallFunction& Node) { Node.FunctionReference.SetSelfMember(TEXT("Nowhere")); }), 1, 0,
			TEXT("Could not find a function named \"Nowhere\" in '") },
		{ Orphaned, 1, 0, TEXT("In use pin Level no longer exists on node Gone.") },
		{ AddGet(Lamp, TEXT("Missing")), 1, 0, TEXT("Could not find a variable named \"Missing\" in '") },
		{ AddGet(Lamp, TEXT("Glow")), 0, 0, TEXT("") },
		{ Lamp.Add<UK2Node_VariableGet>(Variable(TEXT("bAutoActivate"), UActorComponent::StaticClass())), 1, 0,
			TEXT("This blueprint (self) is not a Actor Component, therefore 'Target' of Get bAutoActivate must have a connection.") },
		{ Schema().SpawnVariableSetNode(FVector2D(0, 0), Lamp.Graph, TEXT("bAlwaysRelevant"), nullptr), 1, 0,
			TEXT("bAlwaysRelevant is not writable: Set bAlwaysRelevant") },
		{ Schema().SpawnVariableSetNode(FVector2D(0, 0), Lamp.Graph, TEXT("InputPriority"), nullptr), 1, 0,
			TEXT("InputPriority is not blueprint visible") },
		{ Lamp.Add<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node) { Node.CustomFunctionName = TEXT("ReceiveTick"); }), 1, 0,
			TEXT("ReceiveTick has the name of a function of the parent class 'Actor'") },
		{ Lamp.Add<UK2Node_DynamicCast>(), 1, 0, TEXT("has an invalid target type") },
		{ Never, 0, 1, TEXT("'ActorComponent' does not inherit from 'Lamp") },
		{ Lamp.Add<UK2Node_MakeArray>(), 1, 0, TEXT("The type of Make Array is undetermined.") },
		{ Lamp.Add<UK2Node_SwitchEnum>(), 1, 0, TEXT("Switch on (null enum) has no enum") },
		{ Lamp.Add<UK2Node_Timeline>(), 1, 0, TEXT("There is no timeline for None") },
	};
	for (const FCase& Each : Cases)
	{
		FCompilerResultsLog Log;
		Log.bSilentMode = true;
		Each.Node->ValidateNodeDuringCompilation(Log);
		EXPECT_EQ(Log.NumErrors, Each.Errors) << TCHAR_TO_UTF8(Each.Text);
		EXPECT_EQ(Log.NumWarnings, Each.Warnings) << TCHAR_TO_UTF8(Each.Text);
		const FString Text = Log.Messages.IsEmpty() ? FString() : Log.Messages[0]->ToText().ToString();
		EXPECT_TRUE(Text.Contains(Each.Text)) << TCHAR_TO_UTF8(*Text) << " for " << TCHAR_TO_UTF8(Each.Text);
		EXPECT_EQ(Each.Node->bHasCompilerMessage, !Log.Messages.IsEmpty());
		EXPECT_TRUE(Each.Node->ErrorMsg.Equals(Text));
	}
}
