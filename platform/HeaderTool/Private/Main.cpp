// HeaderTool --module NAME --include-root DIR --out DIR HEADER...
//
// Reads the reflected declarations of the headers and writes DIR/X.generated.h for each and DIR/NAME.gen.cpp for all.
// Files that would not change are left alone.
// Errors go to stderr as "file:line: error: text"; then the exit status is 1 and nothing is written.

#include "Parser.h"
#include "SourceError.h"
#include "Writer.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>

namespace
{
namespace Files = std::filesystem;

struct Options
{
	std::string Module;
	Files::path IncludeRoot;
	Files::path Out;
	std::vector<Files::path> Headers;
};

std::optional<Options> ReadOptions(const std::vector<std::string>& Arguments)
{
	Options Result;
	for (size_t Index = 0; Index < Arguments.size(); ++Index)
	{
		const std::string& Argument = Arguments[Index];
		if (!Argument.starts_with("--"))
		{
			Result.Headers.emplace_back(Argument);
			continue;
		}
		if (Index + 1 == Arguments.size())
		{
			return std::nullopt;
		}
		const std::string& Value = Arguments[++Index];
		if (Argument == "--module")
		{
			Result.Module = Value;
		}
		else if (Argument == "--include-root")
		{
			Result.IncludeRoot = Value;
		}
		else if (Argument == "--out")
		{
			Result.Out = Value;
		}
		else
		{
			return std::nullopt;
		}
	}
	// The module's name becomes a part of C++ names.
	const bool bNamed = std::ranges::all_of(Result.Module, [](unsigned char C) { return std::isalnum(C) || C == '_'; });
	const bool bComplete = bNamed && !Result.Module.empty() && !Result.IncludeRoot.empty() && !Result.Out.empty();
	return bComplete ? std::optional(Result) : std::nullopt;
}

void Report(const Files::path& File, int Line, const std::string& Message)
{
	std::cerr << File.string() << ":" << Line << ": error: " << Message << "\n";
}

std::string ReadText(std::istream& Stream)
{
	return { std::istreambuf_iterator<char>(Stream), {} };
}

std::optional<Header> ReadHeader(const Files::path& File, const Files::path& IncludeRoot)
{
	std::ifstream Stream(File, std::ios::binary);
	if (!Stream || !Files::is_regular_file(File))
	{
		Report(File, 1, "the file cannot be read");
		return std::nullopt;
	}
	const std::string Source = ReadText(Stream);
	try
	{
		return ParseHeader(Source, Files::absolute(File).lexically_relative(Files::absolute(IncludeRoot)).generic_string());
	}
	catch (const SourceError& Error)
	{
		Report(File, Error.Line, Error.what());
		return std::nullopt;
	}
}

// Names that the generated code of one module can hold only once.
class NameCheck
{
public:
	bool Add(const Files::path& File, int Line, const std::string& Name)
	{
		const auto [Earlier, bNew] = Owners.emplace(Name, File);
		if (!bNew)
		{
			Report(File, Line, Name + " is there already in " + Earlier->second.string());
		}
		return bNew;
	}

private:
	std::map<std::string, Files::path> Owners;
};

bool AddNames(NameCheck& Names, const Files::path& File, const Header& Read)
{
	bool bGood = Names.Add(File, 1, Read.Stem + ".generated.h");
	for (const std::vector<Class>* Types : { &Read.Classes, &Read.Structs })
	{
		for (const Class& Type : *Types)
		{
			bGood &= Names.Add(File, Type.Line, Type.Name);
		}
	}
	for (const Enum& Type : Read.Enums)
	{
		bGood &= Names.Add(File, Type.Line, Type.Name);
	}
	return bGood;
}

// What has not changed keeps its time, so that nothing is compiled because of it.
bool WriteFile(const Files::path& File, const std::string& Text)
{
	if (std::ifstream Old(File, std::ios::binary); Old && ReadText(Old) == Text)
	{
		return true;
	}
	std::ofstream Stream(File, std::ios::binary);
	Stream << Text;
	Stream.close();
	if (!Stream)
	{
		Report(File, 1, "the file cannot be written");
	}
	return static_cast<bool>(Stream);
}

bool Run(const Options& Given)
{
	std::vector<Header> Headers;
	NameCheck Names;
	bool bGood = true;
	for (const Files::path& File : Given.Headers)
	{
		std::optional<Header> Read = ReadHeader(File, Given.IncludeRoot);
		bGood &= Read && AddNames(Names, File, *Read);
		if (Read)
		{
			Headers.push_back(std::move(*Read));
		}
	}
	if (!bGood)
	{
		return false;
	}
	std::error_code Ignored; // A folder that cannot be made shows in the first file.
	Files::create_directories(Given.Out, Ignored);
	for (const Header& Each : Headers)
	{
		bGood &= WriteFile(Given.Out / (Each.Stem + ".generated.h"), WriteGeneratedHeader(Each, Given.Module));
	}
	return WriteFile(Given.Out / (Given.Module + ".gen.cpp"), WriteGeneratedSource(Headers, Given.Module)) && bGood;
}
}

int main(int Count, char** Values)
{
	const std::optional<Options> Given = ReadOptions({ Values + 1, Values + Count });
	if (!Given)
	{
		std::cerr << "usage: HeaderTool --module NAME --include-root DIR --out DIR HEADER...\n";
		return 2;
	}
	return Run(*Given) ? 0 : 1;
}
