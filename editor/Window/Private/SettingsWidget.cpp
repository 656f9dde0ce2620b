#include "SettingsWidget.h"

#include "SettingsList.h"
#include "SettingsValueEditor.h"
#include "UObject/UnrealType.h"

namespace
{
/** Keeps the wheel from changing values that the page is scrolled over. */
class FWheelGuard final : public QObject
{
public:
	using QObject::QObject;

	bool eventFilter(QObject* Watched, QEvent* Event) override
	{
		if (Event->type() != QEvent::Wheel || static_cast<QWidget*>(Watched)->hasFocus())
		{
			return false;
		}
		Event->ignore();
		return true;
	}
};

FSettingsWidget MakeEditable(const FSettingsValue& Value, const IValueEditor& Editor, QWidget* Parent)
{
	QWidget* const Widget = Editor.Make(*Value.Property, Parent);
	Widget->setFocusPolicy(Qt::StrongFocus);
	Widget->installEventFilter(new FWheelGuard(Widget));
	const auto Show = [Value, &Editor, Widget]
	{
		if (const void* const Address = Value.Find())
		{
			Editor.Show(*Widget, *Value.Property, Address);
		}
	};
	Editor.OnCommitted(*Widget,
		[Value, &Editor, Widget, Show]
		{
		void* const Address = Value.Find();
		if (Address && Editor.Read(*Widget, *Value.Property, Address))
		{
			Value.Changed();
		}
		Show();
	});
	new QShortcut(QKeySequence(Qt::Key_Escape), Widget, Show, Qt::WidgetWithChildrenShortcut);
	return { Widget,
		[&Editor, Widget, Show]
		{
		if (!Editor.IsInEdit(*Widget))
		{
			Show();
		}
			} };
}

FSettingsWidget MakeReadOnly(const FSettingsValue& Value, QWidget* Parent)
{
	QLineEdit* const Edit = new QLineEdit(Parent);
	Edit->setMaxLength(std::numeric_limits<int>::max());
	Edit->setReadOnly(true);
	Edit->setFrame(false);
	QPalette Palette = Edit->palette();
	Palette.setColor(QPalette::Base, Palette.color(QPalette::Window));
	Edit->setPalette(Palette);
	return { Edit,
		[Value, Edit]
		{
		const uint8* const Address = static_cast<uint8*>(Value.Find());
		FString Text;
		for (int32 Index = 0; Address && Index < Value.Property->ArrayDim; ++Index)
		{
			Text += Index == 0 ? TEXT("") : TEXT(", ");
			const void* const Element = Address + Index * Value.Property->GetElementSize();
			Value.Property->ExportTextItem_Direct(Text, Element, nullptr, nullptr, PPF_None);
		}
		if (const QString New = ToQString(Text); Edit->text() != New)
		{
			Edit->setText(New);
			Edit->setCursorPosition(0);
		}
			} };
}

FSettingsWidget MakeStruct(const FSettingsValue& Value, QWidget* Parent)
{
	QWidget* const Widget = new QWidget(Parent);
	QFormLayout* const Form = new QFormLayout(Widget);
	Form->setContentsMargins(0, 0, 0, 0);
	TArray<TFunction<void()>> Refreshes;
	for (TFieldIterator<FProperty> Member(CastField<FStructProperty>(Value.Property)->Struct); Member; ++Member)
	{
		if (!Member->HasAnyPropertyFlags(CPF_Edit))
		{
			continue;
		}
		const auto Find = [Value, Property = *Member]() -> void*
		{
			void* const Address = Value.Find();
			return Address ? Property->ContainerPtrToValuePtr<void>(Address) : nullptr;
		};
		const FSettingsWidget Part = MakeSettingsWidget({ *Member, Find, Value.Changed }, Widget);
		Describe(*Part.Widget, **Member);
		Form->addRow(MakeLabel(**Member, Part.Widget), Part.Widget);
		Refreshes.Add(Part.Refresh);
	}
	return { Widget,
		[Refreshes]
		{
		for (const TFunction<void()>& Refresh : Refreshes)
		{
			Refresh();
		}
			} };
}
}

FSettingsWidget MakeSettingsWidget(const FSettingsValue& Value, QWidget* Parent)
{
	const FProperty& Property = *Value.Property;
	if (Property.ArrayDim != 1 || Property.HasAnyPropertyFlags(CPF_EditConst))
	{
		return MakeReadOnly(Value, Parent);
	}
	if (const IValueEditor* const Editor = FindValueEditor(Property))
	{
		return MakeEditable(Value, *Editor, Parent);
	}
	const FArrayProperty* const Array = CastField<FArrayProperty>(&Property);
	if (const IValueEditor* const Editor = Array ? FindValueEditor(*Array->Inner) : nullptr)
	{
		return MakeSettingsList(Value, *Editor, Parent);
	}
	return Property.IsA<FStructProperty>() ? MakeStruct(Value, Parent) : MakeReadOnly(Value, Parent);
}

void Describe(QWidget& Widget, const FProperty& Property)
{
	const QString ToolTip = ToQString(Property.GetToolTipText().ToString());
	Widget.setObjectName(ToQString(Property.GetName()));
	Widget.setAccessibleName(ToQString(Property.GetDisplayNameText().ToString()));
	Widget.setAccessibleDescription(ToolTip);
	// As rich text it is broken into lines, and nothing in it is taken for a mark.
	Widget.setToolTip(QStringLiteral("<qt>%1</qt>").arg(ToolTip.toHtmlEscaped()));
}

QLabel* MakeLabel(const FProperty& Property, QWidget* Widget)
{
	QString Text = ToQString(Property.GetDisplayNameText().ToString());
	QLabel* const Label = new QLabel(Text.replace(QLatin1Char('&'), QLatin1String("&&")));
	Label->setToolTip(Widget->toolTip());
	Label->setBuddy(Widget);
	return Label;
}
