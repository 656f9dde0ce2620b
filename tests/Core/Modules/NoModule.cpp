// A library that loads and has no module in it.
extern "C" __attribute__((visibility("default"))) int JustALibrary();
extern "C" __attribute__((visibility("default"))) int JustALibrary()
{
	return 1;
}
