#include "Agent/Agent.h"
#include "Agent/FileHistory.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "Support/Panel.h"
#include "Widgets/Text/SMultiLineEditableText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{
const char* const ReadBlock = R"({"type":"tool_use","name":"read_file","id":"t1","input":{"path":"a.txt"}})";

/** What the controls are in a state: with an empty input, with text in it, and with a pause asked for. */
struct FStateRow
{
	EAgentState State;
	/** Where the agent is once it was brought to the state. */
	EAgentState Rests;
	bool bInput;
	const char* Start[2];
	const char* Continue[2];
	const char* Approve;
	/** Without and with a pause asked for. */
	const char* Pause[2];
	const char* End;
};

const char* const On = "visible";
const char* const Off = "disabled";
const char* const Gone = "collapsed";

FStateRow Busy(EAgentState State)
{
	return { State, State, false, { Off, Off }, { Gone, Gone }, Gone, { On, Off }, On };
}

const FStateRow IdleRow = { EAgentState::Idle, EAgentState::Idle, true, { Off, On }, { Off, Off }, Gone, { Gone, Gone }, Off };

FStateRow PassesToIdle(EAgentState State)
{
	FStateRow Row = IdleRow;
	Row.State = State;
	return Row;
}

const FStateRow States[] = {
	Busy(EAgentState::None),
	Busy(EAgentState::Indexing),
	IdleRow,
	Busy(EAgentState::InitialRequest),
	Busy(EAgentState::RegularRequest),
	Busy(EAgentState::PollRequest),
	Busy(EAgentState::PollResponse),
	{ EAgentState::AwaitingApproval, EAgentState::AwaitingApproval, true, { Off, Off }, { Off, On }, On, { Gone, Gone }, On },
	Busy(EAgentState::Approved),
	Busy(EAgentState::Continue),
	{ EAgentState::AwaitingUpdate, EAgentState::AwaitingUpdate, true, { Off, Off }, { Off, On }, Gone, { Gone, Gone }, On },
	{ EAgentState::Pause, EAgentState::Pause, true, { Off, Off }, { On, On }, Gone, { Gone, Gone }, On },
	PassesToIdle(EAgentState::CancelRequest),
	PassesToIdle(EAgentState::EndRequest),
};

TEST(PanelControls, FollowTheStateTheInputAndTheAskedPause)
{
	const FPanel Panel;
	const FInitialRequestData Data(TEXT("x"));
	for (const FStateRow& Row : States)
	{
		for (const bool bText : { false, true })
		{
			for (const bool bPause : { false, true })
			{
				SCOPED_TRACE(StateName(Row.State) + (bText ? " text" : "") + (bPause ? " pause" : ""));
				FAgent::Get().SetState(EAgentState::Approved);
				FAgent::Get().SetState(EAgentState::Idle);
				FAgent::Get().SetState(Row.State, &Data);
				FAgent::Get().SetPauseRequested(bPause);
				ASSERT_EQ(FAgent::Get().GetState(), Row.Rests);
				Panel.SetInput(bText ? "x" : "");
				EXPECT_EQ(Panel.GetDriver().FindInput()->IsEnabled(), Row.bInput);
				EXPECT_EQ(Panel.GetButton("[ Start ]"), Row.Start[bText]);
				EXPECT_EQ(Panel.GetButton("Continue"), Row.Continue[bText]);
				EXPECT_EQ(Panel.GetButton("Approve"), Row.Approve);
				EXPECT_EQ(Panel.GetButton("Pause"), Row.Pause[bPause]);
				EXPECT_EQ(Panel.GetButton("Undo"), Off);
				EXPECT_EQ(Panel.GetButton("Redo"), Off);
				EXPECT_EQ(Panel.GetButton("[ End ]"), Row.End);
				// What Indexing has started ends in Idle by itself, which must not be in another row's time.
				EXPECT_TRUE(Row.State != EAgentState::Indexing ||
					FMainLoop::RunUntil([] { return FAgent::Get().GetState() == EAgentState::Idle; }, 20.0));
			}
		}
	}
}

