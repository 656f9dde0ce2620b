#include "ChatLook.h"

#include "Agent/KestrinInterface.h"

const TCHAR* GetChatLook(const FName& FontName)
{
	if (FontName == FKestrinInterface::RegularFontName)
	{
		return TEXT("user");
	}
	return FontName == FKestrinInterface::BoldFontName ? TEXT("assistant") : TEXT("progress");
}
