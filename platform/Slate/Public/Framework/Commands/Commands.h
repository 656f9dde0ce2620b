#pragma once

#include "Framework/Commands/UICommandInfo.h"

/** A group of commands that belong together. */
class SLATE_API FBindingContext
{
public:
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: ContextName(InContextName)
		, ContextDesc(InContextDesc)
		, ContextParent(InContextParent)
		, StyleSetName(InStyleSetName)
	{
	}
	virtual ~FBindingContext() = default;

	const FName& GetContextName() const { return ContextName; }
	const FText& GetContextDesc() const { return ContextDesc; }
	const FName& GetContextParent() const { return ContextParent; }
	/** Where the commands' icons are. */
	const FName& GetStyleSetName() const { return StyleSetName; }

private:
	FName ContextName;
	FText ContextDesc;
	FName ContextParent;
	FName StyleSetName;
};

SLATE_API void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* OutSubNamespace,
	const TCHAR* OutCommandName, const TCHAR* OutCommandNameUnderscoreTooltip, const ANSICHAR* DotOutCommandName, const TCHAR* FriendlyName,
	const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord = FInputChord());

#define UI_COMMAND(CommandId, FriendlyName, InDescription, CommandType, InDefaultChord, ...)                                               \
	MakeUICommand_InternalUseOnly(this, CommandId, TEXT(LOCTEXT_NAMESPACE), TEXT(#CommandId), TEXT(#CommandId) TEXT("_ToolTip"),           \
		"." #CommandId, TEXT(FriendlyName), TEXT(InDescription), CommandType, InDefaultChord __VA_OPT__(, ) __VA_ARGS__)

/** A context whose commands are the fields of one class, of which there is one object between Register and Unregister. */
template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	static void Register()
	{
		if (!Instance().IsValid())
		{
			const TSharedRef<CommandContextType> Made = MakeShared<CommandContextType>();
			Instance() = Made;
			Made->RegisterCommands();
		}
	}
	static void Unregister() { Instance().Reset(); }
	static bool IsRegistered() { return Instance().IsValid(); }
	/** It must be registered. */
	static const CommandContextType& Get() { return *Instance(); }

	virtual void RegisterCommands() = 0;

protected:
	using FBindingContext::FBindingContext;

private:
	static TSharedPtr<CommandContextType>& Instance()
	{
		static TSharedPtr<CommandContextType> Held;
		return Held;
	}
};