TEST(PanelControls, AConversationByMouse)
{
	FPanel Panel;
	Panel.Talk.Project.Write("a.txt", "old");
	Panel.Type("Do it");
	Panel.Click("[ Start ]");
	EXPECT_EQ(Panel.GetInput(), "");
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr(R"("message":"Do it")"));
	FString Error;
	EXPECT_FALSE(Panel.GetDriver().Click(TEXT("[ Start ]"), Error));

	Panel.Talk.FinishWith(ReadBlock);
	EXPECT_EQ(Panel.Talk.State(), "AwaitingApproval");
	Panel.Type("kept");
	Panel.Click("Approve");
	EXPECT_EQ(Panel.GetInput(), "kept");
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr(R"("content":"old","is_error":false}],"was_confirmed":true)"));

	Panel.Click("Pause");
	EXPECT_EQ(Panel.GetButton("Pause"), Off) << "until the agent clears it";
	Panel.Talk.FinishWith(ReadBlock);
	EXPECT_EQ(Panel.Talk.State(), "Pause");
	Panel.Click("Continue");
	EXPECT_EQ(Panel.GetInput(), "");
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr(R"("message":"kept")"));
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr("is_abort"));

	Panel.SetInput("for later");
	Panel.Click("[ End ]");
	EXPECT_EQ(Panel.Talk.State(), "Idle");
	EXPECT_EQ(Panel.GetInput(), "for later");
}

TEST(PanelControls, UndoAndRedoOfAConversation)
{
	FPanel Panel;
	Panel.Type("Write");
	Panel.Click("[ Start ]");
	Panel.Talk.FinishWith(R"({"type":"tool_use","name":"create_file","id":"t","input":{"path":"n.txt","file_text":"new"}})", true);
	Panel.Click("[ End ]");
	EXPECT_TRUE(Panel.Talk.Project.Has("n.txt"));
	Panel.Click("Undo");
	EXPECT_FALSE(Panel.Talk.Project.Has("n.txt"));
	EXPECT_EQ(Panel.GetButton("Undo"), Off);
	Panel.Click("Redo");
	EXPECT_TRUE(Panel.Talk.Project.Has("n.txt"));
	EXPECT_EQ(Panel.GetButton("Redo"), Off);
	FAgent::Get().SetUndoConversationId(FString());
	FFileHistory::Get().ClearAllHistory();
}

TEST(PanelControls, EnterSendsAndShiftEnterAddsALine)
{
	FPanel Panel;
	Panel.Press("Enter");
	EXPECT_EQ(Panel.GetInput(), "") << "an empty start is handled and does nothing";
	EXPECT_EQ(Panel.Talk.State(), "Idle");
	Panel.Type("one");
	Panel.GetDriver().FindInput()->SetCaret(0);
	Panel.Press("Enter", true);
	Panel.Type("two");
	EXPECT_EQ(Panel.GetInput(), "one\ntwo") << "the caret went to the end";
	EXPECT_EQ(Panel.Talk.State(), "Idle");
	Panel.Press("A");
	Panel.Press("Enter");
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr(R"("message":"one\ntwo")"));

	const int32 Sent = Panel.Talk.Wire.GetRequests().Num();
	Panel.Press("Enter");
	EXPECT_EQ(Panel.Talk.Wire.GetRequests().Num(), Sent) << "the agent is at work";
	EXPECT_EQ(Panel.GetInput(), "");

	Panel.Talk.FinishWith(R"({"type":"text","text":"Hello"})", true);
	const int32 Posts = Panel.Talk.CountRequests(TEXT("POST"));
	Panel.Press("Enter");
	EXPECT_EQ(Panel.Talk.CountRequests(TEXT("POST")), Posts) << "nothing to go on with";
	Panel.SetInput("");
	Panel.Type("more");
	Panel.Press("Enter");
	EXPECT_THAT(Panel.Talk.LastBody(), HasSubstr(R"("message":"more")"));
}
}
