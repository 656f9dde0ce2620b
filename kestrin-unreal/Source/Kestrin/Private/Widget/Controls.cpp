#include "Widget.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"

// What the panel's controls do, and when they can be used.

namespace
{
EAgentState GetState()
{
	return FAgent::Get().GetState();
}

/** Whether it is the user's turn. */
bool IsWaiting()
{
	switch (GetState())
	{
	case EAgentState::Idle:
	case EAgentState::AwaitingApproval:
	case EAgentState::AwaitingUpdate:
	case EAgentState::Pause: return true;
	default: return false;
	}
}

EVisibility ShowIf(bool bShow)
{
	return bShow ? EVisibility::Visible : EVisibility::Collapsed;
}
}

bool SKestrinWidget::HasInput() const
{
	return !InputTextBox->GetText().IsEmpty();
}

bool SKestrinWidget::CanType() const
{
	return IsWaiting();
}

bool SKestrinWidget::CanStart() const
{
	return HasInput() && GetState() == EAgentState::Idle;
}

bool SKestrinWidget::CanContinue() const
{
	if (!ContinueButton.IsValid())
	{
		return false;
	}
	switch (GetState())
	{
	case EAgentState::Pause: return true;
	case EAgentState::AwaitingUpdate:
	case EAgentState::AwaitingApproval: return HasInput();
	default: return false;
	}
}

bool SKestrinWidget::CanPause() const
{
	return !FAgent::Get().IsPauseRequested() && !IsWaiting();
}

bool SKestrinWidget::CanUndo() const
{
	return FKestrinInterface::Get().CanUndo();
}

bool SKestrinWidget::CanRedo() const
{
	return FKestrinInterface::Get().CanRedo();
}

bool SKestrinWidget::CanEnd() const
{
	return GetState() != EAgentState::Idle;
}

EVisibility SKestrinWidget::GetContinueVisibility() const
{
	if (ContinueButton.IsValid())
	{
		ContinueButton->SetEnabled(CanContinue());
	}
	return ShowIf(IsWaiting());
}

EVisibility SKestrinWidget::GetPauseVisibility() const
{
	if (PauseButton.IsValid())
	{
		PauseButton->SetEnabled(CanPause());
	}
	return ShowIf(!IsWaiting());
}

EVisibility SKestrinWidget::GetApproveVisibility() const
{
	return ShowIf(GetState() == EAgentState::AwaitingApproval);
}

FReply SKestrinWidget::OnStartClicked()
{
	const FString Input = InputTextBox->GetText().ToString();
	if (!Input.IsEmpty() && GetState() == EAgentState::Idle)
	{
		FKestrinInterface::Get().InitialRequest(Input);
		InputTextBox->SetText(FText::GetEmpty());
	}
	ChatScrollBox->ScrollToEnd();
	return FReply::Handled();
}

FReply SKestrinWidget::OnContinueClicked()
{
	const FString Input = InputTextBox->GetText().ToString();
	FKestrinInterface::Get().Continue(Input);
	InputTextBox->SetText(FText::GetEmpty());
	ChatScrollBox->ScrollToEnd();
	return FReply::Handled();
}

FReply SKestrinWidget::OnApproveClicked()
{
	FKestrinInterface::Get().Approve();
	FKestrinInterface::Get().Continue(FString());
	ChatScrollBox->ScrollToEnd();
	return FReply::Handled();
}

FReply SKestrinWidget::OnPauseClicked()
{
	FKestrinInterface::Get().PauseRequest();
	return FReply::Handled();
}

FReply SKestrinWidget::OnUndoClicked()
{
	FKestrinInterface::Get().UndoLastOperation();
	return FReply::Handled();
}

FReply SKestrinWidget::OnRedoClicked()
{
	FKestrinInterface::Get().RedoLastOperation();
	return FReply::Handled();
}

FReply SKestrinWidget::OnEndClicked()
{
	if (GetState() != EAgentState::Idle)
	{
		FKestrinInterface::Get().EndRequest(FString());
	}
	ChatScrollBox->ScrollToEnd();
	return FReply::Handled();
}

FReply SKestrinWidget::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	bShiftPressed = InKeyEvent.IsLeftShiftDown() || InKeyEvent.IsRightShiftDown();
	if (InKeyEvent.GetKey() != EKeys::Enter)
	{
		return FReply::Unhandled();
	}
	if (bShiftPressed)
	{
		InputTextBox->SetText(FText::FromString(InputTextBox->GetText().ToString() + TEXT("\n")));
		InputTextBox->GoTo(ETextLocation::EndOfDocument);
		return FReply::Handled();
	}
	if (GetState() == EAgentState::Idle)
	{
		return OnStartClicked();
	}
	return CanContinue() ? OnContinueClicked() : FReply::Unhandled();
}
