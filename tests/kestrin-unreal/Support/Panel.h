#pragma once

#include "SlateHost/WidgetDriver.h"
#include "Support/Conversation.h"

/** A conversation with the plug-in's module loaded and its chat panel open, in Idle. */
class FPanel
{
public:
	FPanel();
	~FPanel();
	UE_NONCOPYABLE(FPanel)

	FConversation Talk;

	FWidgetDriver GetDriver() const;
	/** Act as the user; the test fails when the panel does not let him. */
	void Type(const char* Text) const;
	void Press(const char* Key, bool bShift = false) const;
	void Click(const char* Label) const;
	std::string GetInput() const;
	void SetInput(const char* Text) const;
	/** "visible", "disabled" or "collapsed". */
	std::string GetButton(const char* Label) const;

	/** What the blocks below the welcome text show, from the top; of a diff, its path and then its rows "old|new|prefix text". */
	std::vector<std::string> GetBlocks() const;
	bool IsAtEnd() const;
	/** What was added to the day's prompt log since the panel was opened, without the times. */
	std::string GetLog() const;

	/** Opens another panel in the place of the one that is open. */
	void Reopen();

	/** The whole of it, as it is. */
	std::string ReadLog() const;

private:
	size_t WelcomeLength = 0;
};

/** A line for each widget: depth, type, slot, then what it has. */
std::vector<std::string> Outline(const TSharedRef<SWidget>& Root);
