#pragma once

// Engine: Blueprints with their graphs, variables, components and timelines; the classes of actors, components and assets that a
// small game's Blueprints use, with the properties that one sees of them; function libraries; curves; worlds as assets.
//
// It leaves out what a running game is: nothing is drawn, heard, moved, swept or simulated, nobody plays, and assets such as meshes,
// textures and sounds are names with settings. What Blueprints are compiled with and edited by lies in the editor's modules.

#include "EdGraph/EdGraph.h"
#include "Engine/BlueprintCore.h"
#include "UObject/Interface.h"
#include "Blueprint.generated.h"

class UActorComponent;
class USimpleConstructionScript;
class UTimelineTemplate;

/** What the last compile came to, or why there must be one. */
UENUM()
enum EBlueprintStatus : int
{
	BS_Unknown,
	/** Changed since. */
	BS_Dirty,
	BS_Error,
	BS_UpToDate,
	BS_BeingCreated,
	BS_UpToDateWithWarnings,
	BS_MAX,
};

UENUM()
enum EBlueprintType : int
{
	BPTYPE_Normal,
	BPTYPE_Const,
	BPTYPE_MacroLibrary,
	BPTYPE_Interface,
	BPTYPE_LevelScript,
	BPTYPE_FunctionLibrary,
	BPTYPE_MAX,
};

USTRUCT()
struct ENGINE_API FBPVariableMetaDataEntry
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = BPVariableMetaDataEntry)
	FName DataKey;

	UPROPERTY(EditAnywhere, Category = BPVariableMetaDataEntry)
	FString DataValue;
};

/** A variable that a Blueprint declares. */
USTRUCT()
struct ENGINE_API FBPVariableDescription
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FName VarName;

	/** Stays when the name changes. */
	UPROPERTY()
	FGuid VarGuid;

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FEdGraphPinType VarType;

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FString FriendlyName;

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FText Category;

	/** EPropertyFlags */
	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	uint64 PropertyFlags = CPF_Edit;

	/** What runs on a client when the value arrives; for CPF_RepNotify. */
	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FName RepNotifyFunc;

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	/** As text, for the class default object; that object has the word from the compile on. */
	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	FString DefaultValue;

	/** DefaultValue as the last compile has given it to the class default object. */
	UPROPERTY()
	FString CompiledDefaultValue;

	void SetMetaData(FName Key, FString Value);
	/** INDEX_NONE when there is no such key. */
	int32 FindMetaDataEntryIndexForKey(FName Key) const;
	bool HasMetaData(FName Key) const { return FindMetaDataEntryIndexForKey(Key) != INDEX_NONE; }
	/** The key must be there. */
	const FString& GetMetaData(FName Key) const;
	void RemoveMetaData(FName Key);
};

/** An interface that a Blueprint implements, with the graphs of its functions. */
USTRUCT()
struct ENGINE_API FBPInterfaceDescription
{
	GENERATED_BODY()

	UPROPERTY()
	TSubclassOf<UInterface> Interface;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> Graphs;
};

/** A class written in the editor: its variables, graphs and components, and the class that the compile makes of them. */
UCLASS(Config = Engine)
class ENGINE_API UBlueprint : public UBlueprintCore
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<UObject> ParentClass;

	UPROPERTY()
	TEnumAsByte<EBlueprintType> BlueprintType = BPTYPE_Normal;

	UPROPERTY(EditAnywhere, Category = ClassOptions)
	uint8 bGenerateConstClass : 1 = 0;

	UPROPERTY(EditAnywhere, Category = ClassOptions)
	uint8 bGenerateAbstractClass : 1 = 0;

	/** Being compiled at the moment. */
	uint8 bBeingCompiled : 1 = 0;

	/** Members have changed since the skeleton was made; who asks for it gets a new one. */
	uint8 bSkeletonOutdated : 1 = 0;

	UPROPERTY(Transient)
	TEnumAsByte<EBlueprintStatus> Status = BS_Unknown;

	/** What the last compile came to, whatever was changed since; a file remembers it. */
	UPROPERTY()
	TEnumAsByte<EBlueprintStatus> CompiledStatus = BS_UpToDate;

	UPROPERTY()
	TObjectPtr<USimpleConstructionScript> SimpleConstructionScript;

	UPROPERTY(EditAnywhere, Category = BlueprintOptions)
	FString BlueprintDisplayName;

	UPROPERTY(EditAnywhere, Category = BlueprintOptions)
	FString BlueprintDescription;

	UPROPERTY(EditAnywhere, Category = BlueprintOptions)
	FString BlueprintNamespace;

	UPROPERTY(EditAnywhere, Category = BlueprintOptions)
	FString BlueprintCategory;

	UPROPERTY(EditAnywhere, Category = BlueprintOptions)
	TArray<FString> HideCategories;

	UPROPERTY()
	TArray<FBPVariableDescription> NewVariables;

	/** Graphs of events. */
	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> UbergraphPages;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> FunctionGraphs;

	/** The signatures of the event dispatchers, under their names. */
	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> DelegateSignatureGraphs;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> MacroGraphs;

	UPROPERTY()
	TArray<FBPInterfaceDescription> ImplementedInterfaces;

	/** What nodes that add a component make it from. */
	UPROPERTY()
	TArray<TObjectPtr<UActorComponent>> ComponentTemplates;

	UPROPERTY()
	TArray<TObjectPtr<UTimelineTemplate>> Timelines;

	bool IsUpToDate() const { return Status == BS_UpToDate || Status == BS_UpToDateWithWarnings; }
	/** Not in the middle of being made or compiled. */
	bool IsPossiblyDirty() const { return Status == BS_Dirty || Status == BS_Unknown; }
	FString GetFriendlyName() const { return GetName(); }
	/** The class that graphs are written against: the skeleton, which is brought up to date, or else the generated one. */
	UClass* GetSkeletonOrGeneratedClass() const;
	/** Makes the skeleton; set by the compiler, which lies above. */
	static void (*GenerateSkeleton)(UBlueprint* Blueprint);
	/** The graphs of every kind, with those below them. */
	virtual void GetAllGraphs(TArray<UEdGraph*>& Graphs) const;
	UTimelineTemplate* FindTimelineTemplateByVariableName(FName TimelineName) const;
	/** The Blueprint that the class was generated from, null for a native one. */
	static UBlueprint* GetBlueprintFromClass(const UClass* InClass);
	/** The kind of class that the compile makes. */
	virtual UClass* GetBlueprintClass() const;
	virtual bool SupportedByDefaultBlueprintFactory() const { return true; }
	/** Adds "GeneratedClass", "ParentClass" and "NativeParentClass": how the value of a class property would be written. */
	void GetAssetRegistryTags(FAssetRegistryTagsContext Context) const override;
	/** The class comes from the file, and nobody has judged it yet. One whose parent is gone has an error. */
	void PostLoad() override;
	DECLARE_MULTICAST_DELEGATE_OneParam(FChangedEvent, UBlueprint*);
	FChangedEvent& OnChanged() { return ChangedEvent; }
	FChangedEvent& OnCompiled() { return CompiledEvent; }
	void BroadcastChanged() { ChangedEvent.Broadcast(this); }
	void BroadcastCompiled() { CompiledEvent.Broadcast(this); }

private:
	FChangedEvent ChangedEvent;
	FChangedEvent CompiledEvent;
};
