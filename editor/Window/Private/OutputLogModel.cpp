#include "OutputLogModel.h"

#include "Misc/DateTime.h"

namespace
{
/** Appends a character, or signs in the place of what would break the line or turn the direction of what follows. */
void AppendVisible(QString& Text, QChar Each)
{
	const char16_t Code = Each.unicode();
	const bool bControl = (Code >= 0x7F && Code < 0xA0) || Code == 0x2028 || Code == 0x2029;
	const bool bDirection = (Code >= 0x202A && Code <= 0x202E) || (Code >= 0x2066 && Code <= 0x2069);
	if (Code == '\t')
	{
		Text += QLatin1String("    ");
	}
	else if (Code < 0x20)
	{
		Text += QLatin1Char('^');
		Text += QChar(char16_t(Code + '@'));
	}
	else
	{
		Text += bControl || bDirection ? QChar(QChar::ReplacementCharacter) : Each;
	}
}

QString MakeLine(const QString& Prefix, QStringView Line)
{
	QString Result = Prefix;
	for (const QChar Each : Line.left(FOutputLogModel::MaxLength))
	{
		AppendVisible(Result, Each);
	}
	if (const qsizetype Left = Line.size() - FOutputLogModel::MaxLength; Left > 0)
	{
		Result += QStringLiteral("... (%1 more characters)").arg(Left);
	}
	return Result;
}

/** Characters of East Asia take two. */
qsizetype CountColumns(const QString& Text)
{
	return Text.size() + std::count_if(Text.begin(), Text.end(), [](QChar Each) { return Each.unicode() >= 0x1100; });
}
}

QStringList FOutputLogModel::FormatMessage(const QString& Message, ELogVerbosity::Type Verbosity, const QString& Category)
{
	const QString Time = ToQString(FDateTime::Now().ToString(TEXT("%H:%M:%S.%s")));
	const QString Name = Verbosity == ELogVerbosity::Log ? QString() : ToQString(ToString(Verbosity)) + QLatin1String(": ");
	const QString Prefix = Time + QLatin1Char(' ') + Category + QLatin1String(": ") + Name;
	QStringList Result;
	qsizetype Begin = 0;
	while (Result.isEmpty() || (Begin < Message.size() && size_t(Result.size()) < MaxLines))
	{
		qsizetype End = Message.indexOf(QLatin1Char('\n'), Begin);
		End = End < 0 ? Message.size() : End;
		const bool bReturn = End > Begin && Message[End - 1] == QLatin1Char('\r');
		Result.append(MakeLine(Prefix, QStringView(Message).mid(Begin, End - Begin - (bReturn ? 1 : 0))));
		Begin = End + 1;
	}
	return Result;
}

ELogLevel FOutputLogModel::GetLevel(ELogVerbosity::Type Verbosity)
{
	return Verbosity <= ELogVerbosity::Error  ? ELogLevel::Error
		: Verbosity == ELogVerbosity::Warning ? ELogLevel::Warning
											  : ELogLevel::Message;
}

void FOutputLogModel::Append(std::deque<FLine>& NewLines)
{
	std::deque<size_t> NewRows;
	for (FLine& Line : NewLines)
	{
		if (Passes(Line))
		{
			NewRows.push_back(FirstNumber + Lines.size());
			MostColumns = qMax(MostColumns, CountColumns(Line.Text));
		}
		Lines.push_back(std::move(Line));
	}
	NewLines.clear();
	if (!NewRows.empty())
	{
		const int Count = rowCount();
		beginInsertRows({}, Count, Count + int(NewRows.size()) - 1);
		Rows.insert(Rows.end(), NewRows.begin(), NewRows.end());
		endInsertRows();
	}
	if (Lines.size() > MaxLines)
	{
		DropOldest(Lines.size() - MaxLines);
	}
}

void FOutputLogModel::Clear()
{
	beginResetModel();
	FirstNumber += Lines.size();
	Lines.clear();
	Rows.clear();
	MostColumns = 0;
	endResetModel();
}

void FOutputLogModel::SetText(const QString& NewText)
{
	Text = NewText;
	Filter();
}

void FOutputLogModel::SetShown(ELogLevel Level, bool bNewShown)
{
	bShown[size_t(Level)] = bNewShown;
	Filter();
}

QVariant FOutputLogModel::data(const QModelIndex& Index, int Role) const
{
	static const QColor Colors[] = { QColor(), QColor(255, 200, 90), QColor(255, 120, 110) };
	if (!Index.isValid() || size_t(Index.row()) >= Rows.size())
	{
		return {};
	}
	const FLine& Line = GetLine(Index.row());
	if (Role == Qt::DisplayRole)
	{
		return Line.Text;
	}
	return Role == Qt::ForegroundRole && Line.Level != ELogLevel::Message ? QVariant(Colors[size_t(Line.Level)]) : QVariant();
}

bool FOutputLogModel::Passes(const FLine& Line) const
{
	return bShown[size_t(Line.Level)] && Line.Text.contains(Text, Qt::CaseInsensitive);
}

void FOutputLogModel::Filter()
{
	beginResetModel();
	Rows.clear();
	MostColumns = 0;
	for (size_t Index = 0; Index < Lines.size(); ++Index)
	{
		if (Passes(Lines[Index]))
		{
			Rows.push_back(FirstNumber + Index);
			MostColumns = qMax(MostColumns, CountColumns(Lines[Index].Text));
		}
	}
	endResetModel();
}

void FOutputLogModel::DropOldest(size_t Count)
{
	const size_t First = FirstNumber + Count;
	const auto End = std::lower_bound(Rows.begin(), Rows.end(), First);
	if (const int RowCount = int(End - Rows.begin()); RowCount > 0)
	{
		beginRemoveRows({}, 0, RowCount - 1);
		Rows.erase(Rows.begin(), End);
		endRemoveRows();
	}
	Lines.erase(Lines.begin(), Lines.begin() + qsizetype(Count));
	FirstNumber = First;
}
