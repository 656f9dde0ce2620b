#pragma once

#include "CoreTypes.h"

/** How much a line of the log matters; the smaller, the more. */
namespace ELogVerbosity
{
enum Type : uint8
{
	NoLogging = 0,
	/** The process ends after the line. */
	Fatal,
	Error,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,
	All = VeryVerbose
};
}

/** @return "Warning", "Display" and so on */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);
