#pragma once

#include "Engine/Blueprint.h"
#include "Factories/Factory.h"
#include "BlueprintFactory.generated.h"

/** Makes Blueprints. A parent class that no Blueprint can derive from is refused with a line to the given output. */
UCLASS()
class UNREALED_API UBlueprintFactory : public UFactory
{
	GENERATED_BODY()

public:
	UBlueprintFactory();

	UPROPERTY(EditAnywhere, Category = BlueprintFactory)
	TEnumAsByte<EBlueprintType> BlueprintType = BPTYPE_Normal;

	UPROPERTY(EditAnywhere, Category = BlueprintFactory)
	TSubclassOf<UObject> ParentClass;

	UObject* FactoryCreateNew(
		UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context,
		FFeedbackContext* Warn, FName CallingContext) override;
};
