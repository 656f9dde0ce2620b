#pragma once

#include "Dom/JsonObject.h"
#include "ModuleDescriptor.h"

/** The fields that project and plug-in descriptors share. Each reader answers false after noting what is wrong. */
class FDescriptorFile
{
public:
	explicit FDescriptorFile(const FString& InFileName)
		: FileName(InFileName)
	{
	}

	[[nodiscard]] bool Load();
	/** A field that may be missing, but is a string when it is there. */
	[[nodiscard]] bool ReadString(const TCHAR* Field, FString& Out);
	[[nodiscard]] bool ReadModules(TArray<FModuleDescriptor>& Out);

	/** The file and the first thing that was wrong. */
	FText GetFailReason() const { return FText::FromString(FailReason); }

private:
	bool Fail(const FString& Reason);
	bool ReadModule(const FJsonObject& Object, int32 Index, FModuleDescriptor& Out);
	template <typename EnumType>
	bool ReadEnum(const FJsonObject& Object, const FModuleDescriptor& Module, const TCHAR* Field, EnumType End, EnumType& Out);

	FString FileName;
	TSharedPtr<FJsonObject> Root;
	FString FailReason;
};
