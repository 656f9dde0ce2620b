// Any bytes as a header: they are read or refused, and what is read can be written.

#include "Parser.h"
#include "SourceError.h"
#include "Writer.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	try
	{
		const Header Read = ParseHeader({ reinterpret_cast<const char*>(Data), Size }, "A.h");
		if (WriteGeneratedHeader(Read, "Fuzz").empty() || WriteGeneratedSource({ Read }, "Fuzz").empty())
		{
			std::abort();
		}
	}
	catch (const SourceError& Error)
	{
		if (Error.Line < 1)
		{
			std::abort();
		}
	}
	return 0;
}
