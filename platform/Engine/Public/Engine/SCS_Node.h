#pragma once

#include "Engine/Blueprint.h"
#include "SCS_Node.generated.h"

class UActorComponent;
class USimpleConstructionScript;

/** A component that a Blueprint adds to its actors: the template they get it from, and the name of the variable that holds it. */
UCLASS()
class ENGINE_API USCS_Node : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UClass> ComponentClass;

	/** Lies in the Blueprint's generated class, as "<Variable>_GEN_VARIABLE". */
	UPROPERTY()
	TObjectPtr<UActorComponent> ComponentTemplate;

	UPROPERTY(EditAnywhere, Category = BlueprintComponents)
	FText CategoryName;

	/** The socket of the parent that the component is at. */
	UPROPERTY()
	FName AttachToName;

	/** Of a node at root level: the native or inherited component that it is attached to. */
	UPROPERTY()
	FName ParentComponentOrVariableName;

	UPROPERTY()
	FName ParentComponentOwnerClassName;

	UPROPERTY()
	bool bIsParentComponentNative = false;

	UPROPERTY()
	TArray<TObjectPtr<USCS_Node>> ChildNodes;

	UPROPERTY(EditAnywhere, Category = BlueprintComponents)
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	UPROPERTY()
	FGuid VariableGuid;

	USimpleConstructionScript* GetSCS() const;
	FName GetVariableName() const { return InternalVariableName; }
	/** @param bRenameTemplate the template's name follows */
	void SetVariableName(FName NewName, bool bRenameTemplate = true);
	/** What a template is called whose variable has the name. */
	static FString GetTemplateName(FName VariableName);
	const TArray<TObjectPtr<USCS_Node>>& GetChildNodes() const { return ChildNodes; }
	/** This node, then those below it. */
	void GetAllNodes(TArray<USCS_Node*>& OutNodes);
	void AddChildNode(USCS_Node* InNode);
	void RemoveChildNode(USCS_Node* InNode);
	bool IsChildOf(const USCS_Node* TestParent) const;
	/** Attaches a root-level node to a component that a parent class has. */
	void SetParent(const USCS_Node* InParentNode);
	/** The same for one that C++ made. */
	void SetParent(const class USceneComponent* InParentComponent);

private:
	UPROPERTY()
	FName InternalVariableName;
};
