#include "SettingsNumberBox.h"

#include "UObject/UnrealType.h"

#include <charconv>
#include <cmath>

namespace
{
/** Room for one number of any type. */
struct FNumber
{
	alignas(double) uint8 Bytes[sizeof(double)] = {};
};

template <typename T>
QString DescribeFloat(const void* Value)
{
	const T Number = *static_cast<const T*>(Value);
	const T Magnitude = std::abs(Number);
	const bool bPlain = Magnitude == 0 || (Magnitude >= T(1e-6) && Magnitude < T(1e15));
	char Text[64];
	const auto Result = std::to_chars(Text, Text + sizeof(Text), Number, bPlain ? std::chars_format::fixed : std::chars_format::scientific);
	return QString::fromLatin1(Text, Result.ptr - Text);
}

template <typename T>
QString AddSteps(T Number, int Steps)
{
	T Sum = 0;
	return __builtin_add_overflow(Number, Steps, &Sum) ? QString::number(Number) : QString::number(Sum);
}
}

QString DescribeNumber(const FNumericProperty& Property, const void* Value)
{
	if (Property.IsA<FFloatProperty>())
	{
		return DescribeFloat<float>(Value);
	}
	if (Property.IsA<FDoubleProperty>())
	{
		return DescribeFloat<double>(Value);
	}
	return Property.IsA<FUInt64Property>() ? QString::number(Property.GetUnsignedIntPropertyValue(Value))
										   : QString::number(qint64(Property.GetSignedIntPropertyValue(Value)));
}

bool ParseNumber(const FNumericProperty& Property, const QString& Text, void* OutNumber)
{
	const FString Trimmed = ToFString(Text.trimmed());
	FNumber Number;
	const TCHAR* const End = Property.ImportText_Direct(*Trimmed, Number.Bytes, nullptr, PPF_None, nullptr);
	if (!End || *End || !std::isfinite(Property.GetFloatingPointPropertyValue(Number.Bytes)))
	{
		return false;
	}
	Property.CopySingleValue(OutNumber, Number.Bytes);
	return true;
}

FNumberBox::FNumberBox(const FNumericProperty& InProperty, QWidget* Parent)
	: QAbstractSpinBox(Parent)
	, Property(InProperty)
{
}

void FNumberBox::SetText(const QString& Text)
{
	Unedited = Text;
	if (text() != Text)
	{
		lineEdit()->setText(Text);
	}
}

bool FNumberBox::IsInEdit() const
{
	return hasFocus() && text() != Unedited;
}

bool FNumberBox::EndEdit()
{
	return std::exchange(Unedited, text()) != text();
}

void FNumberBox::stepBy(int Steps)
{
	FNumber Number;
	if (!ParseNumber(Property, text(), Number.Bytes))
	{
		return;
	}
	QString Next;
	if (Property.IsFloatingPoint())
	{
		Property.SetFloatingPointPropertyValue(Number.Bytes, Property.GetFloatingPointPropertyValue(Number.Bytes) + Steps);
		Next = DescribeNumber(Property, Number.Bytes);
	}
	else
	{
		Next = Property.IsA<FUInt64Property>() ? AddSteps<qulonglong>(Property.GetUnsignedIntPropertyValue(Number.Bytes), Steps)
											   : AddSteps<qlonglong>(Property.GetSignedIntPropertyValue(Number.Bytes), Steps);
	}
	// A smaller type ends earlier.
	if (ParseNumber(Property, Next, Number.Bytes))
	{
		lineEdit()->setText(Next);
		Q_EMIT editingFinished();
	}
}

QValidator::State FNumberBox::validate(QString& Text, int&) const
{
	FNumber Number;
	if (ParseNumber(Property, Text, Number.Bytes))
	{
		return QValidator::Acceptable;
	}
	const QString Allowed = Property.IsInteger() ? QStringLiteral("+-0123456789 ") : QStringLiteral("+-0123456789.eE ");
	return std::all_of(Text.begin(), Text.end(), [&Allowed](QChar Each) { return Allowed.contains(Each); }) ? QValidator::Intermediate
																											: QValidator::Invalid;
}
