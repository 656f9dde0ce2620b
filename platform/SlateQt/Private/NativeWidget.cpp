#include "NativeWidget.h"

#include "WidgetClass.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
FNativeWidget* MakeNothing(SWidget&, QWidget*)
{
	return nullptr;
}

struct FKind
{
	bool (*Is)(SWidget& Widget);
	FNativeWidget* (*Make)(SWidget& Widget, QWidget* Parent);
};

const FKind Kinds[] = {
	{ &IsWidget<STextBlock>, &MakeNativeLabel },
	{ &IsWidget<SMultiLineEditableText>, &MakeNativeEditor },
	{ &IsWidget<SButton>, &MakeNativeButton },
	{ &IsWidget<SOptionPicker>, &MakeNativePicker },
	{ &IsWidget<SScrollBox>, &MakeNativeScroller },
	{ &IsWidget<SWidget>, &MakeNothing },
};

struct FNamedKey
{
	int Qt;
	FKey Slate;
};

FKey ToKey(const QKeyEvent& Event)
{
	static const FNamedKey Names[] = {
		{ Qt::Key_Return, EKeys::Enter },
		{ Qt::Key_Enter, EKeys::Enter },
		{ Qt::Key_Backspace, EKeys::BackSpace },
		{ Qt::Key_Tab, EKeys::Tab },
		{ Qt::Key_Escape, EKeys::Escape },
		{ Qt::Key_Space, EKeys::SpaceBar },
		{ Qt::Key_PageUp, EKeys::PageUp },
		{ Qt::Key_PageDown, EKeys::PageDown },
		{ Qt::Key_End, EKeys::End },
		{ Qt::Key_Home, EKeys::Home },
		{ Qt::Key_Left, EKeys::Left },
		{ Qt::Key_Up, EKeys::Up },
		{ Qt::Key_Right, EKeys::Right },
		{ Qt::Key_Down, EKeys::Down },
		{ Qt::Key_Delete, EKeys::Delete },
		{ Qt::Key_Shift, EKeys::LeftShift },
	};
	for (const FNamedKey& Name : Names)
	{
		if (Name.Qt == Event.key())
		{
			return Name.Slate;
		}
	}
	// Letters are named by themselves; a digit's name does not matter to any widget.
	return FKey(FName(ToFString(QKeySequence(Event.key()).toString())));
}
}

void FNativeWidget::Drop()
{
	SlateWidget.Reset();
	GetQt().hide();
	// It may be in the middle of an event of its own.
	GetQt().deleteLater();
}

FNativeWidget* MakeNativeWidget(SWidget& Widget, QWidget* Parent)
{
	return FindForClass(std::begin(Kinds), std::end(Kinds), Widget).Make(Widget, Parent);
}

FKeyEvent ToKeyEvent(const QKeyEvent& Event)
{
	const QString Text = Event.text();
	return FKeyEvent(ToKey(Event), FModifierKeysState(Event.modifiers().testFlag(Qt::ShiftModifier), false), 0, Event.isAutoRepeat(),
		Text.isEmpty() ? 0 : Text[0].unicode(), Event.nativeVirtualKey());
}

bool OfferKey(TSharedPtr<SWidget> Widget, const QKeyEvent& Event)
{
	const FKeyEvent KeyEvent = ToKeyEvent(Event);
	for (; Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		if (Widget->OnKeyDown(FGeometry(), KeyEvent).IsEventHandled())
		{
			return true;
		}
	}
	return false;
}
