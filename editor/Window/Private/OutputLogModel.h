#pragma once

#include "Logging/LogVerbosity.h"
#include "SlateQtHost/Qt.h"

#include <deque>

/** How much a line matters to its reader. */
enum class ELogLevel : uint8
{
	Message,
	Warning,
	Error,
	Count
};

/**
 * The newest lines of a log, those among them that pass the filter as rows. Lines come in batches; when there are too many, the oldest go.
 * A row is one line of plain text: what can't be shown in one is replaced by signs, and what is beyond some length is left out.
 */
class FOutputLogModel final : public QAbstractListModel
{
public:
	static constexpr size_t MaxLines = 20000;
	/** Of a line, in UTF-16 units. */
	static constexpr qsizetype MaxLength = 4000;

	struct FLine
	{
		QString Text;
		ELogLevel Level;
	};

	using QAbstractListModel::QAbstractListModel;

	/** A message of the log, time and category before each of its lines. */
	static QStringList FormatMessage(const QString& Message, ELogVerbosity::Type Verbosity, const QString& Category);
	static ELogLevel GetLevel(ELogVerbosity::Type Verbosity);

	/** @param Lines is empty afterwards */
	void Append(std::deque<FLine>& Lines);
	void Clear();
	/** Shows lines that contain Text, ignoring case. */
	void SetText(const QString& Text);
	void SetShown(ELogLevel Level, bool bShown);

	int rowCount(const QModelIndex& Parent = {}) const override { return Parent.isValid() ? 0 : int(Rows.size()); }
	QVariant data(const QModelIndex& Index, int Role) const override;
	/** Of the widest row there has been since the last change of the filter, in characters of a fixed width. */
	qsizetype GetMostColumns() const { return MostColumns; }

private:
	bool Passes(const FLine& Line) const;
	void Filter();
	void DropOldest(size_t Count);
	const FLine& GetLine(int Row) const { return Lines[Rows[size_t(Row)] - FirstNumber]; }

	std::deque<FLine> Lines;
	/** The number of the oldest line; lines are numbered from the first one that ever came. */
	size_t FirstNumber = 0;
	/** The numbers of the lines that pass. */
	std::deque<size_t> Rows;
	QString Text;
	bool bShown[size_t(ELogLevel::Count)] = { true, true, true };
	qsizetype MostColumns = 0;
};
