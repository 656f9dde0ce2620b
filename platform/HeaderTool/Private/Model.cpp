#include "Model.h"

#include <algorithm>

void MetaData::Set(const std::string& Key, const std::string& Value)
{
	const auto Found = std::ranges::find(Pairs, Key, &std::pair<std::string, std::string>::first);
	if (Found != Pairs.end())
	{
		Found->second = Value;
	}
	else
	{
		Pairs.emplace_back(Key, Value);
	}
}

bool MetaData::Has(const std::string& Key) const
{
	return std::ranges::find(Pairs, Key, &std::pair<std::string, std::string>::first) != Pairs.end();
}
