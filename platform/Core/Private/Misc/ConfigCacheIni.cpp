#include "Misc/ConfigCacheIni.h"

// Never destroyed: objects save their config until the process ends.
FConfigCacheIni* GConfig = new FConfigCacheIni;

FConfigFile* FConfigCacheIni::Find(const FString& Filename)
{
	if (TUniquePtr<FConfigFile>* const Known = Files.Find(Filename))
	{
		return Known->Get();
	}
	FConfigFile& File = *Files.Add(Filename, MakeUnique<FConfigFile>());
	File.Read(Filename);
	return &File;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	return Find(Filename)->GetString(Section, Key, Value);
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value, const FString& Filename)
{
	return Find(Filename)->GetArray(Section, Key, Value);
}
