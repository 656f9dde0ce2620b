#include "TestProject.h"

#include "CoreHost/Project.h"
#include "KestrinSettings.h"
#include "Misc/Paths.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{
std::filesystem::path MakeRoot()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "kestrin-test-XXXXXX").string();
	return mkdtemp(Pattern.data());
}

void RestoreDefaults(UKestrinSettings& Settings)
{
	Settings.ApiKey.Empty();
	Settings.Mode = EKestrinMode::ExplainerMode;
	Settings.bDisplayFileChangesInChat = true;
	Settings.BlueprintContentFilter = EKestrinBlueprintContentFilter::UseOnlyBlueprintVisibleContent;
	Settings.LogRetentionPolicy = EKestrinLogDeletionPolicy::KeepLast30Days;
	Settings.ResetSupportedFileExtensions();
	Settings.ResetExcludedDirectories();
}
}

FTestProject::FTestProject(std::string_view Name)
	: Root(MakeRoot())
	, ProjectFolder(Root / Name)
{
	std::filesystem::create_directories(ProjectFolder);
	Write("Game.uproject", "{}");
	FHostProject::Set(FUtf8::Decode((ProjectFolder / "Game.uproject").string()));
	FHostProject::SetEngineDir(FUtf8::Decode((Root / "Engine").string()));
	RestoreDefaults(*GetMutableDefault<UKestrinSettings>());
}

FTestProject::~FTestProject()
{
	std::error_code Ignored;
	std::filesystem::remove_all(Root, Ignored);
}

FString FTestProject::Dir() const
{
	return FPaths::ProjectDir();
}

void FTestProject::Write(std::string_view Path, std::string_view Bytes) const
{
	const std::filesystem::path File = ProjectFolder / Path;
	std::filesystem::create_directories(File.parent_path());
	std::ofstream(File, std::ios::binary) << Bytes;
}

std::string FTestProject::Read(std::string_view Path) const
{
	std::ifstream File(ProjectFolder / Path, std::ios::binary);
	if (!File)
	{
		return "<none>";
	}
	std::ostringstream Bytes;
	Bytes << File.rdbuf();
	return Bytes.str();
}

bool FTestProject::Has(std::string_view Path) const
{
	return std::filesystem::exists(ProjectFolder / Path);
}

std::string ToUtf8(const FString& Text)
{
	return FUtf8::Encode(Text);
}
