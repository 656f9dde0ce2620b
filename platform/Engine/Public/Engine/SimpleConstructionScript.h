#pragma once

#include "Engine/SCS_Node.h"
#include "SimpleConstructionScript.generated.h"

/** The components that a Blueprint adds to its actors, as trees of attachment. Lies in the Blueprint's generated class. */
UCLASS()
class ENGINE_API USimpleConstructionScript : public UObject
{
	GENERATED_BODY()

public:
	/** Every node, each before those attached to it. */
	TArray<USCS_Node*> GetAllNodes() const;
	const TArray<TObjectPtr<USCS_Node>>& GetRootNodes() const { return RootNodes; }
	USCS_Node* FindSCSNode(FName InName) const;
	/** Null for a node at root level. */
	USCS_Node* FindParentNode(const USCS_Node* InNode) const;
	/** A scene root that stands in while no other scene component is there; null when there is none. */
	USCS_Node* GetDefaultSceneRootNode() const { return DefaultSceneRootNode; }

	/**
	 * A node with a template of the class; it is in the script once AddNode is called, or AddChildNode of another node.
	 * @param NewComponentVariableName NAME_None for one made from the class's. A name that the class has gets a number.
	 * @return null when the class is no component or abstract, or the name is none that an object can have
	 */
	USCS_Node* CreateNode(UClass* NewComponentClass, FName NewComponentVariableName = NAME_None);
	/** To root level. */
	void AddNode(USCS_Node* Node);
	/** With the nodes below it. @param bValidateSceneRootNodes puts the default scene root back when no other scene component is left */
	void RemoveNode(USCS_Node* Node, bool bValidateSceneRootNodes = true);
	/** Takes out the default scene root when another scene component is there, and puts it in when there is none. */
	void ValidateSceneRootNodes();
	/** A name for a variable that neither the class nor its Blueprint has. */
	FName GenerateNewComponentName(const UClass* ComponentClass, FName DesiredName = NAME_None) const;

	UClass* GetOwnerClass() const;
	UBlueprint* GetBlueprint() const;

	void Serialize(FArchive& Ar) override;

private:
	/** A scene component at root level, beside the stand-in. */
	USCS_Node* FindSceneRoot() const;
	/** Whether the parent class brings one. */
	bool InheritsSceneRoot() const;
	bool IsNameTaken(FName Name) const;

	UPROPERTY()
	TArray<TObjectPtr<USCS_Node>> RootNodes;

	UPROPERTY()
	TObjectPtr<USCS_Node> DefaultSceneRootNode;
};
