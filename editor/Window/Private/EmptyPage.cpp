#include "EmptyPage.h"

#include "Misc/App.h"

QWidget* MakeEmptyPage(QWidget& Parent)
{
	QWidget* const Page = new QWidget(&Parent);
	QLabel* const Name = new QLabel(QString::fromUtf16(FApp::GetProjectName()), Page);
	QFont NameFont = Name->font();
	NameFont.setPointSize(NameFont.pointSize() * 2);
	Name->setFont(NameFont);
	Name->setTextFormat(Qt::PlainText);
	QLabel* const Hint =
		new QLabel(QStringLiteral("To talk to the assistant, choose Kestrin in the tool bar or in the menu Window."), Page);
	Hint->setForegroundRole(QPalette::PlaceholderText);
	for (QLabel* const Label : { Name, Hint })
	{
		Label->setAlignment(Qt::AlignCenter);
		Label->setWordWrap(true);
	}

	QVBoxLayout* const Column = new QVBoxLayout(Page);
	Column->addStretch();
	Column->addWidget(Name);
	Column->addWidget(Hint);
	Column->addStretch();
	return Page;
}
