#include "SlateHost/WidgetDriver.h"

#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
TWeakPtr<SWidget>& Focused()
{
	static TWeakPtr<SWidget> Widget;
	return Widget;
}

TSharedPtr<SWidget> FindBelow(const TSharedRef<SWidget>& Widget, TFunctionRef<bool(SWidget&)> IsIt)
{
	if (IsIt(*Widget))
	{
		return Widget;
	}
	const FChildren& Children = *Widget->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Found = FindBelow(Children.GetChildAt(Index), IsIt))
		{
			return Found;
		}
	}
	return nullptr;
}

template <typename WidgetType>
bool Is(SWidget& Widget)
{
	return dynamic_cast<WidgetType*>(&Widget) != nullptr;
}
}

TSharedPtr<SWidget> FWidgetDriver::Find(TFunctionRef<bool(SWidget&)> IsIt) const
{
	return FindBelow(Root, IsIt);
}

TSharedPtr<SButton> FWidgetDriver::FindButton(const FString& Label) const
{
	return StaticCastSharedPtr<SButton>(
		Find([&Label](SWidget& Widget) { return Is<SButton>(Widget) && GetShownText(Widget.AsShared()).Equals(Label); }));
}

TSharedPtr<SScrollBox> FWidgetDriver::FindScrollBox() const
{
	return StaticCastSharedPtr<SScrollBox>(Find(&Is<SScrollBox>));
}

TSharedPtr<SOptionPicker> FWidgetDriver::FindPicker() const
{
	return StaticCastSharedPtr<SOptionPicker>(Find(&Is<SOptionPicker>));
}

TSharedPtr<SMultiLineEditableText> FWidgetDriver::FindInput() const
{
	return StaticCastSharedPtr<SMultiLineEditableText>(Find(
		[](SWidget& Widget)
		{
		const auto* const Text = dynamic_cast<const SMultiLineEditableText*>(&Widget);
		return Text && !Text->IsTextReadOnly();
	}));
}

FString FWidgetDriver::GetShownText(const TSharedRef<SWidget>& Widget)
{
	const TSharedPtr<SWidget> Text = FindBelow(Widget, &Is<STextBlock>);
	return Text.IsValid() ? StaticCastSharedPtr<STextBlock>(Text)->GetText().ToString() : FString();
}

bool FWidgetDriver::CanBeUsed(const TSharedRef<SWidget>& Widget)
{
	for (TSharedPtr<SWidget> Each = Widget; Each.IsValid(); Each = Each->GetParentWidget())
	{
		// In this order: a widget may change its enabled state when it is asked whether it shows.
		if (!Each->GetVisibility().IsVisible() || !Each->IsEnabled())
		{
			return false;
		}
	}
	return true;
}

TSharedPtr<SWidget> FWidgetDriver::GetFocus() const
{
	const TSharedPtr<SWidget> Widget = Focused().Pin();
	if (!Widget.IsValid() || !CanBeUsed(Widget.ToSharedRef()))
	{
		return nullptr;
	}
	for (TSharedPtr<SWidget> Each = Widget; Each.IsValid(); Each = Each->GetParentWidget())
	{
		if (Each == Root.ToSharedPtr())
		{
			return Widget;
		}
	}
	return nullptr;
}

TArray<int32> FWidgetDriver::GetPath(const TSharedRef<SWidget>& Widget) const
{
	TArray<int32> Path;
	for (TSharedRef<SWidget> Each = Widget; !(Each == Root) && Each->GetParentWidget().IsValid();)
	{
		const TSharedRef<SWidget> Parent = Each->GetParentWidget().ToSharedRef();
		const FChildren& Children = *Parent->GetChildren();
		int32 Index = 0;
		while (!(Children.GetChildAt(Index) == Each))
		{
			++Index;
		}
		Path.Insert(Index, 0);
		Each = Parent;
	}
	return Path;
}

bool FWidgetDriver::Click(const FString& Label, FString& OutError) const
{
	const TSharedPtr<SButton> Button = FindButton(Label);
	if (!Button.IsValid())
	{
		OutError = FString::Printf(TEXT("There is no button '%s'."), *Label);
		return false;
	}
	if (!CanBeUsed(Button.ToSharedRef()))
	{
		OutError = FString::Printf(TEXT("The button '%s' can't be clicked now."), *Label);
		return false;
	}
	Focused() = TSharedPtr<SWidget>(Button);
	Button->ExecuteOnClick();
	return true;
}

bool FWidgetDriver::Type(const FString& Text, FString& OutError) const
{
	const TSharedPtr<SMultiLineEditableText> Input = FindInput();
	if (!Input.IsValid() || !CanBeUsed(Input.ToSharedRef()))
	{
		OutError = TEXT("The input takes no text now.");
		return false;
	}
	Focused() = TSharedPtr<SWidget>(Input);
	Input->InsertTextAtCursor(Text);
	return true;
}

bool FWidgetDriver::PressKey(const FKey& Key, bool bShift, FString& OutError) const
{
	if (!Key.IsValid())
	{
		OutError = FString::Printf(TEXT("There is no key '%s'."), *Key.ToString());
		return false;
	}
	TSharedPtr<SWidget> Widget = GetFocus();
	if (const TSharedPtr<SMultiLineEditableText> Input = FindInput(); !Widget.IsValid() && Input.IsValid())
	{
		// A disabled input can't have the focus; the key then goes to the tree's root.
		Widget = CanBeUsed(Input.ToSharedRef()) ? TSharedPtr<SWidget>(Input) : Root.ToSharedPtr();
		Focused() = Widget;
	}
	const FKeyEvent Event(Key, FModifierKeysState(bShift, false), 0, false, 0, 0);
	while (Widget.IsValid() && !Widget->OnKeyDown(FGeometry(), Event).IsEventHandled())
	{
		Widget = Widget == Root.ToSharedPtr() ? nullptr : Widget->GetParentWidget();
	}
	return true;
}

bool FWidgetDriver::Pick(const FString& Option, FString& OutError) const
{
	const TSharedPtr<SOptionPicker> Picker = FindPicker();
	for (int32 Index = 0; Picker.IsValid() && CanBeUsed(Picker.ToSharedRef()) && Index < Picker->GetNumOptions(); ++Index)
	{
		if (GetShownText(Picker->GenerateOption(Index)).Equals(Option))
		{
			Picker->PickOption(Index);
			return true;
		}
	}
	OutError = FString::Printf(TEXT("There is no option '%s' to pick now."), *Option);
	return false;
}

bool FWidgetDriver::Scroll(bool bToEnd, FString& OutError) const
{
	const TSharedPtr<SScrollBox> Box = FindScrollBox();
	if (!Box.IsValid())
	{
		OutError = TEXT("There is nothing to scroll.");
		return false;
	}
	Box->ScrollByUser(0.0f, bToEnd);
	return true;
}
