#include "BlueprintSupport.h"
#include "Components/SceneComponent.h"
#include "Editor/Transactor.h"
#include "Engine/SimpleConstructionScript.h"
#include "K2Node_CallFunction.h"
#include "K2Node_Variable.h"
#include "K2Node_VariableGet.h"
#include "ScopedTransaction.h"

#include <functional>

TEST_F(Blueprints, NamesThatAreTakenOrNoneAreRefused)
{
	UBlueprint* const Parent = Make(TEXT("RefusingParent"));
	AddInt(Parent, TEXT("Inherited"));
	Compile(Parent);
	UBlueprint* const Blueprint = Make(TEXT("Refusing"), Parent->GeneratedClass);
	AddInt(Blueprint, TEXT("Own"));
	Blueprint->SimpleConstructionScript->AddNode(
		Blueprint->SimpleConstructionScript->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp")));
	ASSERT_TRUE(FUtils::AddNewTimeline(Blueprint, TEXT("Fade")));
	FString Long;
	while (Long.Len() < 2000)
	{
		Long += TEXT("x");
	}
	const TPair<FString, bool> Cases[] = {
		{ TEXT(""), false },
		{ TEXT("None"), false },
		{ TEXT("own"), false },
		{ TEXT("INHERITED"), false },
		{ TEXT("InitialLifeSpan"), false },
		{ TEXT("lamp"), false },
		{ TEXT("Fade"), false },
		{ Long, false },
		{ TEXT("With blank"), true },
		{ TEXT("Tür.1"), true },
		{ TEXT("日本"), true },
		{ TEXT("EventGraph"), true },
	};
	for (const TPair<FString, bool>& Case : Cases)
	{
		const int32 Count = Blueprint->NewVariables.Num();
		Log.Lines.Empty();
		EXPECT_EQ(FUtils::AddMemberVariable(Blueprint, FName(Case.Key), Type(FSchema::PC_Int)), Case.Value)
			<< TCHAR_TO_UTF8(*Case.Key.Left(20));
		EXPECT_EQ(Blueprint->NewVariables.Num() - Count, Case.Value ? 1 : 0) << TCHAR_TO_UTF8(*Case.Key.Left(20));
		EXPECT_EQ(Log.HasLineWith(TEXT("LogBlueprint")), !Case.Value) << TCHAR_TO_UTF8(*Case.Key.Left(20));
	}
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	for (const FString& Name : { FString(TEXT("")), FString(TEXT("eventgraph")), Long })
	{
		EXPECT_FALSE(FUtils::CreateNewGraph(Blueprint, FName(Name), UEdGraph::StaticClass(), FSchema::StaticClass()));
	}
}

TEST_F(Blueprints, WhatUsesAVariableOrFunctionFollowsItsNameAndType)
{
	UBlueprint* const Blueprint = Make(TEXT("Follow"));
	AddInt(Blueprint, TEXT("Health"), TEXT("5"));
	UEdGraph* const Open = AddFunction(Blueprint, TEXT("Open"));
	UEdGraph* const Graph = FUtils::FindEventGraph(Blueprint);
	UK2Node_VariableGet* const Get = GetDefault<FSchema>()->SpawnVariableGetNode(FVector2D(), Graph, TEXT("Health"), nullptr);
	FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
	UK2Node_CallFunction* const Call = Creator.CreateNode();
	Call->SetFromFunction(FUtils::GetSkeletonClass(Blueprint)->FindFunctionByName(TEXT("Open")));
	Creator.Finalize();
	Compile(Blueprint);
	Set(Defaults(Blueprint), TEXT("Health"), TEXT("8"));

	FUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	FUtils::RenameGraph(Open, TEXT("Unlock"));
	EXPECT_EQ(Get->GetVarName(), FName(TEXT("Life")));
	EXPECT_TRUE(Get->GetValuePin());
	EXPECT_EQ(Call->GetFunctionName(), FName(TEXT("Unlock")));
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	EXPECT_EQ(Value(Blueprint, TEXT("Life")), TEXT("8"));
	EXPECT_TRUE(Blueprint->GeneratedClass->FindFunctionByName(TEXT("Unlock")));

	FUtils::ChangeMemberVariableType(Blueprint, TEXT("Life"), Type(FSchema::PC_String));
	EXPECT_EQ(Get->GetValuePin()->PinType.PinCategory, FSchema::PC_String);
	FUtils::RemoveMemberVariable(Blueprint, TEXT("life"));
	EXPECT_FALSE(Graph->Nodes.Contains(Get));
	FUtils::RemoveGraph(Blueprint, Open);
	EXPECT_EQ(Compile(Blueprint), BS_Error) << "the call is still there";
}

TEST_F(Blueprints, MetaDataOfMembersAndLocalVariables)
{
	UBlueprint* const Blueprint = Make(TEXT("Meta"));
	AddInt(Blueprint, TEXT("Health"));
	auto* const Entry = Find<UK2Node_FunctionEntry>(AddFunction(Blueprint, TEXT("Open")));
	Entry->LocalVariables.AddDefaulted_GetRef().VarName = FName(TEXT("Step"));
	Entry->LocalVariables[0].VarType = Type(FSchema::PC_Int);
	Compile(Blueprint);
	const UFunction* const Open = Blueprint->GeneratedClass->FindFunctionByName(TEXT("Open"));
	const TPair<const UStruct*, const TCHAR*> Cases[] = { { nullptr, TEXT("Health") }, { Open, TEXT("Step") } };
	for (const TPair<const UStruct*, const TCHAR*>& Case : Cases)
	{
		FString Text;
		EXPECT_FALSE(FUtils::GetBlueprintVariableMetaData(Blueprint, Case.Value, Case.Key, TEXT("Tooltip"), Text));
		FUtils::SetBlueprintVariableMetaData(Blueprint, Case.Value, Case.Key, TEXT("Tooltip"), TEXT("Hello"));
		EXPECT_TRUE(FUtils::GetBlueprintVariableMetaData(Blueprint, Case.Value, Case.Key, TEXT("Tooltip"), Text));
		EXPECT_EQ(Text, TEXT("Hello"));
		FUtils::RemoveBlueprintVariableMetaData(Blueprint, Case.Value, Case.Key, TEXT("Tooltip"));
		EXPECT_FALSE(FUtils::GetBlueprintVariableMetaData(Blueprint, Case.Value, Case.Key, TEXT("Tooltip"), Text));
	}
}

TEST_F(Blueprints, TheClassFollowsUndoAndRedo)
{
	UBlueprint* const Blueprint = Make(TEXT("Undone"));
	AddInt(Blueprint, TEXT("Kept"), TEXT("1"));
	AddInt(Blueprint, TEXT("Removed"), TEXT("2"));
	AddFunction(Blueprint, TEXT("Old"));
	Compile(Blueprint);
	UClass* const Class = Blueprint->GeneratedClass;
	// The class default object has the word, so undo must not go back to the texts.
	Set(Defaults(Blueprint), TEXT("Kept"), TEXT("10"));
	Set(Defaults(Blueprint), TEXT("Removed"), TEXT("20"));
	const auto Describe = [=]
	{
		FString Text;
		for (const TCHAR* const Name : { TEXT("Kept"), TEXT("Removed"), TEXT("Added") })
		{
			Text += Value(Blueprint, Name) + TEXT(" ");
		}
		for (TFieldIterator<UFunction> Function(Class, EFieldIteratorFlags::ExcludeSuper); Function; ++Function)
		{
			Text += Function->GetName() + TEXT(" ");
		}
		return Text + (Class->FindPropertyByName(TEXT("Lamp")) ? TEXT("Lamp") : TEXT(""));
	};
	const FString Before = Describe();
	EXPECT_EQ(Before, TEXT("10 20 - UserConstructionScript Old "));
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("change")));
		Blueprint->Modify();
		AddInt(Blueprint, TEXT("Added"), TEXT("3"));
		Variable(Blueprint, TEXT("Kept")).DefaultValue = TEXT("4");
		FUtils::RemoveMemberVariable(Blueprint, TEXT("Removed"));
		AddFunction(Blueprint, TEXT("New"));
		USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
		Script->AddNode(Script->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp")));
		Compile(Blueprint);
	}
	const FString After = Describe();
	EXPECT_EQ(After, TEXT("4 - 3 UserConstructionScript Old New Lamp"));
	CollectGarbage(RF_Standalone);
	for (int32 Round = 0; Round < 2; ++Round)
	{
		EXPECT_TRUE(GEditor->UndoTransaction());
		EXPECT_EQ(Describe(), Before);
		EXPECT_EQ(Blueprint->GeneratedClass, Class);
		EXPECT_TRUE(Blueprint->IsUpToDate());
		EXPECT_TRUE(Blueprint->GetPackage()->IsDirty());
		CollectGarbage(RF_Standalone);
		EXPECT_TRUE(GEditor->RedoTransaction());
		EXPECT_EQ(Describe(), After);
		CollectGarbage(RF_Standalone);
	}
}

