#pragma once

#include "SlateQtHost/SlateView.h"
#include "Widgets/SWidget.h"

#include <string>
#include <vector>

/** A tree in a window of the offscreen platform. */
class FShown
{
public:
	explicit FShown(const TSharedRef<SWidget>& Root, QSize Size = QSize(400, 300));
	~FShown();
	UE_NONCOPYABLE(FShown)

	/** A frame goes by. */
	void Refresh();
	/** The native widgets that can be seen now, from top to bottom. */
	template <typename QtType>
	std::vector<QtType*> FindAll() const
	{
		std::vector<QtType*> Found;
		for (QtType* const Each : View->findChildren<QtType*>())
		{
			if (Each->isVisible())
			{
				Found.push_back(Each);
			}
		}
		std::sort(Found.begin(), Found.end(), [this](QtType* A, QtType* B) { return GetPlace(*A).y() < GetPlace(*B).y(); });
		return Found;
	}
	template <typename QtType>
	QtType* FindOne() const
	{
		const std::vector<QtType*> Found = FindAll<QtType>();
		return Found.empty() ? nullptr : Found.front();
	}
	/** Texts of the labels that can be seen. */
	std::vector<std::string> GetLabels() const;
	/** In the view. */
	QRect GetPlace(const QWidget& Widget) const { return QRect(Widget.mapTo(View, QPoint()), Widget.size()); }

	/** To what has the focus. */
	void Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier);
	void Type(const QString& Text);
	void Click(QWidget& Widget);
	/** @param Notches away from the user */
	void TurnWheel(QWidget& Widget, int Notches);

	FQtApplication Application;
	QWidget* View;
};
