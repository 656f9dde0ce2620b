#include "CoreHost/MainLoop.h"
#include "Shown.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
std::string ToUtf8(const FText& Text)
{
	return ToQString(Text.ToString()).toStdString();
}

/** A text that is read, one that is written, a picker and a button below each other. */
class SlateInput : public testing::Test
{
protected:
	FReply OnKey(const FGeometry&, const FKeyEvent& Event)
	{
		if (!(Event.GetKey() == EKeys::Enter))
		{
			return FReply::Unhandled();
		}
		Sent = ToUtf8(Input->GetText());
		Input->SetText(FText::GetEmpty());
		return FReply::Handled();
	}

	EVisibility Visibility = EVisibility::Visible;
	bool bInputEnabled = true;
	bool bButtonEnabled = true;
	int32 Clicks = 0;
	std::string Sent;
	TArray<TSharedPtr<FString>> Options = { MakeShared<FString>(TEXT("One")), MakeShared<FString>(TEXT("Two")) };
	TSharedPtr<FString> Picked = Options[0];
	TSharedPtr<SMultiLineEditableText> Input;
	TSharedPtr<SMultiLineEditableText> Said;
	// clang-format off
	TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			SAssignNew(Said, SMultiLineEditableText).IsReadOnly(true).AutoWrapText(true)
			.Visibility_Lambda([this] { return Visibility; })
			.Text(FText::FromString(TEXT("<b>bold</b>\t\x01 \u0645\u0631\u062D\u0628\u0627")))
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SAssignNew(Input, SMultiLineEditableText).HintText(FText::FromString(TEXT("Say it"))).AutoWrapText(true)
			.IsEnabled_Lambda([this] { return bInputEnabled; })
			.OnKeyDownHandler(FOnKeyDown::CreateLambda([this](const FGeometry& At, const FKeyEvent& Event) { return OnKey(At, Event); }))
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SComboBox<TSharedPtr<FString>>).OptionsSource(&Options)
			.OnGenerateWidget_Lambda([](TSharedPtr<FString> Label) { return SNew(STextBlock).Text(FText::FromString(*Label)); })
			.OnSelectionChanged_Lambda([this](TSharedPtr<FString> Label, ESelectInfo::Type) { Picked = Label; })
			[
				SNew(STextBlock).Text_Lambda([this] { return FText::FromString(*Picked); })
			]
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SButton).Visibility_Lambda([this] { return Visibility; }).IsEnabled_Lambda([this] { return bButtonEnabled; }).ToolTipText(FText::FromString(TEXT("Goes on")))
			.OnClicked_Lambda([this] { ++Clicks; return FReply::Handled(); })
			[
				SNew(STextBlock).Text(FText::FromString(TEXT("Go")))
			]
		];
	// clang-format on
	FShown Shown{ Root };
	QTextEdit* SaidEdit = Shown.FindAll<QTextEdit>()[0];
	QTextEdit* Edit = Shown.FindAll<QTextEdit>()[1];
	QAbstractButton* Button = Shown.FindOne<QAbstractButton>();
	QComboBox* Picker = Shown.FindOne<QComboBox>();
};

TEST_F(SlateInput, WhatIsTypedIsInTheTreeAtOnce)
{
	ASSERT_EQ(QApplication::focusWidget(), Edit);
	Shown.Type(QStringLiteral("halo"));
	Shown.Press(Qt::Key_Left);
	EXPECT_EQ(Input->GetCaret(), 3);
	Shown.Type(QStringLiteral("l"));
	EXPECT_EQ(ToUtf8(Input->GetText()), "hallo");
	Shown.Press(Qt::Key_Backspace);
	Shown.Press(Qt::Key_Backspace);
	EXPECT_EQ(ToUtf8(Input->GetText()), "hao");
	Shown.Press(Qt::Key_Z, Qt::ControlModifier);
	EXPECT_NE(ToUtf8(Input->GetText()), "hao");

	// What an input method has finished.
	QInputMethodEvent Commit;
	Commit.setCommitString(QString::fromUtf8("🔥 ね"));
	QApplication::sendEvent(Edit, &Commit);
	EXPECT_NE(ToUtf8(Input->GetText()).find("🔥 ね"), std::string::npos);

	// A key that the handler takes never reaches the editor.
	Shown.Press(Qt::Key_Return);
	EXPECT_FALSE(Sent.empty());
	EXPECT_EQ(Edit->toPlainText(), QString());
}

TEST_F(SlateInput, WhatTheTreeSaysIsShown)
{
	Input->SetText(FText::FromString(TEXT("one\ntwo")));
	Input->GoTo(ETextLocation::EndOfDocument);
	Shown.Refresh();
	EXPECT_EQ(Edit->toPlainText(), QStringLiteral("one\ntwo"));
	EXPECT_EQ(Edit->textCursor().position(), 7);
	Shown.Type(QStringLiteral("!"));
	EXPECT_EQ(ToUtf8(Input->GetText()), "one\ntwo!");

	QMimeData* const Rich = new QMimeData;
	Rich->setHtml(QStringLiteral("<b>fat</b>"));
	Rich->setText(QStringLiteral("fat"));
	QApplication::clipboard()->setMimeData(Rich);
	Shown.Press(Qt::Key_V, Qt::ControlModifier);
	EXPECT_EQ(ToUtf8(Input->GetText()), "one\ntwo!fat");
	EXPECT_NE(Edit->currentCharFormat().fontWeight(), QFont::Bold);
}

