#include "BlueprintSupport.h"
#include "Components/SceneComponent.h"
#include "Engine/SimpleConstructionScript.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
AActor* Spawn(const UBlueprint* Blueprint, const TCHAR* Name)
{
	return NewObject<AActor>(GetTransientPackage(), Blueprint->GeneratedClass, Name);
}

AActor* FindSpawned(const TCHAR* Name)
{
	return FindObject<AActor>(GetTransientPackage(), Name);
}
}

TEST_F(Blueprints, TheDefaultObjectHasTheWordUntilTheTextChanges)
{
	UBlueprint* const Blueprint = Make(TEXT("Word"));
	AddInt(Blueprint, TEXT("Count"), TEXT("5"));
	AddInt(Blueprint, TEXT("Other"), TEXT("1"));
	Compile(Blueprint);
	Set(Defaults(Blueprint), TEXT("Count"), TEXT("7"));
	Set(Defaults(Blueprint), TEXT("Other"), TEXT("0"));
	Set(Defaults(Blueprint), TEXT("InitialLifeSpan"), TEXT("3"));
	AddInt(Blueprint, TEXT("Later"), TEXT("2"));
	Compile(Blueprint);
	EXPECT_EQ(Value(Blueprint, TEXT("Count")), TEXT("7"));
	EXPECT_EQ(Value(Blueprint, TEXT("Other")), TEXT("0")) << "which is the type's own default, not the text's";
	EXPECT_EQ(Value(Blueprint, TEXT("Later")), TEXT("2"));
	EXPECT_EQ(Value(Blueprint, TEXT("InitialLifeSpan")), TEXT("3.000000")) << "inherited from C++";
	Variable(Blueprint, TEXT("Count")).DefaultValue = TEXT("9");
	Compile(Blueprint);
	EXPECT_EQ(Value(Blueprint, TEXT("Count")), TEXT("9"));

	FUtils::ChangeMemberVariableType(Blueprint, TEXT("Count"), Type(FSchema::PC_String));
	FUtils::RemoveMemberVariable(Blueprint, TEXT("Other"));
	Compile(Blueprint);
	EXPECT_EQ(Value(Blueprint, TEXT("Count")), TEXT(""));
	EXPECT_EQ(Value(Blueprint, TEXT("Other")), TEXT("-"));
	AddInt(Blueprint, TEXT("Other"), TEXT("4"));
	Compile(Blueprint);
	EXPECT_EQ(Value(Blueprint, TEXT("Other")), TEXT("4")) << "a new variable, whatever had the name";
}

