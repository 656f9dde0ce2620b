#pragma once

#include "Components/MeshComponent.h"
#include "StaticMeshComponent.generated.h"

class UStaticMesh;

/** Shows a static mesh. */
UCLASS(Blueprintable, ClassGroup = (Rendering, Common), hidecategories = (Object, Activation, "Components|Activation"),
	ShowCategories = (Mobility), editinlinenew, meta = (BlueprintSpawnableComponent))
class ENGINE_API UStaticMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	UStaticMeshComponent();

	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	virtual bool SetStaticMesh(UStaticMesh* NewMesh);
	UStaticMesh* GetStaticMesh() const { return StaticMesh; }

private:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = StaticMesh, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UStaticMesh> StaticMesh;

public:
	/** 0 for none. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = LOD)
	int32 ForcedLodModel = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = LOD)
	int32 MinLOD = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, AdvancedDisplay, Category = Rendering)
	uint8 bOverrideMinLOD : 1 = 0;
};
