#pragma once

#include "InputCoreTypes.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

class SButton;
class SMultiLineEditableText;
class SOptionPicker;
class SScrollBox;
class SWidget;

/**
 * Acts on a tree of widgets as its user would, without a window. What a user could not do (click on what is disabled, or not to be seen) is
 * refused with a message. Game thread.
 */
struct SLATE_API FWidgetDriver
{
	explicit FWidgetDriver(const TSharedRef<SWidget>& InRoot)
		: Root(InRoot)
	{
	}

	const TSharedRef<SWidget>& GetRoot() const { return Root; }
	/** Which child at each step leads from the root to a widget below it. */
	TArray<int32> GetPath(const TSharedRef<SWidget>& Widget) const;

	/** The first of its type in the tree's order, parents first; null when there is none. */
	TSharedPtr<SButton> FindButton(const FString& Label) const;
	TSharedPtr<SScrollBox> FindScrollBox() const;
	TSharedPtr<SOptionPicker> FindPicker() const;
	/** The first text that is not read-only. */
	TSharedPtr<SMultiLineEditableText> FindInput() const;

	// Each answers false, with a message, when the user can't do that now.
	[[nodiscard]] bool Click(const FString& Label, FString& OutError) const;
	/** Into the input, at its caret. */
	[[nodiscard]] bool Type(const FString& Text, FString& OutError) const;
	/** Where the focus is, or else to the input, and from there up to the root until somebody handles it. */
	[[nodiscard]] bool PressKey(const FKey& Key, bool bShift, FString& OutError) const;
	[[nodiscard]] bool Pick(const FString& Option, FString& OutError) const;
	/** @param bToEnd to the end of what there is, else somewhere above */
	[[nodiscard]] bool Scroll(bool bToEnd, FString& OutError) const;

	/** The widget that keys go to: the last one that was typed into or clicked, as long as it can be used. Null when there is none. */
	TSharedPtr<SWidget> GetFocus() const;

	/** Whether it and all above it can be seen and are enabled. */
	static bool CanBeUsed(const TSharedRef<SWidget>& Widget);
	/** The text of the first text block at or below it; empty when there is none. */
	static FString GetShownText(const TSharedRef<SWidget>& Widget);

private:
	TSharedPtr<SWidget> Find(TFunctionRef<bool(SWidget&)> IsIt) const;

	TSharedRef<SWidget> Root;
};
