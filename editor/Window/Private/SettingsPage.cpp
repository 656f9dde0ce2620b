#include "SettingsPage.h"

#include "SettingsWidget.h"
#include "UObject/UnrealType.h"

namespace
{
constexpr int Indent = 14;
/** Below it labels stand above their widgets. */
constexpr int NarrowWidth = 460;

TArray<FProperty*> GetShownProperties(const UObject* Object)
{
	TArray<FProperty*> Result;
	const bool bTemplate = Object && Object->IsTemplate();
	for (TFieldIterator<FProperty> Property(Object ? Object->GetClass() : nullptr); Property; ++Property)
	{
		const bool bHidden = bTemplate && Property->HasAnyPropertyFlags(CPF_DisableEditOnTemplate);
		if (Property->HasAnyPropertyFlags(CPF_Edit) && !bHidden)
		{
			Result.Add(*Property);
		}
	}
	return Result;
}

QLabel* MakeText(const QString& Text, QWidget* Parent)
{
	QLabel* const Label = new QLabel(Text, Parent);
	Label->setTextFormat(Qt::PlainText);
	Label->setWordWrap(true);
	return Label;
}

void Enlarge(QLabel& Label, double Factor)
{
	QFont Font = Label.font();
	Font.setBold(true);
	Font.setPointSizeF(Font.pointSizeF() * Factor);
	Label.setFont(Font);
}
}

/** A part of the categories' paths ("Kestrin|Logs"), with what lies directly in it. */
struct FSettingsPage::FCategory
{
	QString Name;
	QString Path;
	TArray<FProperty*> Properties;
	TArray<FCategory> Parts;

	/** The category of that path below this one, made when it is not there. */
	FCategory& Find(const QStringList& Names)
	{
		FCategory* Category = this;
		for (const QString& Part : Names)
		{
			const int32 Found = Category->Parts.IndexOfByPredicate([&Part](const FCategory& Each) { return Each.Name == Part; });
			const QString PartPath = Category->Path.isEmpty() ? Part : Category->Path + QLatin1Char('|') + Part;
			const int32 Index = Found != INDEX_NONE ? Found : Category->Parts.Add({ Part, PartPath, {}, {} });
			Category = &Category->Parts[Index];
		}
		return *Category;
	}
};

FSettingsPage::FSettingsPage(const ISettingsSection& Section, QWidget* Parent)
	: QScrollArea(Parent)
	, Object(Section.GetSettingsObject())
{
	setWidgetResizable(true);
	setFrameShape(NoFrame);
	setFocusPolicy(Qt::NoFocus);
	QWidget* const Content = new QWidget;
	QVBoxLayout* const Layout = new QVBoxLayout(Content);
	QLabel* const Title = MakeText(ToQString(Section.GetDisplayName().ToString()), Content);
	Enlarge(*Title, 1.5);
	Problem = MakeText(QStringLiteral("The settings can't be saved: their file can't be written. The log says more."), Content);
	Problem->setStyleSheet(QStringLiteral("color: #ff8080"));
	Problem->hide();
	NoMatch = MakeText(QStringLiteral("No setting has this in its name."), Content);
	NoMatch->hide();
	Form = new QFormLayout;
	Form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
	Layout->addWidget(Title);
	Layout->addWidget(MakeText(ToQString(Section.GetDescription().ToString()), Content));
	Layout->addWidget(Problem);
	Layout->addWidget(NoMatch);
	Layout->addLayout(Form);
	Layout->addStretch();

	FCategory Root;
	for (FProperty* const Property : GetShownProperties(Object.Get()))
	{
		const QString Path = ToQString(Property->GetMetaData("Category"));
		Root.Find(Path.split(QLatin1Char('|'), Qt::SkipEmptyParts)).Properties.Add(Property);
	}
	AddCategory(Root, 0);
	setWidget(Content);
	Refresh();
}

void FSettingsPage::Refresh()
{
	for (const FRow& Row : Rows)
	{
		if (Row.Refresh)
		{
			Row.Refresh();
		}
	}
}

void FSettingsPage::SetFilter(const QString& Text)
{
	// From the end, so that a heading is met after what stands under it.
	int ShownDepth = 0;
	bool bAny = false;
	for (int32 Index = Rows.Num() - 1; Index >= 0; --Index)
	{
		const FRow& Row = Rows[Index];
		const bool bShown = Row.Name.isEmpty() ? ShownDepth > Row.Depth : Row.Name.contains(Text, Qt::CaseInsensitive);
		Form->setRowVisible(Row.Widget, bShown);
		ShownDepth = bShown ? Row.Depth : ShownDepth;
		bAny = bAny || bShown;
	}
	NoMatch->setVisible(!bAny);
}

void FSettingsPage::resizeEvent(QResizeEvent* Event)
{
	Form->setRowWrapPolicy(Event->size().width() < NarrowWidth ? QFormLayout::WrapAllRows : QFormLayout::DontWrapRows);
	QScrollArea::resizeEvent(Event);
}

QString FSettingsPage::Describe(const ISettingsSection& Section)
{
	const UObject* const Object = Section.GetSettingsObject().Get();
	QStringList Parts{ ToQString(Section.GetDisplayName().ToString()), ToQString(Section.GetDescription().ToString()),
		QString::number(quintptr(Object), 16) };
	for (const FProperty* const Property : GetShownProperties(Object))
	{
		Parts.append(QString::number(quintptr(Property), 16));
		Parts.append(ToQString(Property->GetName()) + QLatin1Char(' ') + ToQString(Property->GetTypeTag().ToString()));
	}
	return Parts.join(QLatin1Char('\n'));
}

void FSettingsPage::AddCategory(const FCategory& Category, int Depth)
{
	if (!Category.Name.isEmpty())
	{
		AddHeading(Category.Name, Category.Path, Depth - 1);
	}
	for (FProperty* const Property : Category.Properties)
	{
		AddProperty(*Property, Depth);
	}
	for (const FCategory& Part : Category.Parts)
	{
		AddCategory(Part, Depth + 1);
	}
}

void FSettingsPage::AddHeading(const QString& Name, const QString& Path, int Depth)
{
	QLabel* const Heading = MakeText(Name, this);
	Heading->setObjectName(Path);
	Enlarge(*Heading, Depth == 0 ? 1.15 : 1.0);
	Heading->setContentsMargins(Depth * Indent, Depth == 0 ? 12 : 6, 0, 0);
	Form->addRow(Heading);
	Rows.Add({ Heading, {}, Depth, {} });
}

void FSettingsPage::AddProperty(FProperty& Property, int Depth)
{
	const auto Find = [this, &Property]() -> void*
	{
		UObject* const Owner = Object.Get();
		return Owner ? Property.ContainerPtrToValuePtr<void>(Owner) : nullptr;
	};
	const FSettingsWidget Made = MakeSettingsWidget({ &Property, Find, [this, &Property] { FinishEdit(Property); } }, this);
	::Describe(*Made.Widget, Property);
	QLabel* const Label = MakeLabel(Property, Made.Widget);
	Label->setContentsMargins(Depth * Indent, 0, 0, 0);
	Form->addRow(Label, Made.Widget);
	Rows.Add({ Made.Widget, Made.Widget->accessibleName(), Depth, Made.Refresh });
}

void FSettingsPage::FinishEdit(FProperty& Property)
{
	const ESettingsSave Save = Property.HasAnyPropertyFlags(CPF_Config) ? ESettingsSave::EditedProperty : ESettingsSave::Nothing;
	const bool bSaved = FHostSettings::FinishEdit(*Object, Property, Save);
	Problem->setVisible(!bSaved);
	Refresh();
}
