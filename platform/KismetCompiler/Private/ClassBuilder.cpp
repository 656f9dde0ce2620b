#include "ClassBuilder.h"

#include "ClassMembers.h"
#include "Components/TimelineComponent.h"
#include "DelegateSignatures.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "FunctionBuilder.h"
#include "Kismet2/CompilerResultsLog.h"
#include "PinTypeProperty.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UnrealType.h"

namespace
{
const FName CategoryKey(TEXT("Category"));
const FName DisplayNameKey(TEXT("DisplayName"));

void SetMetaData(FProperty& Property, const TArray<FBPVariableMetaDataEntry>& Entries)
{
	for (const FBPVariableMetaDataEntry& Entry : Entries)
	{
		Property.SetMetaData(Entry.DataKey, Entry.DataValue);
	}
}

/** An event dispatcher may be described as a delegate that others can bind to. */
FEdGraphPinType GetVariableType(const FBPVariableDescription& Variable)
{
	FEdGraphPinType Type = Variable.VarType;
	if (Type.PinCategory == UEdGraphSchema_K2::PC_Delegate && (Variable.PropertyFlags & CPF_BlueprintAssignable))
	{
		Type.PinCategory = UEdGraphSchema_K2::PC_MCDelegate;
	}
	return Type;
}

void AddVariable(FClassMembers& Members, const FBPVariableDescription& Variable, FDelegateSignatures& Signatures)
{
	FProperty* Property = CreatePropertyFromPinType(&Members.Class, Variable.VarName, GetVariableType(Variable), &Members.Class);
	if (!Property)
	{
		Members.Log.Error(TEXT("The type of the variable @@ is unknown, or what it refers to is gone"), Variable.VarName.ToString());
		return;
	}
	Property = Members.Add(Property);
	if (!Property)
	{
		return;
	}
	Signatures.Complete(*Property);
	Property->SetPropertyFlags(static_cast<EPropertyFlags>(Variable.PropertyFlags));
	Property->RepNotifyFunc = Variable.PropertyFlags & CPF_RepNotify ? Variable.RepNotifyFunc : FName();
	Property->SetMetaData(CategoryKey, Variable.Category.ToString());
	if (!Variable.FriendlyName.IsEmpty())
	{
		Property->SetMetaData(DisplayNameKey, Variable.FriendlyName);
	}
	SetMetaData(*Property, Variable.MetaDataArray);
}

FObjectProperty* AddComponentProperty(FClassMembers& Members, FName Name, UClass* ComponentClass)
{
	auto* const Property = new FObjectProperty(&Members.Class, Name, RF_Public);
	Property->PropertyClass = ComponentClass;
	Property->SetPropertyFlags(CPF_BlueprintVisible | CPF_InstancedReference | CPF_NonTransactional);
	Property->SetMetaData(FName(TEXT("EditInline")), TEXT("true"));
	return Members.Add(Property) ? Property : nullptr;
}

void AddComponents(FClassMembers& Members, const USimpleConstructionScript& Script)
{
	for (const USCS_Node* const Node : Script.GetAllNodes())
	{
		UClass* const ComponentClass = Node->ComponentTemplate ? Node->ComponentTemplate->GetClass() : Node->ComponentClass.Get();
		if (!ComponentClass)
		{
			Members.Log.Error(TEXT("The class of the component @@ is gone"), Node->GetVariableName().ToString());
		}
		else if (FObjectProperty* const Property = AddComponentProperty(Members, Node->GetVariableName(), ComponentClass))
		{
			Property->SetMetaData(CategoryKey, Node->CategoryName.ToString());
			SetMetaData(*Property, Node->MetaDataArray);
		}
	}
}

template <typename T>
T* AddVisible(FClassMembers& Members, FName Name)
{
	auto* const Property = new T(&Members.Class, Name, RF_Public);
	Property->SetPropertyFlags(CPF_BlueprintVisible);
	return static_cast<T*>(Members.Add(Property));
}

void AddStruct(FClassMembers& Members, FName Name, UScriptStruct* Struct)
{
	auto* const Property = new FStructProperty(&Members.Class, Name, RF_Public);
	Property->Struct = Struct;
	Property->SetPropertyFlags(CPF_BlueprintVisible);
	Members.Add(Property);
}

/** The component that runs it, its direction, and the values of its tracks. */
void AddTimeline(FClassMembers& Members, const UTimelineTemplate& Timeline)
{
	AddComponentProperty(Members, Timeline.GetVariableName(), UTimelineComponent::StaticClass());
	if (auto* const Direction = AddVisible<FByteProperty>(Members, Timeline.GetDirectionPropertyName()))
	{
		Direction->Enum = StaticEnum<ETimelineDirection::Type>();
	}
	for (const FTTFloatTrack& Track : Timeline.FloatTracks)
	{
		AddVisible<FFloatProperty>(Members, Track.GetPropertyName());
	}
	for (const FTTVectorTrack& Track : Timeline.VectorTracks)
	{
		AddStruct(Members, Track.GetPropertyName(), TBaseStructure<FVector>::Get());
	}
	for (const FTTLinearColorTrack& Track : Timeline.LinearColorTracks)
	{
		AddStruct(Members, Track.GetPropertyName(), TBaseStructure<FLinearColor>::Get());
	}
}

void SetInterfaces(UClass& Class, const UBlueprint& Blueprint, FCompilerResultsLog& Log)
{
	Class.Interfaces.Empty();
	for (const FBPInterfaceDescription& Description : Blueprint.ImplementedInterfaces)
	{
		if (!Description.Interface)
		{
			Log.Error(TEXT("An interface that is implemented is gone"));
			continue;
		}
		Class.Interfaces.Add({ .Class = Description.Interface, .PointerOffset = 0, .bImplementedByK2 = true });
	}
}

EClassFlags GetClassFlags(const UBlueprint& Blueprint)
{
	const bool bInterface = Blueprint.BlueprintType == BPTYPE_Interface;
	EClassFlags Flags = CLASS_CompiledFromBlueprint;
	Flags |= Blueprint.bGenerateAbstractClass || bInterface ? CLASS_Abstract : CLASS_None;
	Flags |= Blueprint.bGenerateConstClass || Blueprint.BlueprintType == BPTYPE_Const ? CLASS_Const : CLASS_None;
	return Flags | (bInterface ? CLASS_Interface : CLASS_None);
}

/** Whoever looks for a class to derive from, or for a variable's type, asks the metadata. */
void SetClassMetaData(UClass& Class, const UBlueprint& Blueprint)
{
	Class.SetMetaData(FName(TEXT("BlueprintType")), TEXT("true"));
	Class.SetMetaData(FName(TEXT("IsBlueprintBase")), TEXT("true"));
	const TPair<const TCHAR*, FString> Texts[] = {
		{ TEXT("DisplayName"), Blueprint.BlueprintDisplayName },
		{ TEXT("ToolTip"), Blueprint.BlueprintDescription },
		{ TEXT("HideCategories"), FString::Join(Blueprint.HideCategories, TEXT(" ")) },
	};
	for (const TPair<const TCHAR*, FString>& Text : Texts)
	{
		if (!Text.Value.IsEmpty() || Class.HasMetaData(FName(Text.Key)))
		{
			Class.SetMetaData(FName(Text.Key), Text.Value);
		}
	}
}
}

void BuildBlueprintClass(const UBlueprint& Blueprint, UBlueprintGeneratedClass& Class, const UClass* Previous, FCompilerResultsLog& Log)
{
	Class.ClassFlags = GetClassFlags(Blueprint);
	Class.ClassConfigName = FName();
	Class.SimpleConstructionScript = Blueprint.SimpleConstructionScript;
	Class.ComponentTemplates = Blueprint.ComponentTemplates;
	Class.Timelines = Blueprint.Timelines;
	Class.Timelines.RemoveAll([](const UTimelineTemplate* Timeline) { return !Timeline; });
	SetInterfaces(Class, Blueprint, Log);
	SetClassMetaData(Class, Blueprint);

	FClassMembers Members(Class, Log);
	FDelegateSignatures Signatures(Members, Previous);
	AddDelegateSignatures(Members, Blueprint);
	for (const FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		AddVariable(Members, Variable, Signatures);
	}
	if (Class.SimpleConstructionScript)
	{
		AddComponents(Members, *Class.SimpleConstructionScript);
	}
	for (const UTimelineTemplate* const Timeline : Class.Timelines)
	{
		AddTimeline(Members, *Timeline);
	}
	AddFunctions(Members, Blueprint);
	Members.Finish();
	Class.Bind();
}
