#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace
{
namespace Files = std::filesystem;

// A folder of headers that the program is run on.
class HeaderToolProgram : public testing::Test
{
protected:
	void SetUp() override
	{
		std::string Name = (Files::temp_directory_path() / "header tool.XXXXXX").string();
		Folder = mkdtemp(Name.data());
	}
	void TearDown() override { Files::remove_all(Folder); }

	void Write(const std::string& Name, const std::string& Text) const
	{
		Files::create_directories((Folder / Name).parent_path());
		std::ofstream(Folder / Name) << Text;
	}

	std::string Read(const std::string& Name) const
	{
		std::ifstream Stream(Folder / Name);
		return { std::istreambuf_iterator<char>(Stream), {} };
	}

	// The exit status; what it said goes to the file "errors".
	int Run(const std::string& Headers) const
	{
		const std::string Command =
			"cd '" + Folder.string() + "' && '" HEADER_TOOL "' --module Game --include-root Public --out Out " + Headers + " 2>errors";
		return WEXITSTATUS(std::system(Command.c_str()));
	}

	Files::path Folder;
};

std::string Enum(const std::string& Header, const std::string& Name)
{
	return "#include \"" + Header + ".generated.h\"\nUENUM()\nenum class " + Name + " : uint8 { A };\n";
}
}

TEST_F(HeaderToolProgram, WritesOneHeaderForEachAndOneSource)
{
	Write("Public/First.h", Enum("First", "EFirst"));
	Write("Public/Sub/Second.h", "#include \"Second.generated.h\"\n");
	ASSERT_EQ(Run("Public/First.h Public/Sub/Second.h"), 0) << Read("errors");
	EXPECT_NE(Read("Out/First.generated.h").find("enum class EFirst : uint8;"), std::string::npos);
	EXPECT_TRUE(Files::exists(Folder / "Out/Second.generated.h"));
	EXPECT_NE(Read("Out/Game.gen.cpp").find("#include \"Sub/Second.h\""), std::string::npos);
}

TEST_F(HeaderToolProgram, ReportsEveryBadHeaderAndWritesNothing)
{
	Write("Public/Good.h", Enum("Good", "EGood"));
	Write("Public/Bad.h", Enum("Bad", "Wrong"));
	Write("Public/Worse.h", "\n/*");
	Write("Public/Twice.h", Enum("Twice", "EGood"));
	Write("Public/Sub/Good.h", Enum("Good", "EOther"));
	EXPECT_EQ(Run("Public/Good.h Public/Bad.h Public/Worse.h Public/Gone.h Public/Twice.h Public/Sub/Good.h Public"), 1);
	EXPECT_EQ(Read("errors"),
		"Public/Bad.h:3: error: the name 'Wrong' must begin with 'E'\n"
		"Public/Worse.h:2: error: comment without end\n"
		"Public/Gone.h:1: error: the file cannot be read\n"
		"Public/Twice.h:3: error: EGood is there already in Public/Good.h\n"
		"Public/Sub/Good.h:1: error: Good.generated.h is there already in Public/Good.h\n"
		"Public:1: error: the file cannot be read\n");
	EXPECT_FALSE(Files::exists(Folder / "Out"));
}

TEST_F(HeaderToolProgram, FailsWhenItCannotWrite)
{
	Write("Public/Good.h", Enum("Good", "EGood"));
	Write("Out", "a file where the folder should be");
	EXPECT_EQ(Run("Public/Good.h"), 1);
	EXPECT_NE(Read("errors").find("Out/Good.generated.h:1: error: the file cannot be written"), std::string::npos);
}
