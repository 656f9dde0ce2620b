#include "SettingsValueEditor.h"

#include "SettingsNumberBox.h"
#include "UObject/UnrealType.h"

namespace
{
FString ToText(const FString& Value)
{
	return Value;
}
FString ToText(const FName& Value)
{
	return Value.ToString();
}
FString ToText(const FText& Value)
{
	return Value.ToString();
}
void FromText(const FString& Text, FString& OutValue)
{
	OutValue = Text;
}
void FromText(const FString& Text, FName& OutValue)
{
	OutValue = FName(Text);
}
void FromText(const FString& Text, FText& OutValue)
{
	OutValue = FText::FromString(Text);
}

template <typename T>
class TTextEditor final : public IValueEditor
{
public:
	QWidget* Make(const FProperty&, QWidget* Parent) const override
	{
		QLineEdit* const Edit = new QLineEdit(Parent);
		Edit->setMaxLength(std::numeric_limits<int>::max());
		return Edit;
	}
	void OnCommitted(QWidget& Widget, TFunction<void()> Do) const override
	{
		QLineEdit* const Edit = static_cast<QLineEdit*>(&Widget);
		QObject::connect(Edit, &QLineEdit::editingFinished, Edit,
			[Edit, Do]
			{
			// The focus goes from a text that nobody has touched as well.
			if (Edit->isModified())
			{
				Edit->setModified(false);
				Do();
			}
		});
	}
	bool IsInEdit(const QWidget& Widget) const override { return Widget.hasFocus() && static_cast<const QLineEdit&>(Widget).isModified(); }
	void Show(QWidget& Widget, const FProperty& Property, const void* Value) const override
	{
		QLineEdit& Edit = static_cast<QLineEdit&>(Widget);
		Edit.setModified(false);
		// A text that stays keeps its caret and its beginning in view.
		if (const QString Text = Describe(Property, Value); Edit.text() != Text)
		{
			Edit.setText(Text);
			Edit.setCursorPosition(0);
		}
	}
	bool Read(const QWidget& Widget, const FProperty& Property, void* Value) const override
	{
		const QString Text = static_cast<const QLineEdit&>(Widget).text();
		if (Text == Describe(Property, Value))
		{
			return false;
		}
		FromText(ToFString(Text), *static_cast<T*>(Value));
		return true;
	}
	QString Describe(const FProperty&, const void* Value) const override { return ToQString(ToText(*static_cast<const T*>(Value))); }
};

class FCheckEditor final : public IValueEditor
{
public:
	QWidget* Make(const FProperty&, QWidget* Parent) const override { return new QCheckBox(Parent); }
	void OnCommitted(QWidget& Widget, TFunction<void()> Do) const override
	{
		QObject::connect(static_cast<QCheckBox*>(&Widget), &QCheckBox::clicked, &Widget, Do);
	}
	bool IsInEdit(const QWidget& Widget) const override { return static_cast<const QCheckBox&>(Widget).isDown(); }
	void Show(QWidget& Widget, const FProperty& Property, const void* Value) const override
	{
		static_cast<QCheckBox&>(Widget).setChecked(static_cast<const FBoolProperty&>(Property).GetPropertyValue(Value));
	}
	bool Read(const QWidget& Widget, const FProperty& Property, void* Value) const override
	{
		const FBoolProperty& Bool = static_cast<const FBoolProperty&>(Property);
		const bool bChecked = static_cast<const QCheckBox&>(Widget).isChecked();
		const bool bChanged = Bool.GetPropertyValue(Value) != bChecked;
		Bool.SetPropertyValue(Value, bChecked);
		return bChanged;
	}
	QString Describe(const FProperty& Property, const void* Value) const override
	{
		return static_cast<const FBoolProperty&>(Property).GetPropertyValue(Value) ? QStringLiteral("True") : QStringLiteral("False");
	}
};

/** The number that an enum's value is kept as. */
const FNumericProperty& GetNumber(const FProperty& Property)
{
	const FEnumProperty* const Enum = CastField<FEnumProperty>(&Property);
	return Enum ? *Enum->GetUnderlyingProperty() : static_cast<const FNumericProperty&>(Property);
}

const UEnum* GetEnum(const FProperty& Property)
{
	const FEnumProperty* const Enum = CastField<FEnumProperty>(&Property);
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	return Enum ? Enum->GetEnum() : Number ? Number->GetIntPropertyEnum() : nullptr;
}

class FChoiceEditor final : public IValueEditor
{
public:
	QWidget* Make(const FProperty& Property, QWidget* Parent) const override
	{
		QComboBox* const Box = new QComboBox(Parent);
		const UEnum* const Enum = GetEnum(Property);
		for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
		{
			// The one behind the last tells how many there are.
			const bool bIsEnd = Index == Enum->NumEnums() - 1 && Enum->GetNameStringByIndex(Index).EndsWith(TEXT("_MAX"));
			if (!bIsEnd && !Enum->HasMetaData("Hidden", Index))
			{
				Box->addItem(ToQString(Enum->GetDisplayNameTextByIndex(Index).ToString()), qint64(Enum->GetValueByIndex(Index)));
				Box->setItemData(Box->count() - 1, ToQString(Enum->GetMetaData("ToolTip", Index)), Qt::ToolTipRole);
			}
		}
		return Box;
	}
	void OnCommitted(QWidget& Widget, TFunction<void()> Do) const override
	{
		QObject::connect(static_cast<QComboBox*>(&Widget), &QComboBox::activated, &Widget, [Do](int) { Do(); });
	}
	bool IsInEdit(const QWidget& Widget) const override { return static_cast<const QComboBox&>(Widget).view()->isVisible(); }
	void Show(QWidget& Widget, const FProperty& Property, const void* Value) const override
	{
		QComboBox& Box = static_cast<QComboBox&>(Widget);
		Box.setCurrentIndex(Box.findData(qint64(GetNumber(Property).GetSignedIntPropertyValue(Value))));
	}
	bool Read(const QWidget& Widget, const FProperty& Property, void* Value) const override
	{
		const QVariant Chosen = static_cast<const QComboBox&>(Widget).currentData();
		const FNumericProperty& Number = GetNumber(Property);
		if (!Chosen.isValid() || Chosen.toLongLong() == Number.GetSignedIntPropertyValue(Value))
		{
			return false;
		}
		Number.SetIntPropertyValue(Value, Chosen.toLongLong());
		return true;
	}
	QString Describe(const FProperty& Property, const void* Value) const override
	{
		const int64 Number = GetNumber(Property).GetSignedIntPropertyValue(Value);
		return ToQString(GetEnum(Property)->GetDisplayNameTextByValue(Number).ToString());
	}
};

class FNumberEditor final : public IValueEditor
{
public:
	QWidget* Make(const FProperty& Property, QWidget* Parent) const override
	{
		return new FNumberBox(static_cast<const FNumericProperty&>(Property), Parent);
	}
	void OnCommitted(QWidget& Widget, TFunction<void()> Do) const override
	{
		FNumberBox* const Box = static_cast<FNumberBox*>(&Widget);
		QObject::connect(Box, &QAbstractSpinBox::editingFinished, Box,
			[Box, Do]
			{
			if (Box->EndEdit())
			{
				Do();
			}
		});
	}
	bool IsInEdit(const QWidget& Widget) const override { return static_cast<const FNumberBox&>(Widget).IsInEdit(); }
	void Show(QWidget& Widget, const FProperty& Property, const void* Value) const override
	{
		static_cast<FNumberBox&>(Widget).SetText(Describe(Property, Value));
	}
	bool Read(const QWidget& Widget, const FProperty& Property, void* Value) const override
	{
		alignas(double) uint8 Number[sizeof(double)];
		if (!ParseNumber(static_cast<const FNumericProperty&>(Property), static_cast<const FNumberBox&>(Widget).text(), Number) ||
			Property.Identical(Number, Value))
		{
			return false;
		}
		Property.CopySingleValue(Value, Number);
		return true;
	}
	QString Describe(const FProperty& Property, const void* Value) const override
	{
		return DescribeNumber(static_cast<const FNumericProperty&>(Property), Value);
	}
};

struct FKind
{
	bool (*Handles)(const FProperty& Property);
	const IValueEditor& Editor;
};

template <typename PropertyType>
bool Is(const FProperty& Property)
{
	return Property.IsA<PropertyType>();
}
}

const IValueEditor* FindValueEditor(const FProperty& Property)
{
	static const TTextEditor<FString> String;
	static const TTextEditor<FName> Name;
	static const TTextEditor<FText> Text;
	static const FCheckEditor Check;
	static const FChoiceEditor Choice;
	static const FNumberEditor Number;
	// An enum may be kept as a byte, which is a number as well.
	static const FKind Kinds[] = {
		{ &Is<FStrProperty>, String },
		{ &Is<FNameProperty>, Name },
		{ &Is<FTextProperty>, Text },
		{ &Is<FBoolProperty>, Check },
		{ [](const FProperty& Each) { return GetEnum(Each) != nullptr; }, Choice },
		{ &Is<FNumericProperty>, Number },
	};
	for (const FKind& Kind : Kinds)
	{
		if (Kind.Handles(Property))
		{
			return &Kind.Editor;
		}
	}
	return nullptr;
}
