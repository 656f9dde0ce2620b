#pragma once

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

/** Whether the caller gives the parameter; a reference that is read and written counts as given. */
inline bool IsInput(const FProperty* Parameter)
{
	return Parameter->HasAnyPropertyFlags(CPF_Parm) &&
		(!Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ReferenceParm));
}

/** Whether the caller gets the parameter alone. */
inline bool IsOutput(const FProperty* Parameter)
{
	return Parameter->HasAnyPropertyFlags(CPF_Parm) && !IsInput(Parameter);
}

/** Whether a function's metadata, one name or several with commas between them, names the parameter. */
inline bool NamesParameter(const UFunction* Function, const TCHAR* Key, FName Parameter)
{
	if (!Function->HasMetaData(Key))
	{
		return false;
	}
	TArray<FString> Names;
	Function->GetMetaData(Key).ParseIntoArray(Names, TEXT(","));
	return Names.ContainsByPredicate([=](const FString& Name) { return FName(Name.TrimStartAndEnd()) == Parameter; });
}
