#pragma once

#include "Misc/OutputDevice.h"
#include "UObject/Object.h"
#include "Engine.generated.h"

class UWorld;

/** What there is one of in a program: the editor derives from it. It runs commands. Game thread. */
UCLASS(Abstract, Transient)
class ENGINE_API UEngine : public UObject
{
	GENERATED_BODY()

public:
	/** Runs the commands that were deferred before, in order; a command that one of them defers waits for the next call. */
	void TickDeferredCommands();
	/** @return whether there is such a command; a derived class asks its super class about those that it does not know */
	virtual bool Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar);

	/** Commands for the beginning of the next frame. */
	TArray<FString> DeferredCommands;
};

/** Null before the editor has started, and after its end. */
extern ENGINE_API UEngine* GEngine;
