#pragma once

#include "Styling/ISlateStyle.h"

/** The style sets by name. Game thread. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	/** The set must be unregistered before it goes. One of the same name is replaced. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	/** Null when there is none. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);
};
