#include "NewId.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <random>

namespace LocalService
{
std::string NewId()
{
	std::random_device Source;
	std::array<uint32_t, 4> Words;
	for (uint32_t& Word : Words)
	{
		Word = Source();
	}
	const uint32_t Version = (Words[1] & 0x0FFF) | 0x4000;
	const uint32_t Variant = (Words[2] >> 16 & 0x3FFF) | 0x8000;
	char Text[37];
	snprintf(Text, sizeof Text, "%08x-%04x-%04x-%04x-%04x%08x", Words[0], Words[1] >> 16, Version, Variant, Words[2] & 0xFFFF, Words[3]);
	return Text;
}
}