TEST_F(SlateInput, WhatIsReadCanBeSelectedAndCopiedButNotChanged)
{
	EXPECT_EQ(SaidEdit->toPlainText().toStdString(), "<b>bold</b>\t\x01 مرحبا");
	Shown.Click(*SaidEdit);
	ASSERT_EQ(QApplication::focusWidget(), SaidEdit);
	Shown.Press(Qt::Key_A, Qt::ControlModifier);
	EXPECT_TRUE(SaidEdit->textCursor().hasSelection());
	Shown.Press(Qt::Key_C, Qt::ControlModifier);
	EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "<b>bold</b>\t\x01 مرحبا");
	Shown.Type(QStringLiteral("x"));
	Shown.Press(Qt::Key_Backspace);
	EXPECT_EQ(ToUtf8(Said->GetText()), "<b>bold</b>\t\x01 مرحبا");
}

TEST_F(SlateInput, ButtonsTakeTheMouseAndBothKeys)
{
	Shown.Click(*Button);
	Button->setFocus();
	Shown.Press(Qt::Key_Space);
	Shown.Press(Qt::Key_Return);
	EXPECT_EQ(Clicks, 3);
	bButtonEnabled = false;
	Shown.Refresh();
	Shown.Click(*Button);
	EXPECT_EQ(Clicks, 3);
	EXPECT_EQ(Button->toolTip(), QStringLiteral("Goes on"));
}

TEST_F(SlateInput, ThePickerShowsAndSetsTheTreesChoice)
{
	EXPECT_EQ(Picker->currentText(), QStringLiteral("One"));
	Picker->setFocus();
	Shown.Press(Qt::Key_Down);
	EXPECT_TRUE(Picked == Options[1]);
	Picked = Options[0];
	Shown.Refresh();
	EXPECT_EQ(Picker->currentText(), QStringLiteral("One"));
	Shown.TurnWheel(*Picker, -1);
	EXPECT_TRUE(Picked == Options[0]);
}

TEST_F(SlateInput, TabGoesThroughAllThatCanBeUsed)
{
	const QWidget* const Order[] = { Picker, Button, SaidEdit, Edit };
	for (const QWidget* const Next : Order)
	{
		Shown.Press(Qt::Key_Tab);
		EXPECT_EQ(QApplication::focusWidget(), Next);
	}
	bButtonEnabled = false;
	Shown.Refresh();
	Picker->setFocus();
	Shown.Press(Qt::Key_Tab);
	EXPECT_EQ(QApplication::focusWidget(), SaidEdit);
}

TEST_F(SlateInput, TheFocusComesBackToTheInput)
{
	Shown.Type(QStringLiteral("x"));
	bInputEnabled = false;
	Shown.Refresh();
	EXPECT_FALSE(Edit->hasFocus());
	EXPECT_FALSE(Button->hasFocus());
	// Meanwhile the Tab key goes on from where the input is.
	Shown.Press(Qt::Key_Tab);
	EXPECT_TRUE(Picker->hasFocus());
	Shown.Press(Qt::Key_Tab, Qt::ShiftModifier);
	EXPECT_TRUE(SaidEdit->hasFocus());
	Edit->parentWidget()->setFocus();
	bInputEnabled = true;
	Shown.Refresh();
	EXPECT_TRUE(Edit->hasFocus());

	// A button that was clicked leaves it to the input.
	Button->setFocus();
	bInputEnabled = false;
	bButtonEnabled = false;
	Shown.Refresh();
	bInputEnabled = true;
	bButtonEnabled = true;
	Shown.Refresh();
	EXPECT_TRUE(Edit->hasFocus());

	// Where the user went meanwhile is where it stays.
	bInputEnabled = false;
	Shown.Refresh();
	Picker->setFocus();
	bInputEnabled = true;
	Shown.Refresh();
	EXPECT_TRUE(Picker->hasFocus());
}

TEST_F(SlateInput, EventsOfWhatNoLongerShowsReachNobody)
{
	const QPointer<QTextEdit> OldText = SaidEdit;
	const QPointer<QAbstractButton> OldButton = Button;
	Visibility = EVisibility::Collapsed;
	FMainLoop::Tick();
	ASSERT_TRUE(OldText && OldButton) << "Qt deletes them after their last events";
	Said->SetCaret(1);
	OldText->moveCursor(QTextCursor::End);
	OldButton->click();
	EXPECT_EQ(Said->GetCaret(), 1);
	EXPECT_EQ(Clicks, 0);
	Shown.Refresh();
	EXPECT_FALSE(OldText || OldButton);
}

TEST_F(SlateInput, NamesAndRolesReachAssistiveTools)
{
	const auto Ask = [](QWidget* Widget) { return QAccessible::queryAccessibleInterface(Widget); };
	EXPECT_EQ(Ask(Button)->role(), QAccessible::Button);
	EXPECT_EQ(Ask(Button)->text(QAccessible::Name), QStringLiteral("Go"));
	EXPECT_EQ(Ask(Edit)->role(), QAccessible::EditableText);
	EXPECT_EQ(Ask(Edit)->text(QAccessible::Name), QStringLiteral("Say it"));
	EXPECT_FALSE(Ask(Edit)->state().readOnly);
	EXPECT_TRUE(Ask(SaidEdit)->state().readOnly);
	EXPECT_EQ(Ask(Picker)->role(), QAccessible::ComboBox);
}
}
