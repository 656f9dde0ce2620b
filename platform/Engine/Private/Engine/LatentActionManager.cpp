#include "Engine/LatentActionManager.h"

#include "Containers/Ticker.h"
#include "UObject/WeakObjectPtr.h"

namespace
{
using FActionKey = TPair<FWeakObjectPtr, int32>;

/** By object and node. */
TArray<TPair<FActionKey, FTSTicker::FDelegateHandle>>& GetPending()
{
	static TArray<TPair<FActionKey, FTSTicker::FDelegateHandle>> Pending;
	return Pending;
}

int32 FindPending(const FActionKey& Key)
{
	return GetPending().IndexOfByPredicate([&Key](const auto& Each) { return Each.Key.Key == Key.Key && Each.Key.Value == Key.Value; });
}

void GoOn(const FActionKey& Key, FName FunctionName, int32 Linkage)
{
	GetPending().RemoveAt(FindPending(Key));
	UObject* const Target = Key.Key.Get();
	UFunction* const Function = Target ? Target->FindFunction(FunctionName) : nullptr;
	if (Function && Function->GetPropertiesSize() >= static_cast<int32>(sizeof(Linkage)))
	{
		Target->ProcessEvent(Function, &Linkage);
	}
}
}

void FLatentActions::Delay(const FLatentActionInfo& Info, float Duration, bool bRestart)
{
	const FActionKey Key{ FWeakObjectPtr(Info.CallbackTarget.Get()), Info.UUID };
	const int32 Index = FindPending(Key);
	if (Index != INDEX_NONE)
	{
		if (!bRestart)
		{
			return;
		}
		FTSTicker::GetCoreTicker().RemoveTicker(GetPending()[Index].Value);
		GetPending().RemoveAt(Index);
	}
	const auto Tick = [Key, Function = Info.ExecutionFunction, Linkage = Info.Linkage](float)
	{
		GoOn(Key, Function, Linkage);
		return false;
	};
	GetPending().Add({ Key, FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda(Tick), Duration) });
}