TEST_F(Blueprints, UndoGivesBackTheFileByteForByte)
{
	UBlueprint* const Blueprint = Make(TEXT("Bytes"));
	AddInt(Blueprint, TEXT("Kept"), TEXT("1"));
	Compile(Blueprint);
	ASSERT_TRUE(Save(Blueprint));
	const std::string Before = Folder.Read("Content/Bytes.uasset");
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("change")));
		Blueprint->Modify();
		AddInt(Blueprint, TEXT("Added"), TEXT("3"));
		UEdGraph* const Graph = AddFunction(Blueprint, TEXT("New"));
		GetDefault<FSchema>()->SpawnVariableGetNode(FVector2D(), Graph, TEXT("Added"), Blueprint->GeneratedClass);
		Compile(Blueprint);
		ASSERT_TRUE(Save(Blueprint));
	}
	EXPECT_NE(Folder.Read("Content/Bytes.uasset"), Before);
	ASSERT_TRUE(GEditor->UndoTransaction());
	ASSERT_TRUE(Save(Blueprint));
	EXPECT_EQ(Folder.Read("Content/Bytes.uasset"), Before);
}

TEST_F(Blueprints, UndoBeforeTheFirstSkeletonAndOfTheBlueprintItself)
{
	UBlueprint* const Blueprint = Make(TEXT("Early"));
	ASSERT_FALSE(Blueprint->SkeletonGeneratedClass);
	const auto AddInTransaction = [=]
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("add")));
		AddInt(Blueprint, TEXT("Added"), TEXT("3"));
		EXPECT_TRUE(FUtils::GetSkeletonClass(Blueprint));
	};
	AddInTransaction();
	EXPECT_TRUE(GEditor->UndoTransaction());
	AddInTransaction();
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	EXPECT_EQ(Value(Blueprint, TEXT("Added")), TEXT("3"));

	const auto MakeInTransaction = []
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("make")));
		return Make(TEXT("Made"));
	};
	UBlueprint* const Undone = MakeInTransaction();
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_FALSE(IsValid(Undone));
	UBlueprint* const Second = MakeInTransaction();
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(Compile(Second), BS_UpToDate);
	EXPECT_EQ(Second->GeneratedClass->GetPathName(), TEXT("/Game/Made.Made_C"));
}
