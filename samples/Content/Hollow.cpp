#include "AssetMaker.h"
#include "BlueprintMaker.h"
#include "Camera/CameraComponent.h"
#include "Content.h"
#include "Engine/World.h"
#include "GameFramework/Character.h"
#include "GameFramework/SpringArmComponent.h"
#include "PinTypes.h"

namespace
{
UClass* MakeKeeper(UClass* LanternPost)
{
	FBlueprintMaker Keeper(TEXT("Keeper/BP_Keeper"), ACharacter::StaticClass());
	Keeper.Variable(TEXT("OilCarried"), PinTypes::Real(), TEXT("350.0"), TEXT("Oil"));
	Keeper.Variable(TEXT("Round"), PinTypes::In(EPinContainerType::Array, PinTypes::Object(LanternPost)), TEXT(""), TEXT("Round"));
	USCS_Node* const Boom = Keeper.Component(TEXT("Boom"), USpringArmComponent::StaticClass(), nullptr, FVector(0.0, 0.0, 60.0));
	SetProperty(Boom->ComponentTemplate, TEXT("TargetArmLength"), TEXT("420.0"));
	Keeper.Component(TEXT("Camera"), UCameraComponent::StaticClass(), Boom);
	Keeper.Compile();
	const FGraphMaker Tend = Keeper.Function(TEXT("TendLantern"));
	FBlueprintMaker::Parameter(Tend.Entry(), TEXT("Lantern"), PinTypes::Object(LanternPost));
	UK2Node* const Refill = Tend.Call(LanternPost, TEXT("Refill"), 350, 0);
	FGraphMaker::Link(Tend.Entry(), TEXT("Lantern"), Refill, UEdGraphSchema_K2::PN_Self);
	FGraphMaker::Link(Tend.Get(TEXT("OilCarried"), 100, 160), TEXT("OilCarried"), Refill, TEXT("Millilitres"));
	FGraphMaker::Chain({ Tend.Entry(), Refill });
	Keeper.Save();
	return Keeper.GetClass();
}
}

void MakeHollow(const FLanternTypes&, UClass* LanternPost)
{
	UClass* const Keeper = MakeKeeper(LanternPost);
	UWorld* const Hollow = UWorld::CreateWorld(MakePackage(TEXT("Maps/Hollow")), TEXT("Hollow"));
	Hollow->SetFlags(AssetFlags);
	const TCHAR* const Paths[] = { TEXT("The Birch Walk"), TEXT("Fern Stairs"), TEXT("The Old Weir") };
	for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(Paths)); ++Index)
	{
		const FTransform Place(FVector(600.0 * Index, 150.0 * (Index % 2), 0.0));
		SetProperty(Hollow->SpawnActor(LanternPost, &Place), TEXT("PathName"), Paths[Index]);
	}
	Hollow->SpawnActor(Keeper);
	SaveAsset(Hollow);
}
