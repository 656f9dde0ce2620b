#pragma once

#include <cstdio>
#include <cstring>
#include <malloc.h>

/** A line of /proc/self/status in MiB: "VmRSS:" is what the process holds now, "VmHWM:" the most it held. */
inline double ReadMemory(const char* Name)
{
	long KiB = 0;
	std::FILE* const File = std::fopen("/proc/self/status", "r");
	char Line[256];
	while (std::fgets(Line, sizeof(Line), File))
	{
		if (std::strncmp(Line, Name, std::strlen(Name)) == 0)
		{
			std::sscanf(Line + std::strlen(Name), "%ld", &KiB);
		}
	}
	std::fclose(File);
	return static_cast<double>(KiB) / 1024.0;
}

/** What the program has allocated and not freed, in MiB. */
inline double AllocatedMemory()
{
	return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / (1024.0 * 1024.0);
}
