#include "SlateLook.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace
{
constexpr int32 TabColumns = 4;
constexpr int32 LongestLine = 4096;
/** Slate's points are those of a screen of 96 dots an inch; Qt scales pixels by the screen's own factor. */
constexpr double PixelsPerPoint = 96.0 / 72.0;

struct FKnownFont
{
	FSlateFontInfo Info;
	FQtFont Font;
};

FQtFont MakeFont(const FSlateFontInfo& Info)
{
	QFont Font = QGuiApplication::font();
	Font.setPixelSize(std::max(1, qRound(static_cast<double>(Info.Size) * PixelsPerPoint)));
	Font.setBold(Info.TypefaceFontName == FName("Bold"));
	Font.setItalic(Info.TypefaceFontName == FName("Italic"));
	const QFontMetricsF Metrics(Font);
	return { Font, std::ceil(Metrics.lineSpacing()), Metrics };
}
}

const FQtFont& GetQtFont(const FSlateFontInfo& Info)
{
	static std::vector<std::unique_ptr<FKnownFont>> Known;
	for (const std::unique_ptr<FKnownFont>& Each : Known)
	{
		if (Each->Info.Size == Info.Size && Each->Info.TypefaceFontName == Info.TypefaceFontName)
		{
			return Each->Font;
		}
	}
	Known.push_back(std::make_unique<FKnownFont>(FKnownFont{ Info, MakeFont(Info) }));
	return Known.back()->Font;
}

QColor ToQColor(const FLinearColor& Color)
{
	const auto Channel = [](float Value) { return std::clamp(Value, 0.0f, 1.0f); };
	return QColor::fromRgbF(Channel(Color.R), Channel(Color.G), Channel(Color.B), Channel(Color.A));
}

QColor GetFill(const FSlateBrush& Brush, const FLinearColor& Tint)
{
	const FLinearColor Own = Brush.GetTint();
	return Brush.DrawAs == ESlateBrushDrawType::NoDrawType
		? QColor(Qt::transparent)
		: ToQColor(FLinearColor(Own.R * Tint.R, Own.G * Tint.G, Own.B * Tint.B, Own.A * Tint.A));
}

QString ToShownText(const FString& Text)
{
	QString Shown;
	int32 Column = 0;
	for (const TCHAR* At = *Text; At != *Text + Text.Len(); ++At)
	{
		if (*At == TEXT('\n'))
		{
			Shown += QLatin1Char('\n');
			Column = 0;
		}
		else if (Column < LongestLine)
		{
			const int32 Wide = *At == TEXT('\t') ? TabColumns - Column % TabColumns : 1;
			Shown += *At == TEXT('\t') ? QString(Wide, QLatin1Char(' ')) : QString(QChar(*At));
			Column += Wide;
		}
	}
	return Shown;
}
