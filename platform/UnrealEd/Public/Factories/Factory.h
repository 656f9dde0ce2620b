#pragma once

#include "UObject/Object.h"
#include "Factory.generated.h"

class FFeedbackContext;

/** Makes new assets of one kind. */
UCLASS(Abstract)
class UNREALED_API UFactory : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Makes the asset.
	 * @param InParent its package
	 * @return null when it can't be made; Warn has the reason
	 */
	virtual UObject* FactoryCreateNew(
		UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn)
	{
		return nullptr;
	}
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context,
		FFeedbackContext* Warn, FName CallingContext)
	{
		return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn);
	}
	virtual bool CanCreateNew() const { return bCreateNew; }

	/** What it makes. */
	UPROPERTY()
	TObjectPtr<UClass> SupportedClass;

	UPROPERTY()
	uint32 bCreateNew : 1 = false;
};
