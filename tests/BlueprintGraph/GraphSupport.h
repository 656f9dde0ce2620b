#pragma once

// A Blueprint that tests make nodes in, and short notations of pins and types.

#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Misc/OutputDevice.h"
#include "GameFramework/Actor.h"
#include "UObject/NoExportTypes.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const FString& Text, std::ostream* Out)
{
	*Out << '"' << TCHAR_TO_UTF8(*Text) << '"';
}

/** "object(Actor)", "real/double", "int[]", "int{}", "name{int}", with "&" for a reference. */
inline FString Describe(const FEdGraphPinType& Type)
{
	const auto Terminal = [](FName Category, FName SubCategory, const UObject* Object)
	{
		return Category.ToString() + (SubCategory.IsNone() ? FString() : TEXT("/") + SubCategory.ToString()) +
			(Object ? TEXT("(") + Object->GetName() + TEXT(")") : FString());
	};
	const FEdGraphTerminalType& Value = Type.PinValueType;
	FString Text = Terminal(Type.PinCategory, Type.PinSubCategory, Type.PinSubCategoryObject.Get());
	Text += Type.IsArray() ? TEXT("[]") : Type.IsSet() ? TEXT("{}") : TEXT("");
	if (Type.IsMap())
	{
		Text += TEXT("{") + Terminal(Value.TerminalCategory, Value.TerminalSubCategory, Value.TerminalSubCategoryObject.Get()) + TEXT("}");
	}
	return Text + (Type.bIsReference ? TEXT("&") : TEXT(""));
}

/** "<execute:exec <Condition:bool=true >then:exec": inputs and outputs with types and defaults; "*" hidden, "!" an orphan. */
inline FString Describe(const UEdGraphNode* Node)
{
	FString Text;
	for (const UEdGraphPin* const Pin : Node->Pins)
	{
		Text += Text.IsEmpty() ? TEXT("") : TEXT(" ");
		Text += (Pin->Direction == EGPD_Input ? TEXT("<") : TEXT(">")) + Pin->GetName() + TEXT(":") + Describe(Pin->PinType);
		Text += Pin->IsDefaultAsStringEmpty() ? FString() : TEXT("=") + Pin->GetDefaultAsString();
		Text += FString(Pin->bHidden ? TEXT("*") : TEXT("")) + (Pin->bOrphanedPin ? TEXT("!") : TEXT(""));
	}
	return Text;
}

inline FEdGraphPinType MakeType(FName Category, UObject* Object = nullptr, EPinContainerType Container = EPinContainerType::None)
{
	return FEdGraphPinType(
		Category, Category == UEdGraphSchema_K2::PC_Real ? UEdGraphSchema_K2::PC_Double : FName(), Object, Container, false, {});
}

/**
 * An actor's Blueprint "Lamp" with a class as a compile makes it: the variables Health (int), Wires (array of names) and the dispatcher
 * OnBroken(double Force), the function ComputeLight(int Level, out double Light, bool ReturnValue). The variable Glow (real) has been
 * added since.
 */
class FLamp
{
public:
	FLamp()
	{
		Blueprint.Reset(NewObject<UBlueprint>(
			GetTransientPackage(), MakeUniqueObjectName(GetTransientPackage(), UBlueprint::StaticClass(), TEXT("Lamp")), RF_Transactional));
		Blueprint->ParentClass = AActor::StaticClass();
		Class = NewObject<UBlueprintGeneratedClass>(GetTransientPackage(), FName(Blueprint->GetName() + TEXT("_C")));
		Class->ClassGeneratedBy = Blueprint.Get();
		Class->SetSuperStruct(AActor::StaticClass());
		Class->Bind();
		Blueprint->GeneratedClass = Class;
		AddMembers();
		Class->StaticLink();
		FBPVariableDescription& Glow = Blueprint->NewVariables.AddDefaulted_GetRef();
		Glow.VarName = TEXT("Glow");
		Glow.VarType = MakeType(UEdGraphSchema_K2::PC_Real);
		Graph = NewObject<UEdGraph>(Blueprint.Get(), FName(TEXT("EventGraph")), RF_Transactional);
		Graph->Schema = UEdGraphSchema_K2::StaticClass();
		Blueprint->UbergraphPages.Add(Graph);
	}

	template <typename PropertyType>
	static PropertyType* AddProperty(UStruct* Owner, const TCHAR* Name, uint64 Flags = CPF_Edit | CPF_BlueprintVisible)
	{
		PropertyType* const Property = new PropertyType(Owner, FName(Name), RF_Public);
		Property->SetPropertyFlags(static_cast<EPropertyFlags>(Flags));
		Owner->AddCppProperty(Property);
		return Property;
	}

	UFunction* AddFunction(const TCHAR* Name, EFunctionFlags Flags)
	{
		UFunction* const Function = NewObject<UFunction>(Class, FName(Name), RF_Public);
		Function->FunctionFlags = Flags;
		Class->AddFunction(Function);
		return Function;
	}

	template <typename NodeType>
	NodeType* Add(
		TFunctionRef<void(NodeType&)> Prepare = [](NodeType&) {}, UEdGraph* Where = nullptr) const
	{
		FGraphNodeCreator<NodeType> Creator(Where ? *Where : *Graph);
		NodeType* const Node = Creator.CreateNode();
		Prepare(*Node);
		Creator.Finalize();
		return Node;
	}

	/** A graph for a function of that name. */
	UEdGraph* AddFunctionGraph(const TCHAR* Name) const
	{
		UEdGraph* const Result = NewObject<UEdGraph>(Blueprint.Get(), FName(Name), RF_Transactional);
		Result->Schema = UEdGraphSchema_K2::StaticClass();
		Blueprint->FunctionGraphs.Add(Result);
		return Result;
	}

	TStrongObjectPtr<UBlueprint> Blueprint;
	UClass* Class = nullptr;
	UFunction* ComputeLight = nullptr;
	UEdGraph* Graph = nullptr;

private:
	void AddMembers()
	{
		AddProperty<FIntProperty>(Class, TEXT("Health"));
		FArrayProperty* const Wires = AddProperty<FArrayProperty>(Class, TEXT("Wires"));
		Wires->Inner = new FNameProperty(Wires, TEXT("Wires"));
		UFunction* const Signature = AddFunction(TEXT("OnBroken__DelegateSignature"), FUNC_Delegate | FUNC_MulticastDelegate);
		AddProperty<FDoubleProperty>(Signature, TEXT("Force"), CPF_Parm);
		Signature->StaticLink();
		AddProperty<FMulticastInlineDelegateProperty>(Class, TEXT("OnBroken"), CPF_BlueprintAssignable | CPF_BlueprintVisible)
			->SignatureFunction = Signature;
		ComputeLight = AddFunction(TEXT("ComputeLight"), FUNC_BlueprintCallable | FUNC_Public);
		AddProperty<FIntProperty>(ComputeLight, TEXT("Level"), CPF_Parm);
		AddProperty<FDoubleProperty>(ComputeLight, TEXT("Light"), CPF_Parm | CPF_OutParm);
		AddProperty<FBoolProperty>(ComputeLight, TEXT("ReturnValue"), CPF_Parm | CPF_OutParm | CPF_ReturnParm);
		ComputeLight->StaticLink();
	}
};

inline const UEdGraphSchema_K2& Schema()
{
	return *GetDefault<UEdGraphSchema_K2>();
}
