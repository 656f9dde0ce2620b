#include "Components/ArrowComponent.h"
#include "Components/CapsuleComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "Components/StaticMeshComponent.h"
#include "Engine/World.h"
#include "GameFramework/Character.h"
#include "GameFramework/CharacterMovementComponent.h"
#include "GameFramework/PlayerController.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
FString GetComponentNames(const AActor* Actor)
{
	FString Names;
	for (const UActorComponent* const Component : Actor->GetComponents())
	{
		Names += Component->GetName() + TEXT(" ");
	}
	return Names;
}

class World : public testing::Test
{
protected:
	void SetUp() override
	{
		Package = CreatePackage(TEXT("/Temp/World"));
		Map = UWorld::CreateWorld(Package, FName("World"));
		Map->AddToRoot();
	}
	void TearDown() override
	{
		Map->RemoveFromRoot();
		CollectGarbage(RF_NoFlags);
	}

	UPackage* Package = nullptr;
	UWorld* Map = nullptr;
};
}

TEST(Actor, TheDefaultObjectHasTheNativeComponents)
{
	const ACharacter* const Default = GetDefault<ACharacter>();
	EXPECT_EQ(GetComponentNames(Default), TEXT("CollisionCylinder Arrow CharMoveComp CharacterMesh0 "));
	EXPECT_EQ(Default->GetMesh()->GetAttachParent(), Default->GetCapsuleComponent());
	TArray<USceneComponent*> Scene;
	Default->GetComponents(Scene);
	EXPECT_EQ(Scene.Num(), 3);
	EXPECT_EQ(GetComponentNames(GetDefault<AActor>()), TEXT(""));
}

TEST_F(World, ActorsHaveComponentsOfTheirOwn)
{
	GetMutableDefault<ACharacter>()->GetCharacterMovement()->MaxWalkSpeed = 650.0f;
	ACharacter* const Character = Map->SpawnActor<ACharacter>();
	GetMutableDefault<ACharacter>()->GetCharacterMovement()->MaxWalkSpeed = 600.0f;
	ASSERT_NE(Character, nullptr);
	EXPECT_NE(Character->GetMesh(), GetDefault<ACharacter>()->GetMesh());
	EXPECT_EQ(Character->GetCharacterMovement()->MaxWalkSpeed, 650.0f) << "as the class default object has it";
	EXPECT_EQ(Character->GetMesh()->GetAttachParent(), Character->GetCapsuleComponent());
	EXPECT_EQ(Character->GetCharacterMovement()->UpdatedComponent, Character->GetCapsuleComponent());
	EXPECT_EQ(Character->GetRootComponent(), Character->GetCapsuleComponent());
	EXPECT_EQ(GetComponentNames(Character), TEXT("CollisionCylinder Arrow CharMoveComp CharacterMesh0 "));
	EXPECT_EQ(Character->GetMesh()->GetOwner(), Character);

	Character->GetMesh()->K2_DestroyComponent(nullptr);
	EXPECT_EQ(GetComponentNames(Character), TEXT("CollisionCylinder Arrow CharMoveComp "));
	Character->K2_DestroyActor();
	EXPECT_EQ(Map->PersistentLevel->Actors.Num(), 1) << "the settings alone";
	EXPECT_EQ(Map->SpawnActor(AController::StaticClass()), nullptr) << "abstract";
}

TEST_F(World, FindsItsActors)
{
	ACharacter* const Character =
		Map->SpawnActor<ACharacter>(ACharacter::StaticClass(), FTransform(FRotator::ZeroRotator, FVector(3.0, 4.0, 0.0)));
	APlayerController* const Controller = Map->SpawnActor<APlayerController>();
	Character->Tags.Add(FName("Hero"));
	EXPECT_EQ(UGameplayStatics::GetActorOfClass(Character->GetMesh(), APawn::StaticClass()), Character);
	EXPECT_EQ(UGameplayStatics::GetPlayerController(Map, 0), Controller);
	EXPECT_EQ(UGameplayStatics::GetPlayerController(Map, 1), nullptr);
	TArray<AActor*> Found;
	UGameplayStatics::GetAllActorsWithTag(Map, FName("hero"), Found);
	EXPECT_EQ(Found, TArray<AActor*>{ Character });
	float Distance = -1.0f;
	EXPECT_EQ(UGameplayStatics::FindNearestActor(FVector::ZeroVector, { nullptr, Character }, Distance), Character);
	EXPECT_EQ(Distance, 5.0f);
}

TEST(SceneComponent, TransformsAreRelativeToTheParent)
{
	USceneComponent* const Parent = NewObject<USceneComponent>();
	USceneComponent* const Child = NewObject<USceneComponent>();
	Parent->SetRelativeLocationAndRotation(FVector(100.0, 0.0, 0.0), FRotator(0.0, 90.0, 0.0));
	EXPECT_TRUE(Child->AttachToComponent(Parent, FAttachmentTransformRules(EAttachmentRule::KeepRelative, false)));
	EXPECT_FALSE(Parent->AttachToComponent(Child, FAttachmentTransformRules(EAttachmentRule::KeepRelative, false)));
	Child->SetRelativeLocation(FVector(10.0, 0.0, 0.0));
	EXPECT_TRUE(Child->GetComponentLocation().Equals(FVector(100.0, 10.0, 0.0)));
	Child->SetWorldTransform(FTransform(FRotator::ZeroRotator, FVector(100.0, 20.0, 0.0)));
	EXPECT_TRUE(Child->GetRelativeLocation().Equals(FVector(20.0, 0.0, 0.0)));
	EXPECT_TRUE(Child->GetRelativeRotation().Equals(FRotator(0.0, -90.0, 0.0)));
}

TEST(SceneComponent, ALocationLeavesTheRotationAsItWasWritten)
{
	USceneComponent* const Component = NewObject<USceneComponent>();
	const FRotator Written(10.0, 370.0, -190.0);
	Component->SetRelativeRotation(Written);
	FHitResult Hit;
	Hit.bBlockingHit = true;
	Component->SetRelativeLocationAndRotation(FVector(1.0, 2.0, 3.0), Component->GetRelativeRotation().Quaternion(), false, &Hit);
	EXPECT_EQ(Component->GetRelativeRotation(), Written);
	EXPECT_EQ(Component->GetRelativeLocation(), FVector(1.0, 2.0, 3.0));
	EXPECT_FALSE(Hit.bBlockingHit);
}

TEST(SceneComponent, MobilityIsAnEnumOfReflection)
{
	USceneComponent* const Component = NewObject<USceneComponent>();
	FProperty* const Property = USceneComponent::StaticClass()->FindPropertyByName(FName("Mobility"));
	ASSERT_NE(Property, nullptr);
	Property->ImportText_Direct(TEXT("Stationary"), Property->ContainerPtrToValuePtr<void>(Component), Component, 0);
	EXPECT_EQ(Component->Mobility, EComponentMobility::Stationary);
}
