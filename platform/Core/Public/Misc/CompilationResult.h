#pragma once

namespace ECompilationResult
{
/** How a build ended. */
enum Type
{
	Succeeded = 0,
	/** Somebody ended it. */
	Canceled = 1,
	/** The compiler, the linker or the header tool had errors, or what they made can't be loaded. */
	OtherCompilationError = 6,
	/** There is nothing to build with. */
	Unsupported = 7,
	/** It still runs, or none was started. */
	Unknown = 8
};
}
