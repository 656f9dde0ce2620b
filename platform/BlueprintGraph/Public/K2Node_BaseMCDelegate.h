#pragma once

#include "K2Node.h"
#include "K2Node_BaseMCDelegate.generated.h"

/** Does something with an event dispatcher. */
UCLASS(Abstract)
class BLUEPRINTGRAPH_API UK2Node_BaseMCDelegate : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FMemberReference DelegateReference;

	void SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass);
	FName GetPropertyName() const { return DelegateReference.GetMemberName(); }
	/** Null when there is no such dispatcher. */
	FMulticastDelegateProperty* GetProperty() const;
	/** Its parameters are the dispatcher's; null when there are none or no dispatcher. */
	UFunction* GetDelegateSignature() const;

	/** "execute", "then" and the dispatcher's object. */
	void AllocateDefaultPins() override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

protected:
	FText GetTitle(const TCHAR* Verb) const;
};
