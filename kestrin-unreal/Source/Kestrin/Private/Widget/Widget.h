#pragma once

#include "CoreMinimal.h"
#include "LineDiff.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder;
class SButton;
class SMultiLineEditableText;
class SScrollBox;

/**
 * The chat panel: what was said and changed above, the input and the controls below. It keeps no state of the conversation: what shows and
 * what can be clicked is told by the agent's state and the input's text whenever it is asked for. The newest panel gets the chat's lines;
 * they are lost while there is none. Game thread.
 */
class SKestrinWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SKestrinWidget) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
	virtual ~SKestrinWidget() override;

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	/** Enter sends, shift and Enter adds a line. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	struct FControl;

	// The widget tree.
	void MakeStyles();
	TSharedRef<SWidget> MakeChat();
	TSharedRef<SWidget> MakeInput();
	TSharedRef<SWidget> MakeControls();
	TSharedRef<SButton> MakeButton(const FControl& Control);
	TSharedRef<SWidget> MakeModePicker();

	// What can be done.
	bool HasInput() const;
	bool CanType() const;
	bool CanStart() const;
	bool CanContinue() const;
	bool CanPause() const;
	bool CanUndo() const;
	bool CanRedo() const;
	bool CanEnd() const;
	/** These two also tell the buttons whether they can be clicked. */
	EVisibility GetContinueVisibility() const;
	EVisibility GetPauseVisibility() const;
	EVisibility GetApproveVisibility() const;

	FReply OnStartClicked();
	FReply OnContinueClicked();
	FReply OnApproveClicked();
	FReply OnPauseClicked();
	FReply OnUndoClicked();
	FReply OnRedoClicked();
	FReply OnEndClicked();
	void OnUserScrolledChat(float ScrollOffset);

	FText GetModeLabel() const;
	void OnModePicked(TSharedPtr<FString> Label, ESelectInfo::Type SelectInfo);

	// The chat's blocks.
	void AddStatusMessage(FString Message, FLinearColor Color, FName FontName, float FontSize);
	void AddDiffMessage(FString FilePath, FString OldContent, FString NewContent);
	/** Drops a first line that the block before had already. @return whether something is left to show */
	bool DropRepeatedHeader(FString& Text);
	void FollowChat();
	/** The line stands until the next block comes, with its closing dots moving. */
	void StartDotAnimation(const TSharedRef<SMultiLineEditableText>& TextBlock, const TSharedRef<SBorder>& Border, const FString& Text);
	void StopDotAnimation();
	EActiveTimerReturnType MoveDots(double InCurrentTime, float InDeltaTime);
	static TSharedRef<SWidget> MakeLineNumberColumn(const TArray<FDiffLine>& Lines, bool bOld);
	static TSharedRef<SWidget> MakeContentColumn(const TArray<FDiffLine>& Lines);

	TArray<TSharedPtr<FString>> ModeOptions;
	TSharedPtr<SMultiLineEditableText> InputTextBox;
	TSharedPtr<SScrollBox> ChatScrollBox;
	TSharedPtr<SButton> StartButton;
	TSharedPtr<SButton> EndButton;
	TSharedPtr<SButton> ContinueButton;
	TSharedPtr<SButton> PauseButton;
	FString LastHeaderLine;
	TSharedPtr<FActiveTimerHandle> DotTimerHandle;
	TSharedPtr<SMultiLineEditableText> AnimatedTextBlock;
	TSharedPtr<SBorder> AnimatedBorder;
	/** Without its three dots. */
	FString AnimatedBaseText;
	int32 AnimatedDotCount = 0;
	FButtonStyle PrimaryButtonStyle;
	FButtonStyle PauseButtonStyle;
	FButtonStyle EndButtonStyle;
	FSlateFontInfo ButtonFont;
	bool bShiftPressed = false;

	// The user's scrolling holds for all panels.
	static bool bUserScrolled;
	static float LastUserScrollTime;
};
