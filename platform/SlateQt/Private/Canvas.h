#pragma once

#include "SlateQtHost/Qt.h"

#include <vector>

/** Fills areas with colours, one over the other, and holds the native widgets that stand on them. */
class FCanvas final : public QWidget
{
public:
	explicit FCanvas(QWidget* Parent)
		: QWidget(Parent)
	{
	}

	/** Areas are added between the two; it is painted anew only when they are not those of the last time. */
	void BeginFills() { NextFills.clear(); }
	void AddFill(const QRectF& Area, const QColor& Color);
	void EndFills();

protected:
	void paintEvent(QPaintEvent* Event) override;

private:
	struct FFill
	{
		QRect Area;
		QRgb Color;
		bool operator==(const FFill&) const = default;
	};

	std::vector<FFill> Fills;
	std::vector<FFill> NextFills;
};

/** The pixels of a place, so that neighbours neither overlap nor leave a gap. */
inline QRect ToPixels(const QRectF& Place)
{
	return QRect(QPoint(qRound(Place.left()), qRound(Place.top())), QPoint(qRound(Place.right()) - 1, qRound(Place.bottom()) - 1));
}
