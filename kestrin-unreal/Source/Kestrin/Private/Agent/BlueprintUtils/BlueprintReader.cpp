#include "Agent/BlueprintUtils.h"
#include "ContentFilter.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "JsonUtils.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

// The whole document is always made; which of its sections are given is decided at the end.

/** Gathers the sections of one Blueprint's document. */
struct FKestrinBlueprintUtils::FBlueprintReader
{
	const UBlueprint& Blueprint;
	UClass& Class;

	using FValues = TArray<TSharedPtr<FJsonValue>>;

	TSharedRef<FJsonObject> Read() const
	{
		const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
		Document->SetStringField(TEXT("Name"), Blueprint.GetName());
		Document->SetStringField(TEXT("Path"), Blueprint.GetPathName());
		Document->SetStringField(TEXT("SuperClass"), Class.GetSuperClass()->GetName());
		Document->SetObjectField(TEXT("Variables"), ReadProperties(&Class, Class.GetDefaultObject()));
		SetArrayUnlessEmpty(*Document, TEXT("Functions"), ReadFunctions());
		SetArrayUnlessEmpty(*Document, TEXT("Components"), ReadComponents());
		SetArrayUnlessEmpty(*Document, TEXT("Interfaces"), ReadInterfaces());
		Document->SetArrayField(TEXT("Graphs"), ReadGraphs(Blueprint.UbergraphPages));
		return Document;
	}

private:
	FValues ReadFunctions() const
	{
		FValues Functions;
		for (TFieldIterator<UFunction> Function(&Class); Function; ++Function)
		{
			if (PassesContentFilter(**Function))
			{
				Functions.Add(MakeShared<FJsonValueObject>(ReadFunction(**Function)));
			}
		}
		return Functions;
	}

	TSharedRef<FJsonObject> ReadFunction(const UFunction& Function) const
	{
		const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
		Json->SetStringField(TEXT("Name"), Function.GetName());
		FProperty* const ReturnProperty = Function.GetReturnProperty();
		if (ReturnProperty)
		{
			Json->SetObjectField(TEXT("ReturnType"), ReadParameter(TEXT("ReturnValue"), ReturnProperty));
		}
		else
		{
			Json->SetStringField(TEXT("ReturnType"), TEXT("void"));
		}
		FValues InParams;
		FValues OutParams;
		for (TFieldIterator<FProperty> Property(&Function); Property; ++Property)
		{
			if (*Property != ReturnProperty)
			{
				FValues& Params = Property->HasAnyPropertyFlags(CPF_OutParm) ? OutParams : InParams;
				Params.Add(MakeShared<FJsonValueObject>(ReadParameter(Property->GetName(), *Property)));
			}
		}
		SetArrayUnlessEmpty(*Json, TEXT("InParams"), InParams);
		SetArrayUnlessEmpty(*Json, TEXT("OutParams"), OutParams);
		if (const UEdGraph* const Graph = FindFunctionGraph(Function.GetName()))
		{
			Json->SetObjectField(TEXT("EdGraph"), ReadEdGraph(Graph));
		}
		return Json;
	}

	static TSharedRef<FJsonObject> ReadParameter(const FString& Name, FProperty* Property)
	{
		const TSharedRef<FJsonObject> Parameter = MakeShared<FJsonObject>();
		Parameter->SetStringField(TEXT("Name"), Name);
		Parameter->SetObjectField(TEXT("Type"), GetVarJSonObjectFromProperty(Property));
		return Parameter;
	}

	const UEdGraph* FindFunctionGraph(const FString& FunctionName) const
	{
		for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
		{
			if (Graph && Graph->GetName() == FunctionName)
			{
				return Graph;
			}
		}
		return nullptr;
	}

	FValues ReadComponents() const
	{
		FValues Values;
		TArray<UActorComponent*> Components;
		if (Class.IsChildOf(AActor::StaticClass()))
		{
			CastChecked<AActor>(Class.GetDefaultObject())->GetComponents(Components);
		}
		for (const UActorComponent* const Component : Components)
		{
			const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
			Json->SetStringField(TEXT("Name"), Component->GetName());
			Json->SetStringField(TEXT("ClassName"), Component->GetClass()->GetName());
			Values.Add(MakeShared<FJsonValueObject>(Json));
		}
		return Values;
	}

	FValues ReadInterfaces() const
	{
		FValues Values;
		for (const FBPInterfaceDescription& Implemented : Blueprint.ImplementedInterfaces)
		{
			const UClass* const Interface = Implemented.Interface;
			if (Interface && Interface->IsChildOf(UInterface::StaticClass()))
			{
				const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
				Json->SetStringField(TEXT("Name"), Interface->GetName());
				Json->SetArrayField(TEXT("Graphs"), ReadGraphs(Implemented.Graphs));
				Values.Add(MakeShared<FJsonValueObject>(Json));
			}
		}
		return Values;
	}

	static FValues ReadGraphs(const TArray<TObjectPtr<UEdGraph>>& Graphs)
	{
		FValues Values;
		for (const UEdGraph* const Graph : Graphs)
		{
			if (Graph)
			{
				Values.Add(MakeShared<FJsonValueObject>(ReadEdGraph(Graph).ToSharedRef()));
			}
		}
		return Values;
	}
};

namespace
{
/** What always goes with a section, and the section asked for. */
TArray<FString> GetKeptKeys(const FString& DataSubset)
{
	TArray<FString> Keys = { TEXT("Name"), TEXT("Path"), TEXT("SuperClass") };
	if (DataSubset.Equals(TEXT("All"), ESearchCase::IgnoreCase))
	{
		Keys.Append({ TEXT("Variables"), TEXT("Functions"), TEXT("Components"), TEXT("Interfaces"), TEXT("Graphs") });
	}
	else
	{
		Keys.Add(DataSubset);
	}
	return Keys;
}

/** Keys are found ignoring case, and given as they were asked for. */
TSharedPtr<FJsonObject> SelectKeys(const FJsonObject& Document, const TArray<FString>& Keys)
{
	const TSharedPtr<FJsonObject> Selected = MakeShared<FJsonObject>();
	for (const FString& Key : Keys)
	{
		if (const TSharedPtr<FJsonValue> Value = Document.TryGetField(Key))
		{
			Selected->SetField(Key, Value);
		}
	}
	return Selected;
}
}

FString FKestrinBlueprintUtils::ReadBlueprint(const FString& BlueprintName, FString DataSubset)
{
	const UBlueprint* const Blueprint = GetBlueprintFromtBlueprintName(BlueprintName);
	if (!Blueprint)
	{
		return SerializeMessage(TEXT("Error"), FString::Printf(TEXT("Blueprint '%s' not found."), *BlueprintName));
	}
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Blueprint->GeneratedClass);
	if (!Class)
	{
		return SerializeMessage(TEXT("Error"), FString::Printf(TEXT("Loaded asset is not a Blueprint: %s"), *BlueprintName));
	}
	const TSharedRef<FJsonObject> Document = FBlueprintReader{ *Blueprint, *Class }.Read();
	return SerializeJson(SelectKeys(*Document, GetKeptKeys(DataSubset)));
}
