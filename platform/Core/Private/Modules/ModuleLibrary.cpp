#include "CoreHost/ModuleLibrary.h"

#include <dlfcn.h>
#include <link.h>

void* FindModuleEntry(void* Library)
{
	void* const Entry = ::dlsym(Library, "InitializeModule");
	Dl_info Found{};
	link_map* Map = nullptr;
	const bool bKnown = Entry && ::dladdr(Entry, &Found) != 0 && ::dlinfo(Library, RTLD_DI_LINKMAP, &Map) == 0;
	return bKnown && Found.dli_fbase == reinterpret_cast<void*>(Map->l_addr) ? Entry : nullptr;
}
