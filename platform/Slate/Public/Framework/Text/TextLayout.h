#pragma once

#include "CoreTypes.h"

/** At which side the lines of a text stand. */
namespace ETextJustify
{
enum Type : uint8
{
	Left,
	Center,
	Right
};
}
