#include "Camera/CameraComponent.h"
#include "Components/StaticMeshComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Character.h"
#include "GameFramework/CharacterMovementComponent.h"

#include <gtest/gtest.h>

namespace
{
/** A Blueprint with a class that has not been compiled, and its construction script. */
class ConstructionScript : public testing::Test
{
protected:
	void SetUp() override { Make(AActor::StaticClass()); }
	void TearDown() override { Blueprint->RemoveFromRoot(); }

	void Make(UClass* Parent)
	{
		Blueprint = NewObject<UBlueprint>();
		Blueprint->AddToRoot();
		Blueprint->ParentClass = Parent;
		UBlueprintGeneratedClass* const Class = NewObject<UBlueprintGeneratedClass>();
		Class->SuperStruct = Parent;
		Class->ClassGeneratedBy = Blueprint;
		Blueprint->GeneratedClass = Class;
		Script = NewObject<USimpleConstructionScript>(Class, NAME_None, RF_Transactional);
		Blueprint->SimpleConstructionScript = Script;
	}
	FString Nodes() const
	{
		FString Text;
		for (const USCS_Node* const Node : Script->GetAllNodes())
		{
			const USCS_Node* const Parent = Script->FindParentNode(Node);
			Text +=
				(Parent ? Parent->GetVariableName().ToString() + TEXT(">") : FString()) + Node->GetVariableName().ToString() + TEXT(" ");
		}
		return Text;
	}

	UBlueprint* Blueprint = nullptr;
	USimpleConstructionScript* Script = nullptr;
};
}

TEST_F(ConstructionScript, CreatesNodesAsTheClassAndTheNameAllow)
{
	Blueprint->NewVariables.AddDefaulted_GetRef().VarName = FName("Health");
	struct FCase
	{
		UClass* Class;
		const TCHAR* Name;
		const TCHAR* Expected; // Null: refused.
	};
	const FCase Cases[] = {
		{ UStaticMeshComponent::StaticClass(), TEXT("Door"), TEXT("Door") },
		{ UStaticMeshComponent::StaticClass(), TEXT("door"), TEXT("door1") },
		{ UStaticMeshComponent::StaticClass(), TEXT("None"), TEXT("StaticMesh") },
		{ UStaticMeshComponent::StaticClass(), TEXT("Health"), TEXT("Health1") },
		{ UStaticMeshComponent::StaticClass(), TEXT("InitialLifeSpan"), TEXT("InitialLifeSpan1") },
		{ UStaticMeshComponent::StaticClass(), TEXT("a.b"), nullptr },
		{ UStaticMeshComponent::StaticClass(), TEXT("a:b"), nullptr },
		{ UPrimitiveComponent::StaticClass(), TEXT("Abstract"), nullptr },
		{ AActor::StaticClass(), TEXT("Actor"), nullptr },
		{ nullptr, TEXT("Nothing"), nullptr },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Case.Name));
		USCS_Node* const Node = Script->CreateNode(Case.Class, FName(Case.Name));
		EXPECT_EQ(Node != nullptr, Case.Expected != nullptr);
		if (Node && Case.Expected)
		{
			EXPECT_EQ(Node->GetVariableName().ToString(), Case.Expected);
			EXPECT_TRUE(Node->ComponentTemplate->IsA(Case.Class));
			EXPECT_EQ(Node->ComponentTemplate->GetOuter(), Blueprint->GeneratedClass.Get());
			EXPECT_TRUE(Node->ComponentTemplate->GetName().StartsWith(Case.Expected + FString(TEXT("_GEN_VARIABLE"))));
			EXPECT_EQ(Script->FindSCSNode(Node->GetVariableName()), nullptr) << "not before AddNode";
			Script->AddNode(Node);
		}
	}
}

TEST_F(ConstructionScript, ASceneComponentTakesThePlaceOfTheDefaultRoot)
{
	Script->ValidateSceneRootNodes();
	EXPECT_EQ(Nodes(), TEXT("DefaultSceneRoot "));
	Script->GetDefaultSceneRootNode()->AddChildNode(Script->CreateNode(UCameraComponent::StaticClass(), FName("View")));
	EXPECT_EQ(Nodes(), TEXT("DefaultSceneRoot DefaultSceneRoot>View "));
	Script->AddNode(Script->CreateNode(UCharacterMovementComponent::StaticClass(), FName("Move")));
	EXPECT_EQ(Nodes(), TEXT("DefaultSceneRoot DefaultSceneRoot>View Move "));
	USCS_Node* const Mesh = Script->CreateNode(UStaticMeshComponent::StaticClass(), FName("Mesh"));
	Script->AddNode(Mesh);
	EXPECT_EQ(Nodes(), TEXT("Move Mesh Mesh>View "));
	Script->RemoveNode(Mesh);
	EXPECT_EQ(Nodes(), TEXT("DefaultSceneRoot Move "));
}

TEST_F(ConstructionScript, AParentsRootNeedsNoDefaultOne)
{
	Blueprint->RemoveFromRoot();
	Make(ACharacter::StaticClass());
	Script->ValidateSceneRootNodes();
	EXPECT_EQ(Nodes(), TEXT(""));
}