TEST_F(Blueprints, ObjectsGetNewOnesInTheirPlaceWithTheirValues)
{
	UBlueprint* const Blueprint = Make(TEXT("Placed"));
	FEdGraphPinType Self = Type(FSchema::PC_Object);
	Self.PinSubCategory = FSchema::PSC_Self;
	AddInt(Blueprint, TEXT("Kept"), TEXT("1"));
	AddInt(Blueprint, TEXT("Followed"), TEXT("1"));
	FUtils::AddMemberVariable(Blueprint, TEXT("Next"), Self);
	Compile(Blueprint);
	UClass* const Class = Blueprint->GeneratedClass;
	AActor* const First = Spawn(Blueprint, TEXT("First"));
	AActor* const Second = Spawn(Blueprint, TEXT("Second"));
	Set(First, TEXT("Kept"), TEXT("5"));
	FindFProperty<FObjectProperty>(Class, TEXT("Next"))->SetObjectPropertyValue_InContainer(First, Second);
	FindFProperty<FObjectProperty>(Class, TEXT("Next"))->SetObjectPropertyValue_InContainer(Second, First);
	USceneComponent* const Root = NewObject<USceneComponent>(First, TEXT("Root"));
	Root->SetRelativeLocation(FVector(1, 2, 3));
	First->SetRootComponent(Root);
	AActor* const Watcher = NewObject<AActor>(GetTransientPackage(), TEXT("Watcher"));
	Watcher->AddToRoot();
	Watcher->SetOwner(First);
	const TWeakObjectPtr<AActor> OldFirst(First);
	const TStrongObjectPtr<AActor> HeldSecond(Second);

	AddInt(Blueprint, TEXT("New"), TEXT("8"));
	Blueprint->NewVariables.Insert(Blueprint->NewVariables.Pop(), 0);
	Variable(Blueprint, TEXT("Followed")).DefaultValue = TEXT("2");
	Compile(Blueprint);

	AActor* const NewFirst = FindSpawned(TEXT("First"));
	AActor* const NewSecond = FindSpawned(TEXT("Second"));
	ASSERT_TRUE(NewFirst && NewSecond && NewFirst != First);
	EXPECT_EQ(NewFirst->GetClass(), Class);
	EXPECT_EQ(Value(NewFirst, TEXT("Kept")), TEXT("5"));
	EXPECT_EQ(Value(NewFirst, TEXT("Followed")), TEXT("2")) << "it had the default's value";
	EXPECT_EQ(Value(NewFirst, TEXT("New")), TEXT("8"));
	EXPECT_EQ(FindFProperty<FObjectProperty>(Class, TEXT("Next"))->GetObjectPropertyValue_InContainer(NewFirst), NewSecond);
	EXPECT_EQ(FindFProperty<FObjectProperty>(Class, TEXT("Next"))->GetObjectPropertyValue_InContainer(NewSecond), NewFirst);
	EXPECT_EQ(Watcher->GetOwner(), NewFirst);
	EXPECT_EQ(NewFirst->GetRootComponent(), Root) << "it has moved over";
	EXPECT_EQ(Root->GetOuter(), NewFirst);
	EXPECT_EQ(NewFirst->GetComponents(), TArray<UActorComponent*>{ Root });
	EXPECT_FALSE(IsValid(HeldSecond.Get()));
	EXPECT_TRUE(HeldSecond->GetClass()->GetName().StartsWith(TEXT("REINST_Placed_C")));
	EXPECT_EQ(Value(HeldSecond.Get(), TEXT("Followed")), TEXT("1")) << "with the old layout, for whoever still holds it";
	CollectGarbage(RF_Standalone);
	EXPECT_FALSE(OldFirst.IsValid());
	Watcher->RemoveFromRoot();
}

TEST_F(Blueprints, ChildrenFollowTheirParents)
{
	UBlueprint* const Parent = Make(TEXT("Parent"));
	AddInt(Parent, TEXT("Armour"), TEXT("1"));
	AddInt(Parent, TEXT("Health"), TEXT("100"));
	Compile(Parent);
	UBlueprint* const Child = Make(TEXT("Child"), Parent->GeneratedClass);
	AddInt(Child, TEXT("Rage"), TEXT("3"));
	Compile(Child);
	Set(Defaults(Child), TEXT("Health"), TEXT("50"));
	UBlueprint* const Grandchild = Make(TEXT("Grandchild"), Child->GeneratedClass);
	Compile(Child);
	EXPECT_EQ(Value(Grandchild, TEXT("Health")), TEXT("50"));
	AActor* const Placed = Spawn(Grandchild, TEXT("Placed"));
	Set(Placed, TEXT("Rage"), TEXT("9"));
	// Held beyond a second compile, on which layout its own class's old one rests.
	const TStrongObjectPtr<AActor> Held(Spawn(Child, TEXT("Held")));
	AddInt(Child, TEXT("Fury"));
	Compile(Child);

	AddInt(Parent, TEXT("Speed"), TEXT("6"));
	Parent->NewVariables.Insert(Parent->NewVariables.Pop(), 0);
	Variable(Parent, TEXT("Armour")).DefaultValue = TEXT("2");
	Variable(Parent, TEXT("Health")).DefaultValue = TEXT("90");
	Compile(Parent);
	AActor* const Now = FindSpawned(TEXT("Placed"));
	const TPair<UObject*, const TCHAR*> Expected[] = {
		{ Defaults(Parent), TEXT("2 90 6 -") },
		{ Defaults(Child), TEXT("2 50 6 3") },
		{ Defaults(Grandchild), TEXT("2 50 6 3") },
		{ Now, TEXT("2 50 6 9") },
	};
	for (const TPair<UObject*, const TCHAR*>& Each : Expected)
	{
		const FString Values = Value(Each.Key, TEXT("Armour")) + TEXT(" ") + Value(Each.Key, TEXT("Health")) + TEXT(" ") +
			Value(Each.Key, TEXT("Speed")) + TEXT(" ") + Value(Each.Key, TEXT("Rage"));
		EXPECT_EQ(Values, Each.Value) << TCHAR_TO_UTF8(*Each.Key->GetName());
	}
	EXPECT_EQ(Value(Held.Get(), TEXT("Health")), TEXT("50"));
	EXPECT_EQ(Value(Held.Get(), TEXT("Rage")), TEXT("3"));
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(Value(Held.Get(), TEXT("Rage")), TEXT("3"));

	FUtils::RemoveMemberVariable(Parent, TEXT("Health"));
	GetDefault<FSchema>()->SpawnVariableGetNode(FVector2D(), FUtils::FindEventGraph(Child), TEXT("Health"), nullptr);
	EXPECT_EQ(Compile(Parent), BS_UpToDate);
	EXPECT_EQ(Child->Status, BS_Error) << "it reads a variable that its parent had";
	EXPECT_EQ(Value(Grandchild, TEXT("Health")), TEXT("-"));
}

