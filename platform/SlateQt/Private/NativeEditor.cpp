#include "NativeWidget.h"

#include "SlateLook.h"
#include "TextDocument.h"
#include "Widgets/Text/SMultiLineEditableText.h"

namespace
{
bool IsPageKey(int Key)
{
	return Key == Qt::Key_PageUp || Key == Qt::Key_PageDown;
}

/** Qt's editor on the text: it does what editors do (selection, the clipboard, input methods, both writing directions, taking back). */
class FNativeEditor final : public QTextEdit, public FNativeWidget
{
public:
	FNativeEditor(SMultiLineEditableText& Text, QWidget* Parent)
		: QTextEdit(Parent)
		, FNativeWidget(Text)
	{
		setFrameShape(QFrame::NoFrame);
		setAcceptRichText(false);
		setTabChangesFocus(true);
		setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
		setVerticalScrollBarPolicy(Text.IsTextReadOnly() ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
		setLineWrapMode(Text.GetAutoWrapText() ? WidgetWidth : NoWrap);
		setReadOnly(Text.IsTextReadOnly());
		if (isReadOnly())
		{
			setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
		}
		PrepareTextDocument(*document(), Text);
		setFont(document()->defaultFont());
		SetColor(ToQColor(Text.GetForegroundColor().GetSpecifiedColor()));
		connect(this, &QTextEdit::textChanged, this, [this] { TakeText(); });
		connect(this, &QTextEdit::cursorPositionChanged, this, [this] { TakeCaret(); });
	}

	QWidget& GetQt() override { return *this; }

	void Follow(FViewContents&) override
	{
		const TSharedPtr<SWidget> Widget = GetSlate();
		const SMultiLineEditableText& Text = static_cast<const SMultiLineEditableText&>(*Widget);
		FollowText(Text);
		if (const QString Hint = ToQString(Text.GetHintText().ToString()); placeholderText() != Hint)
		{
			setPlaceholderText(Hint);
			setAccessibleName(Hint);
		}
	}

	bool IsWorthKeeping() const override { return textCursor().hasSelection(); }

protected:
	void keyPressEvent(QKeyEvent* Event) override
	{
		if (OfferToHandler(*Event))
		{
			Event->accept();
			return;
		}
		// The page keys of a text that shows whole are for what it stands in.
		if (isReadOnly() && IsPageKey(Event->key()))
		{
			Event->ignore();
		}
		else
		{
			QTextEdit::keyPressEvent(Event);
		}
		if (const TSharedPtr<SWidget> Text = GetSlate(); Text.IsValid() && !Event->isAccepted())
		{
			Event->setAccepted(OfferKey(Text->GetParentWidget(), *Event));
		}
	}
	void wheelEvent(QWheelEvent* Event) override
	{
		if (verticalScrollBar()->maximum() > 0 && !isReadOnly())
		{
			QTextEdit::wheelEvent(Event);
		}
		else
		{
			Event->ignore();
		}
	}

private:
	void SetColor(const QColor& Color)
	{
		const auto Fainter = [&Color](int Alpha) { return QColor(Color.red(), Color.green(), Color.blue(), Alpha); };
		QPalette Palette;
		Palette.setColor(QPalette::Base, Qt::transparent);
		Palette.setColor(QPalette::Text, Color);
		Palette.setColor(QPalette::Disabled, QPalette::Text, Fainter(110));
		Palette.setColor(QPalette::PlaceholderText, Fainter(130));
		setPalette(Palette);
	}

	void FollowText(const SMultiLineEditableText& Text)
	{
		const TGuardValue<bool> Following(bFollowing, true);
		if (&Shown.ToString() != &Text.GetText().ToString())
		{
			const bool bSame = bShown && Shown.EqualTo(Text.GetText());
			Shown = Text.GetText();
			bShown = true;
			if (!bSame)
			{
				setPlainText(ToQString(Shown.ToString()));
			}
		}
		if (!Text.IsTextReadOnly() && textCursor().position() != Text.GetCaret())
		{
			QTextCursor Cursor = textCursor();
			Cursor.setPosition(std::min(Text.GetCaret(), document()->characterCount() - 1));
			setTextCursor(Cursor);
		}
	}

	/** @return whether the text's own handler has dealt with the key */
	bool OfferToHandler(const QKeyEvent& Event)
	{
		const TSharedPtr<SWidget> Widget = GetSlate();
		if (!Widget.IsValid())
		{
			return false;
		}
		SMultiLineEditableText& Text = static_cast<SMultiLineEditableText&>(*Widget);
		const bool bHandled = Text.OfferToKeyDownHandler(FGeometry(), ToKeyEvent(Event)).IsEventHandled();
		FollowText(Text);
		return bHandled;
	}

	/** What the user has typed. */
	void TakeText()
	{
		const TSharedPtr<SWidget> Text = GetSlate();
		if (!bFollowing && Text.IsValid() && !isReadOnly())
		{
			Shown = FText::FromString(GetDocumentText(*document()));
			static_cast<SMultiLineEditableText&>(*Text).SetText(Shown);
			TakeCaret();
		}
	}

	void TakeCaret()
	{
		const TSharedPtr<SWidget> Text = GetSlate();
		if (!bFollowing && Text.IsValid())
		{
			static_cast<SMultiLineEditableText&>(*Text).SetCaret(textCursor().position());
		}
	}

	/** What the editor holds; kept, so that no other text has its address. */
	FText Shown;
	bool bShown = false;
	bool bFollowing = false;
};
}

FNativeWidget* MakeNativeEditor(SWidget& EditableText, QWidget* Parent)
{
	return new FNativeEditor(static_cast<SMultiLineEditableText&>(EditableText), Parent);
}
