#include "BlueprintSupport.h"
#include "Components/SceneComponent.h"
#include "Engine/SimpleConstructionScript.h"
#include "Factories/BlueprintFactory.h"
#include "GameFramework/Pawn.h"
#include "K2Node_Event.h"
#include "Misc/FeedbackContext.h"
#include "UObject/Interface.h"

TEST_F(Blueprints, ANewOneHasWhatEveryOneHasFromTheStart)
{
	UBlueprint* const Pawn = Make(TEXT("NewPawn"), APawn::StaticClass());
	UClass* const Class = Pawn->GeneratedClass;
	EXPECT_EQ(Class->GetPathName(), TEXT("/Game/NewPawn.NewPawn_C"));
	EXPECT_EQ(Class->GetSuperClass(), APawn::StaticClass());
	EXPECT_EQ(Defaults(Pawn)->GetPathName(), TEXT("/Game/NewPawn.Default__NewPawn_C"));
	EXPECT_EQ(UBlueprint::GetBlueprintFromClass(Class), Pawn);
	EXPECT_EQ(Pawn->Status, BS_Dirty);
	EXPECT_TRUE(Pawn->GetPackage()->IsDirty());
	EXPECT_TRUE(Pawn->IsAsset());
	EXPECT_EQ(Pawn->SimpleConstructionScript->GetAllNodes()[0]->GetVariableName(), FName(TEXT("DefaultSceneRoot")));
	EXPECT_TRUE(Class->FindPropertyByName(TEXT("DefaultSceneRoot")));
	EXPECT_TRUE(FUtils::FindUserConstructionScript(Pawn));
	EXPECT_TRUE(Class->FindFunctionByName(TEXT("UserConstructionScript"), false));
	TArray<FString> Events;
	for (const UEdGraphNode* const Node : FUtils::FindEventGraph(Pawn)->Nodes)
	{
		EXPECT_FALSE(Node->IsNodeEnabled());
		Events.Add(CastChecked<UK2Node_Event>(const_cast<UEdGraphNode*>(Node))->GetFunctionName().ToString());
	}
	EXPECT_EQ(Events, (TArray<FString>{ TEXT("ReceiveBeginPlay"), TEXT("ReceiveActorBeginOverlap"), TEXT("ReceiveTick") }));
	EXPECT_EQ(Compile(Pawn), BS_UpToDate);

	UBlueprint* const Plain = Make(TEXT("NewPlain"), UObject::StaticClass());
	EXPECT_FALSE(Plain->SimpleConstructionScript);
	EXPECT_TRUE(Plain->FunctionGraphs.IsEmpty());
	EXPECT_FALSE(FUtils::AddNewTimeline(Plain, TEXT("Fade"))) << "for actors alone";
}

TEST_F(Blueprints, AFactoryRefusesWhatNoBlueprintCanDeriveFrom)
{
	UBlueprint* const Parent = Make(TEXT("FactoryParent"));
	FUtils::MarkBlueprintAsStructurallyModified(Parent);
	const TPair<UClass*, bool> Cases[] = {
		{ AActor::StaticClass(), true },
		{ Parent->GeneratedClass, true },
		{ FUtils::GetSkeletonClass(Parent), false },
		{ UPackage::StaticClass(), false },
		{ UEdGraph::StaticClass(), false },
		{ nullptr, false },
	};
	for (const TPair<UClass*, bool>& Case : Cases)
	{
		UBlueprintFactory* const Factory = NewObject<UBlueprintFactory>();
		Factory->ParentClass = Case.Key;
		const FString Name = TEXT("From") + GetNameSafe(Case.Key);
		Log.Lines.Empty();
		UObject* const Made = Factory->FactoryCreateNew(
			UBlueprint::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(Name), RF_Public, nullptr, GWarn);
		EXPECT_EQ(Made != nullptr, Case.Value) << TCHAR_TO_UTF8(*Name);
		EXPECT_EQ(Log.HasLineWith(TEXT("Cannot create a Blueprint based on the class")), !Case.Value) << TCHAR_TO_UTF8(*Name);
	}
}
