#pragma once

// ToolMenus: the editor's menus and tool bars, by name, which modules extend.
//
// It leaves out sub-menus, profiles, the order of sections, context objects and the widgets made of a menu: what shows it reads it.

#include "ToolMenu.h"
#include "UObject/StrongObjectPtr.h"
#include "ToolMenus.generated.h"

/** All menus. Game thread. */
UCLASS()
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	static UToolMenus* Get();

	/** Calls the function once menus may be extended: in the next frame. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	/** Drops what waits of an object's. */
	static void UnRegisterStartupCallback(const void* UserPointer);

	/** The menu of that name, which is made when it is not there: it may be extended before it is shown. */
	UToolMenu* ExtendMenu(const FName InName);
	/** The stand-in's own: all menus, in the order of their first extension. */
	const TArray<TStrongObjectPtr<UToolMenu>>& GetMenus() const { return Menus; }

	/** Removes the owner's entries. */
	static void UnregisterOwner(FToolMenuOwner Owner);
	/** Entries added between the two are the owner's. */
	void PushOwner(FToolMenuOwner Owner) { OwnerStack.Add(Owner); }
	void PopOwner(FToolMenuOwner Owner);
	FToolMenuOwner CurrentOwner() const { return OwnerStack.IsEmpty() ? FToolMenuOwner() : OwnerStack.Last(); }

private:
	TArray<TStrongObjectPtr<UToolMenu>> Menus;
	TArray<FToolMenuOwner> OwnerStack;
};

class FToolMenuOwnerScoped
{
public:
	explicit FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
		: Owner(InOwner)
	{
		UToolMenus::Get()->PushOwner(Owner);
	}
	~FToolMenuOwnerScoped() { UToolMenus::Get()->PopOwner(Owner); }
	UE_NONCOPYABLE(FToolMenuOwnerScoped)

private:
	FToolMenuOwner Owner;
};
