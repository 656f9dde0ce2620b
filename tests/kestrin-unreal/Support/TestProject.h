#pragma once

#include "CoreMinimal.h"

#include <filesystem>
#include <string>
#include <string_view>

/**
 * A project in a folder of its own, which is open as long as this lives. The folder goes with it.
 * Settings are back at their defaults when it is made.
 */
class FTestProject
{
public:
	/** @param Name of the project's folder, which may hold any character that a path may */
	explicit FTestProject(std::string_view Name = "Project");
	~FTestProject();
	UE_NONCOPYABLE(FTestProject)

	const std::filesystem::path& Folder() const { return ProjectFolder; }
	/** As FPaths::ProjectDir gives it. */
	FString Dir() const;

	/** Bytes as they are; missing directories are made. */
	void Write(std::string_view Path, std::string_view Bytes) const;
	/** The file's bytes, or "<none>". */
	std::string Read(std::string_view Path) const;
	bool Has(std::string_view Path) const;

private:
	std::filesystem::path Root;
	std::filesystem::path ProjectFolder;
};

/** For messages and comparisons in tests. */
std::string ToUtf8(const FString& Text);
