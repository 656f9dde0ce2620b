#pragma once

#include "Agent/KestrinInterface.h"

// Chat lines in the three looks.

inline void ShowUserLine(const FString& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(
		Text, FKestrinInterface::UserColor, FKestrinInterface::RegularFontName, FKestrinInterface::UserFontSize);
}

inline void ShowAssistantLine(const FString& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(
		Text, FKestrinInterface::KestrinColor, FKestrinInterface::BoldFontName, FKestrinInterface::KestrinFontSize);
}

inline void ShowProgressLine(const FString& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(
		Text, FKestrinInterface::MessageColor, FKestrinInterface::ItalicFontName, FKestrinInterface::MessageFontSize);
}