TEST_F(Blueprints, TemplatesOfComponentsAreReplacedInTheirPlace)
{
	UBlueprint* const Component = Make(TEXT("Lamp"), USceneComponent::StaticClass());
	AddInt(Component, TEXT("Watts"), TEXT("40"));
	Compile(Component);
	UBlueprint* const Owner = Make(TEXT("LampPost"));
	USCS_Node* const Node = Owner->SimpleConstructionScript->CreateNode(Component->GeneratedClass, TEXT("Light"));
	Owner->SimpleConstructionScript->AddNode(Node);
	Compile(Owner);
	Set(Node->ComponentTemplate, TEXT("Watts"), TEXT("60"));
	const UObject* const Old = Node->ComponentTemplate;
	AddInt(Component, TEXT("Colour"), TEXT("7"));
	Compile(Component);
	EXPECT_NE(Node->ComponentTemplate, Old);
	EXPECT_EQ(Node->ComponentTemplate->GetPathName(), TEXT("/Game/LampPost.LampPost_C:Light_GEN_VARIABLE"));
	EXPECT_TRUE(Node->ComponentTemplate->HasAllFlags(RF_ArchetypeObject | RF_Transactional));
	EXPECT_EQ(Value(Node->ComponentTemplate, TEXT("Watts")), TEXT("60"));
	EXPECT_EQ(Value(Node->ComponentTemplate, TEXT("Colour")), TEXT("7"));
	EXPECT_EQ(Compile(Owner), BS_UpToDate);
}

TEST_F(Blueprints, ACompileAloneLeavesThePackageAsItWas)
{
	UBlueprint* const Blueprint = Make(TEXT("Clean"));
	AddInt(Blueprint, TEXT("Count"), TEXT("5"));
	Compile(Blueprint);
	EXPECT_TRUE(Blueprint->GetPackage()->IsDirty());
	Blueprint->GetPackage()->ClearDirtyFlag();
	Spawn(Blueprint, TEXT("Somebody"));
	EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
}

TEST_F(Blueprints, CompilingAgainAndAgainLeavesNothingBehind)
{
	UBlueprint* const Blueprint = Make(TEXT("Again"));
	AddInt(Blueprint, TEXT("Count"), TEXT("5"));
	AddFunction(Blueprint, TEXT("Open"));
	UBlueprint* const Child = Make(TEXT("AgainChild"), Blueprint->GeneratedClass);
	Spawn(Child, TEXT("Once"))->AddToRoot();
	const auto Count = [Blueprint]
	{
		FUtils::MarkBlueprintAsStructurallyModified(Blueprint);
		Compile(Blueprint);
		CollectGarbage(RF_Standalone);
		TArray<UObject*> Objects;
		GetObjectsOfClass(UObject::StaticClass(), Objects, true, RF_NoFlags);
		return Objects.Num();
	};
	const int32 Before = Count();
	Count();
	EXPECT_EQ(Count(), Before);
	FindSpawned(TEXT("Once"))->RemoveFromRoot();
}
