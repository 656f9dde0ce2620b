#pragma once

#include "EdGraph/EdGraphPin.h"
#include "UObject/Class.h"

class FCompilerResultsLog;
class UBlueprint;

/** The properties and functions that a class is being given. What has a name that is taken is left out, with an error. */
class FClassMembers
{
public:
	FClassMembers(UClass& InClass, FCompilerResultsLog& InLog);

	/** Takes the property over. @return the property, or null when its name is taken */
	FProperty* Add(FProperty* Property);
	/** A new function without parameters, or null. */
	UFunction* AddFunction(FName Name, EFunctionFlags Flags);
	/** Lays the properties out. */
	void Finish();

	UClass& Class;
	FCompilerResultsLog& Log;

private:
	TSet<FName> PropertyNames;
	TArray<FProperty*> Properties;
	UFunction* LastFunction = nullptr;
};

/** Gives a struct its properties, in that order, and lays them out. */
void SetProperties(UStruct& Struct, const TArray<FProperty*>& Properties);
