#pragma once

// BlueprintGraph: the graphs of Blueprints. Their schema (types of pins, which pins fit, defaults) and the kinds of nodes, with the
// pins and titles that the engine gives them.
//
// It leaves out what nothing here needs: macros, collapsed graphs, split pins, menus of actions, nodes that expand into others, and
// how nodes become code.

#include "EdGraph/EdGraphSchema.h"
#include "EdGraphSchema_K2.generated.h"

class UK2Node_VariableGet;
class UK2Node_VariableSet;

/** The rules of Blueprints' graphs. */
UCLASS()
class BLUEPRINTGRAPH_API UEdGraphSchema_K2 : public UEdGraphSchema
{
	GENERATED_BODY()

public:
	// Categories of pin types.
	static const FName PC_Exec;
	static const FName PC_Boolean;
	/** A number or, with an enum as object, an enum. */
	static const FName PC_Byte;
	static const FName PC_Class;
	static const FName PC_SoftClass;
	static const FName PC_Int;
	static const FName PC_Int64;
	/** With the sub-category PC_Float or PC_Double. */
	static const FName PC_Real;
	static const FName PC_Float;
	static const FName PC_Double;
	static const FName PC_Name;
	static const FName PC_Delegate;
	static const FName PC_MCDelegate;
	static const FName PC_Object;
	static const FName PC_SoftObject;
	static const FName PC_Interface;
	static const FName PC_String;
	static const FName PC_Text;
	static const FName PC_Struct;
	/** Takes the type of what is linked to it. */
	static const FName PC_Wildcard;
	static const FName PC_Enum;
	static const FName PC_FieldPath;
	/** A sub-category: the graph's own class. */
	static const FName PSC_Self;

	// Names of pins.
	static const FName PN_Execute;
	static const FName PN_Then;
	static const FName PN_Completed;
	static const FName PN_Self;
	static const FName PN_Else;
	static const FName PN_ReturnValue;
	static const FName PN_ObjectToCast;
	static const FName PN_Condition;
	static const FName PN_CastSucceeded;
	static const FName PN_CastFailed;
	static const FString PN_CastedValuePrefix;

	static const FName FN_UserConstructionScript;
	static const FName FN_ExecuteUbergraphBase;
	static const FName GN_EventGraph;
	/** The category of a variable for which none was given. */
	static const FText VR_DefaultCategory;

	static bool IsExecPin(const UEdGraphPin& Pin) { return Pin.PinType.PinCategory == PC_Exec; }
	/** The object that a call or a variable is of. */
	static bool IsSelfPin(const UEdGraphPin& Pin) { return Pin.PinName == PN_Self; }
	static UEdGraphPin* FindExecutionPin(const UEdGraphNode& Node, EEdGraphPinDirection PinDirection);
	static UEdGraphPin* FindSelfPin(const UEdGraphNode& Node, EEdGraphPinDirection PinDirection)
	{
		return Node.FindPin(PN_Self, PinDirection);
	}

	/** @return false for a property that no pin can have the type of; TypeOut is a default pin type then */
	static bool ConvertPropertyToPinType(const FProperty* Property, FEdGraphPinType& TypeOut);
	/** For the user: "Array of Integers", "Actor Object Reference". */
	static FText TypeToText(const FEdGraphPinType& Type);
	/** The function's name with blanks, or its display name. */
	static FText GetFriendlySignatureName(const UFunction* Function);
	/** The class's display name; of a Blueprint's class without "_C". */
	static FText GetFriendlyClassName(const UClass* Class);
	/** The class that games have, for a skeleton class that stands in for it. */
	static UClass* GetAuthoritativeClass(UClass* Class);
	/** What a parameter has when nobody gives it a value. @return false when the function does not say */
	static bool FindFunctionParameterDefaultValue(const UFunction* Function, const FProperty* Parameter, FString& OutString);
	/** The function that a delegate type refers to, or null. */
	static UFunction* FindDelegateSignature(const FEdGraphPinType& Type, UClass* SelfScope);

