#pragma once

#include "CoreTypes.h"

enum EHorizontalAlignment : uint8
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right
};

enum EVerticalAlignment : uint8
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom
};

enum class EActiveTimerReturnType : uint8
{
	Stop,
	Continue
};

/** How something came to be selected. */
namespace ESelectInfo
{
enum Type : uint8
{
	OnKeyPress,
	OnNavigation,
	OnMouseClick,
	/** By the program. */
	Direct
};
}
