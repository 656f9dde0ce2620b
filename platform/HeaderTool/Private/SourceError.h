#pragma once

#include <stdexcept>
#include <string>

// Something in a header that the tool refuses; Line is 1-based. Caught once for each header, so that all headers are reported.
class SourceError : public std::runtime_error
{
public:
	SourceError(int InLine, const std::string& Message)
		: std::runtime_error(Message)
		, Line(InLine)
	{
	}

	const int Line;
};
