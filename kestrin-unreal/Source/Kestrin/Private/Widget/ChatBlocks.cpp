#include "Widget.h"

#include "Agent/KestrinInterface.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"

// How a text becomes a block of the chat.

namespace
{
/** What ends a line that stands only until the next block comes. */
const TCHAR* const TransientEnd = TEXT("...");
constexpr float DotPeriod = 0.5f;

/** Taken out of what shows, in this order, wherever they stand. */
const TCHAR* const StrippedWords[] = {
	TEXT("execute_unreal_engine_api_python_script"),
	TEXT("create_cpp_file"),
	TEXT("update_and_replace_cpp_file"),
	TEXT("delete_cpp_file"),
	TEXT("read_file"),
	TEXT("get_filesystem_tree"),
	TEXT("create_blueprint"),
	TEXT("read_blueprint"),
	TEXT("modify_blueprint"),
	TEXT("modify_behavior_tree"),
	TEXT("read_behavior_tree"),
	TEXT("save_and_compile_all_dirty_blueprints"),
	TEXT("find_reference_in_all_files"),
	TEXT("get_blueprint_subset_by_keywords"),
	TEXT("get_blueprint_summary"),
	TEXT("**"),
};
}

void SKestrinWidget::AddStatusMessage(FString Message, FLinearColor Color, FName FontName, float FontSize)
{
	if (!ChatScrollBox.IsValid())
	{
		return;
	}
	FString Display = Message;
	if (!Message.EndsWith(TransientEnd) && !DropRepeatedHeader(Display))
	{
		return;
	}
	for (const TCHAR* const Word : StrippedWords)
	{
		Display.ReplaceInline(Word, TEXT(""), ESearchCase::IgnoreCase);
	}
	if (Display.IsEmpty())
	{
		return;
	}

	TSharedPtr<SMultiLineEditableText> TextBlock;
	TSharedPtr<SBorder> Border;
	// clang-format off
	ChatScrollBox->AddSlot()
	.Padding(0.0f, 0.0f, 0.0f, 8.0f)
	[
		SAssignNew(Border, SBorder)
		.BorderBackgroundColor(Color)
		.Padding(8.0f)
		[
			SAssignNew(TextBlock, SMultiLineEditableText)
			.Text(FText::FromString(Display))
			.AutoWrapText(true)
			.IsReadOnly(true)
			.Font(FCoreStyle::GetDefaultFontStyle(FontName, FontSize))
			.TextStyle(&FAppStyle::Get(), "NormalText")
		]
	];
	// clang-format on
	if (Display.EndsWith(TransientEnd))
	{
		StartDotAnimation(TextBlock.ToSharedRef(), Border.ToSharedRef(), Display);
		return;
	}
	StopDotAnimation();
	FollowChat();
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.KestrinInterfaceLogString(Display, Interface.GetPromptLogFilePath(), true);
}

bool SKestrinWidget::DropRepeatedHeader(FString& Text)
{
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	if (Lines.IsEmpty())
	{
		return true;
	}
	if (LastHeaderLine.IsEmpty() || !Lines[0].Equals(LastHeaderLine, ESearchCase::IgnoreCase))
	{
		LastHeaderLine = Lines[0];
		return true;
	}
	Lines.RemoveAt(0);
	if (!Lines.IsEmpty() && Lines.Last().IsEmpty())
	{
		Lines.Pop();
	}
	Text = FString::Join(Lines, TEXT("\n")).TrimStart();
	return !Lines.IsEmpty();
}

void SKestrinWidget::FollowChat()
{
	if (!bUserScrolled)
	{
		ChatScrollBox->ScrollToEnd();
	}
}

void SKestrinWidget::StartDotAnimation(
	const TSharedRef<SMultiLineEditableText>& TextBlock, const TSharedRef<SBorder>& Border, const FString& Text)
{
	StopDotAnimation();
	AnimatedTextBlock = TextBlock;
	AnimatedBorder = Border;
	AnimatedBaseText = Text.LeftChop(3);
	AnimatedDotCount = 0;
	DotTimerHandle = RegisterActiveTimer(DotPeriod, FWidgetActiveTimerDelegate::CreateSP(this, &SKestrinWidget::MoveDots));
}

EActiveTimerReturnType SKestrinWidget::MoveDots(double InCurrentTime, float InDeltaTime)
{
	if (!AnimatedTextBlock.IsValid())
	{
		StopDotAnimation();
		return EActiveTimerReturnType::Stop;
	}
	AnimatedDotCount = (AnimatedDotCount + 1) % 4;
	AnimatedTextBlock->SetText(FText::FromString(AnimatedBaseText + FString::ChrN(AnimatedDotCount, TEXT('.'))));
	return EActiveTimerReturnType::Continue;
}

void SKestrinWidget::StopDotAnimation()
{
	if (!ChatScrollBox.IsValid())
	{
		return;
	}
	if (DotTimerHandle.IsValid())
	{
		UnRegisterActiveTimer(DotTimerHandle.ToSharedRef());
		DotTimerHandle.Reset();
	}
	if (AnimatedBorder.IsValid())
	{
		ChatScrollBox->RemoveSlot(AnimatedBorder.ToSharedRef());
		ChatScrollBox->Invalidate(EInvalidateWidgetReason::Layout);
		AnimatedBorder.Reset();
	}
	AnimatedTextBlock.Reset();
	AnimatedBaseText.Empty();
	AnimatedDotCount = 0;
}
