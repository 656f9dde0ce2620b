#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "ServiceProcess.h"

/** A small game project on disk. Its stage file is written by Connect; without it the client has no service of ours. */
class Project
{
public:
	/** In a folder of its own; `Folder` names one below it. */
	explicit Project(const std::string& Folder = "Toy");

	const std::filesystem::path& GetFolder() const { return Folder; }
	/** The .uproject, as the editor's argument. */
	std::string GetFile() const { return (Folder / "Toy.uproject").string(); }

	std::string Read(const std::string& Path) const { return ReadText(Folder / Path); }
	void Write(const std::string& Path, const std::string& Bytes) const;
	bool Has(const std::string& Path) const { return std::filesystem::exists(Folder / Path); }
	/** Path and bytes of every file below a folder. */
	std::map<std::string, std::string> ReadAll(const std::string& Below) const;

	/** The stage file for this service, and its certificate where the editor trusts it. */
	void Connect(const ServiceProcess& Service, const std::string& Key = "toy-key") const;
	void Connect(int Port, const std::string& Key = "toy-key") const;

private:
	TemporaryDirectory Parent;
	std::filesystem::path Folder;
};
