#include "UObject/ScriptDelegates.h"

#include "UObject/Class.h"

bool FScriptDelegate::IsBound() const
{
	const UObject* const Bound = Object.Get();
	return Bound && Bound->FindFunction(FunctionName);
}

void FScriptDelegate::ProcessDelegate(void* Parms) const
{
	UObject* const Bound = Object.Get();
	Bound->ProcessEvent(Bound->FindFunctionChecked(FunctionName), Parms);
}

void FScriptDelegate::Serialize(FArchive& Ar)
{
	const bool bCollector = Ar.IsObjectReferenceCollector();
	if (!bCollector || Ar.IsModifyingWeakAndStrongReferences())
	{
		UObject* const Old = Object.Get();
		UObject* Raw = Old;
		Ar << Raw;
		if (Raw != Old)
		{
			Object = Raw;
		}
	}
	if (!bCollector)
	{
		Ar << FunctionName;
	}
}

void FMulticastScriptDelegate::Add(const FScriptDelegate& Delegate)
{
	InvocationList.RemoveAll([](const FScriptDelegate& Each) { return !Each.GetUObject(); });
	InvocationList.Add(Delegate);
}

void FMulticastScriptDelegate::AddUnique(const FScriptDelegate& Delegate)
{
	if (!Contains(Delegate))
	{
		Add(Delegate);
	}
}

void FMulticastScriptDelegate::RemoveAll(const UObject* Object)
{
	InvocationList.RemoveAll([Object](const FScriptDelegate& Each) { return Each.IsBoundToObject(Object); });
}

bool FMulticastScriptDelegate::IsBound() const
{
	return InvocationList.ContainsByPredicate([](const FScriptDelegate& Each) { return Each.IsBound(); });
}

void FMulticastScriptDelegate::ProcessMulticastDelegate(void* Parms) const
{
	const TArray<FScriptDelegate> Called = InvocationList;
	for (const FScriptDelegate& Each : Called)
	{
		if (Each.IsBound())
		{
			Each.ProcessDelegate(Parms);
		}
	}
}

void FMulticastScriptDelegate::Serialize(FArchive& Ar)
{
	int32 Count = InvocationList.Num();
	if (!Ar.IsObjectReferenceCollector())
	{
		SerializeCount(Ar, Count);
	}
	if (Ar.IsLoading())
	{
		InvocationList.Empty();
		InvocationList.SetNum(Count);
	}
	for (FScriptDelegate& Each : InvocationList)
	{
		Each.Serialize(Ar);
	}
}

FName GetTrimmedMemberFunctionName(const TCHAR* Text)
{
	FString Name(Text);
	Name.Split(TEXT("::"), nullptr, &Name, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return FName(Name.TrimStartAndEnd());
}
