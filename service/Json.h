#pragma once

#include <nlohmann/json.hpp>

namespace LocalService
{
/** Keeps the order of fields, so that answers and logs read as they were written. */
using Json = nlohmann::ordered_json;

/** One line of text; bytes that are no UTF-8 come out as U+FFFD instead of an exception. */
inline std::string ToText(const Json& Value)
{
	return Value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/** The value that the text holds; `is_discarded()` when it is no JSON, or nested deeper than the recursive writer can bear. */
inline Json ParseJson(const std::string& Text)
{
	constexpr int DeepestNesting = 500;
	bool bTooDeep = false;
	const auto Watch = [&bTooDeep](int Depth, Json::parse_event_t, Json&)
	{
		bTooDeep |= Depth > DeepestNesting;
		return true;
	};
	Json Value = Json::parse(Text, Watch, false);
	return bTooDeep ? Json(Json::value_t::discarded) : Value;
}
}
