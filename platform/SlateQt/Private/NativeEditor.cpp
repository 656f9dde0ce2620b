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
class FEditorFace final : public QTextEdit
{
public:
	FEditorFace(const SMultiLineEditableText& Text, QWidget* Parent)
		: QTextEdit(Parent)
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
		const QColor Color = ToQColor(Text.GetForegroundColor().GetSpecifiedColor());
		QPalette Palette;
		Palette.setColor(QPalette::Base, Qt::transparent);
		Palette.setColor(QPalette::Text, Color);
		Palette.setColor(QPalette::Disabled, QPalette::Text, QColor(Color.red(), Color.green(), Color.blue(), 110));
		Palette.setColor(QPalette::PlaceholderText, QColor(Color.red(), Color.green(), Color.blue(), 130));
		setPalette(Palette);
	}

	std::function<bool(const QKeyEvent& Event)> OnKeyFirst;
	std::function<bool(const QKeyEvent& Event)> OnKeyLast;

protected:
	void keyPressEvent(QKeyEvent* Event) override
	{
		if (OnKeyFirst(*Event))
		{
			Event->accept();
			return;
		}
		// The page keys of a text that shows whole are for what it stands in.
		if (!(isReadOnly() && IsPageKey(Event->key())))
		{
			QTextEdit::keyPressEvent(Event);
		}
		else
		{
			Event->ignore();
		}
		if (!Event->isAccepted())
		{
			Event->setAccepted(OnKeyLast(*Event));
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
};

class FNativeEditor final : public FNativeWidget
{
public:
	FNativeEditor(SMultiLineEditableText& Text, QWidget* Parent)
		: FNativeWidget(Text, new FEditorFace(Text, Parent))
	{
		FEditorFace& Face = GetFace();
		Face.OnKeyFirst = [this](const QKeyEvent& Event) { return OfferToHandler(Event); };
		Face.OnKeyLast = [this](const QKeyEvent& Event)
		{
			const TSharedPtr<SWidget> Slate = GetSlate();
			return Slate.IsValid() && OfferKey(Slate->GetParentWidget(), Event);
		};
		QObject::connect(&Face, &QTextEdit::textChanged, &Face, [this] { TakeText(); });
		QObject::connect(&Face, &QTextEdit::cursorPositionChanged, &Face, [this] { TakeCaret(); });
	}

	void Follow(FViewContents&) override
	{
		const TSharedPtr<SWidget> Slate = GetSlate();
		const SMultiLineEditableText& Text = static_cast<const SMultiLineEditableText&>(*Slate);
		FollowText(Text);
		if (const QString Hint = ToQString(Text.GetHintText().ToString()); GetFace().placeholderText() != Hint)
		{
			GetFace().setPlaceholderText(Hint);
			GetFace().setAccessibleName(Hint);
		}
	}

	bool IsWorthKeeping() const override { return static_cast<FEditorFace&>(*GetQt()).textCursor().hasSelection(); }

private:
	FEditorFace& GetFace() { return static_cast<FEditorFace&>(*GetQt()); }

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
				GetFace().setPlainText(ToQString(Shown.ToString()));
			}
		}
		if (!Text.IsTextReadOnly() && GetFace().textCursor().position() != Text.GetCaret())
		{
			QTextCursor Cursor = GetFace().textCursor();
			Cursor.setPosition(std::min(Text.GetCaret(), GetFace().document()->characterCount() - 1));
			GetFace().setTextCursor(Cursor);
		}
	}

	/** @return whether the text's own handler has dealt with the key */
	bool OfferToHandler(const QKeyEvent& Event)
	{
		const TSharedPtr<SWidget> Slate = GetSlate();
		if (!Slate.IsValid())
		{
			return false;
		}
		SMultiLineEditableText& Text = static_cast<SMultiLineEditableText&>(*Slate);
		const bool bHandled = Text.OfferToKeyDownHandler(FGeometry(), ToKeyEvent(Event)).IsEventHandled();
		// The handler may have closed what shows the text.
		if (GetQt())
		{
			FollowText(Text);
		}
		return bHandled;
	}

	/** What the user has typed. */
	void TakeText()
	{
		const TSharedPtr<SWidget> Slate = GetSlate();
		if (!bFollowing && Slate.IsValid() && !GetFace().isReadOnly())
		{
			Shown = FText::FromString(GetDocumentText(*GetFace().document()));
			static_cast<SMultiLineEditableText&>(*Slate).SetText(Shown);
			TakeCaret();
		}
	}

	void TakeCaret()
	{
		const TSharedPtr<SWidget> Slate = GetSlate();
		if (!bFollowing && Slate.IsValid())
		{
			static_cast<SMultiLineEditableText&>(*Slate).SetCaret(GetFace().textCursor().position());
		}
	}

	/** What the editor holds; kept, so that no other text has its address. */
	FText Shown;
	bool bShown = false;
	bool bFollowing = false;
};
}

TUniquePtr<FNativeWidget> MakeNativeEditor(SWidget& EditableText, QWidget* Parent)
{
	return MakeUnique<FNativeEditor>(static_cast<SMultiLineEditableText&>(EditableText), Parent);
}
