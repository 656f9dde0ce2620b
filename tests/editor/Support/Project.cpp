#include "Support/Project.h"

namespace fs = std::filesystem;

Project::Project(const std::string& InFolder)
	: Folder(Parent / InFolder)
{
	Write("Toy.uproject", R"({"FileVersion": 3, "EngineAssociation": "5.5", "Plugins": [{"Name": "Kestrin", "Enabled": true}]})");
	Write("Source/Toy/Toy.cpp", "int Oil = 3;\n");
}

void Project::Write(const std::string& Path, const std::string& Bytes) const
{
	fs::create_directories((Folder / Path).parent_path());
	WriteText(Folder / Path, Bytes);
}

std::map<std::string, std::string> Project::ReadAll(const std::string& Below) const
{
	std::map<std::string, std::string> Files;
	for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Folder / Below))
	{
		if (Entry.is_regular_file())
		{
			Files[fs::relative(Entry.path(), Folder).string()] = ReadText(Entry.path());
		}
	}
	return Files;
}

void Project::Connect(const ServiceProcess& Service, const std::string& Key) const
{
	Connect(Service.GetPort(), Key);
	Write("Content/Certificates/cacert.pem", ReadText(Service.GetCertificate()));
}

void Project::Connect(int Port, const std::string& Key) const
{
	Write(
		"Config/DefaultPlugin.ini", "[Kestrin]\nStage=Dev\nDevApiUrl=127.0.0.1:" + std::to_string(Port) + "/prod\nDevApiKey=" + Key + "\n");
}