	/**
	 * Whether a value of one type can flow into the other: without a conversion, other than between the two kinds of reals, to a parent
	 * class or struct, and of an enum to a number.
	 * @param CallingContext the class that "self" means; null makes "self" fit any class
	 */
	bool ArePinTypesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext = nullptr) const;
	/** In whichever order the pins are given. */
	bool ArePinsCompatible(const UEdGraphPin* PinA, const UEdGraphPin* PinB, const UClass* CallingContext = nullptr) const;
	FPinConnectionResponse CanCreateConnection(const UEdGraphPin* A, const UEdGraphPin* B) const override;

	FString IsPinDefaultValid(
		const UEdGraphPin* Pin, const FString& NewDefaultValue, UObject* NewDefaultObject, const FText& InNewDefaultText) const override;
	/** The same for what the pin has. Only for an input to which nothing is linked. */
	FString IsCurrentPinDefaultValid(const UEdGraphPin* Pin) const;
	/** Whether the default is one of the type; an empty text is one of any type. @param OutMsg why not; may be null */
	bool DefaultValueSimpleValidation(const FEdGraphPinType& PinType, const FName PinName, const FString& NewDefaultValue,
		UObject* NewDefaultObject, const FText& InText, FString* OutMsg = nullptr) const;
	/** A default's text as the pin keeps it: objects are looked for and loaded, texts read. Exactly one of the three is set. */
	void GetPinDefaultValuesFromString(const FEdGraphPinType& PinType, const FString& NewDefaultValue, FString& UseDefaultValue,
		TObjectPtr<UObject>& UseDefaultObject, FText& UseDefaultText) const;
	/** Nothing changes when the text is no default of the pin's type. */
	void TrySetDefaultValue(UEdGraphPin& Pin, const FString& NewDefaultValue, bool bMarkAsModified = true) const override;
	void TrySetDefaultObject(UEdGraphPin& Pin, UObject* NewDefaultObject, bool bMarkAsModified = true) const override;
	void TrySetDefaultText(UEdGraphPin& Pin, const FText& InNewDefaultText, bool bMarkAsModified = true) const override;
	void ResetPinToAutogeneratedDefaultValue(UEdGraphPin* Pin, bool bCallModifyCallbacks = true) const override;
	void SetPinAutogeneratedDefaultValue(UEdGraphPin* Pin, const FString& NewValue) const override;
	/** "0", "false" and so on; empty for a type without such a value. */
	void SetPinAutogeneratedDefaultValueBasedOnType(UEdGraphPin* Pin) const;

	/**
	 * A placed node, whether there is such a variable or not.
	 * @param Source the class that has the variable, or the function for a local one; null for the graph's own class
	 * @return null for a graph outside of any Blueprint
	 */
	UK2Node_VariableGet* SpawnVariableGetNode(
		const FVector2D GraphPosition, UEdGraph* ParentGraph, FName VariableName, UStruct* Source) const;
	UK2Node_VariableSet* SpawnVariableSetNode(
		const FVector2D GraphPosition, UEdGraph* ParentGraph, FName VariableName, UStruct* Source) const;

	/** EFunctionFlags, into the graph's entry nodes. */
	void AddExtraFunctionFlags(const UEdGraph* CurrentGraph, int32 ExtraFlags) const;
	/** The graph's entry and exit nodes. */
	void MarkFunctionEntryAsEditable(const UEdGraph* CurrentGraph, bool bNewEditable) const;
	/**
	 * The entry of a function that has the graph's name. When the class has such a function, the parameters are that function's, and there
	 * is an exit when it has results; otherwise the function is a new one.
	 */
	void CreateFunctionGraphTerminators(UEdGraph& Graph, UClass* Class) const;
	/** The entry, and with results the exit, of a new function whose parameters are taken from another; null for none. */
	void CreateFunctionGraphTerminators(UEdGraph& Graph, const UFunction* FunctionSignature) const;
};
