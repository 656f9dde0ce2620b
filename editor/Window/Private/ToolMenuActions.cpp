#include "ToolMenuActions.h"

#include "SlateQtHost/SlateView.h"

namespace
{
/** A label on one line, of a length that a menu can bear. */
QString MakeActionText(const FText& Label)
{
	constexpr int Longest = 80;
	QString Text = ToQString(Label.ToString()).simplified();
	if (Text.size() > Longest)
	{
		Text = Text.left(Longest - 1) + QChar(0x2026);
	}
	return Text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/** Keys that have the same name on both sides: letters. */
QKeySequence MakeKeySequence(const FInputChord& Chord)
{
	QString Text;
	for (const auto& [bHeld, Name] : { std::pair(Chord.bCtrl, "Ctrl+"), std::pair(Chord.bAlt, "Alt+"), std::pair(Chord.bShift, "Shift+") })
	{
		Text += bHeld ? QLatin1String(Name) : QLatin1String();
	}
	return QKeySequence::fromString(Text + ToQString(Chord.Key.ToString()), QKeySequence::PortableText);
}

QList<QKeySequence> MakeShortcuts(const FUICommandInfo& Command)
{
	QList<QKeySequence> Shortcuts;
	for (const int32 Index : { 0, 1 })
	{
		if (Command.GetDefaultChord(Index).IsValidChord())
		{
			Shortcuts.append(MakeKeySequence(Command.GetDefaultChord(Index)));
		}
	}
	return Shortcuts;
}

void Update(QAction& Action, const FToolMenuEntry& Entry)
{
	Action.setText(MakeActionText(Entry.GetLabel()));
	Action.setToolTip(ToQString(Entry.GetToolTip().ToString()));
	Action.setEnabled(Entry.CanExecute());
	Action.setChecked(Entry.GetCheckState() == ECheckBoxState::Checked);
}
}

FToolMenuActions::FToolMenuActions(QWidget& InTarget, UToolMenu& InMenu)
	: Target(InTarget)
	, Menu(&InMenu)
{
}

TArray<FToolMenuActions::FPlace> FToolMenuActions::GetPlaces() const
{
	TArray<FPlace> Places;
	for (const FToolMenuSection& Section : Menu->Sections)
	{
		if (!Places.IsEmpty() && !Section.Blocks.IsEmpty())
		{
			Places.Add({ Section.Name, NAME_None });
		}
		for (const FToolMenuEntry& Entry : Section.Blocks)
		{
			Places.Add({ Section.Name, Entry.Name });
		}
	}
	return Places;
}

const FToolMenuEntry* FToolMenuActions::FindEntry(const FPlace& Place) const
{
	const FToolMenuSection* const Section =
		Menu->Sections.FindByPredicate([&Place](const FToolMenuSection& Each) { return Each.Name == Place.Section; });
	return Section ? Section->FindEntry(Place.Entry) : nullptr;
}

QAction* FToolMenuActions::MakeAction(const FPlace& Place)
{
	QAction* const Action = new QAction(&Target);
	const FToolMenuEntry* const Entry = FindEntry(Place);
	if (!Entry)
	{
		Action->setSeparator(true);
		return Action;
	}
	Action->setIcon(MakeQtIcon(Entry->Icon.Get()));
	Action->setShortcuts(MakeShortcuts(*Entry->GetCommand()));
	Action->setCheckable(Entry->GetCommand()->GetUserInterfaceType() == EUserInterfaceActionType::ToggleButton);
	QObject::connect(Action, &QAction::triggered,
		[this, Place]
		{
		if (const FToolMenuEntry* const Chosen = FindEntry(Place))
		{
			Chosen->TryExecute();
		}
	});
	return Action;
}

void FToolMenuActions::Replace(TArray<FPlace> Places)
{
	for (QAction* const Action : Actions)
	{
		Target.removeAction(Action);
		// It may be the one that was just chosen.
		Action->disconnect();
		Action->deleteLater();
	}
	Actions.Empty();
	Shown = MoveTemp(Places);
	for (const FPlace& Place : Shown)
	{
		Actions.Add(MakeAction(Place));
		Target.addAction(Actions.Last());
	}
}

void FToolMenuActions::Follow()
{
	TArray<FPlace> Places = GetPlaces();
	if (Places != Shown)
	{
		Replace(MoveTemp(Places));
	}
	for (int32 Index = 0; Index < Shown.Num(); ++Index)
	{
		if (const FToolMenuEntry* const Entry = FindEntry(Shown[Index]))
		{
			Update(*Actions[Index], *Entry);
		}
	}
}
