#include "Agent/KestrinFindUtils.h"
#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "CoreHost/FileFaults.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/FileHelper.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"

namespace
{
class FindReferences : public FBlueprintTest
{
protected:
	~FindReferences() override { FFileFaults::SetHook({}); }

	/** The values of one key of the records, in their order. */
	static std::vector<std::string> Find(const FString& Reference, const TCHAR* Array, const TCHAR* Key)
	{
		const TSharedPtr<FJsonObject> Answer = ParseDocument(ToUtf8(FKestrinFindUtils::FindInAllFiles(Reference)));
		EXPECT_TRUE(Answer->GetStringField(TEXT("reference_string")).Equals(Reference));
		std::vector<std::string> Values;
		for (const TSharedPtr<FJsonValue>& Record : Answer->GetArrayField(Array))
		{
			Values.push_back(ToUtf8(Record->AsObject()->GetStringField(Key)));
		}
		return Values;
	}
	/** The names of the C++ files in which it is found. */
	static std::vector<std::string> FindFiles(const char* Reference)
	{
		return Find(FUtf8::Decode(Reference), TEXT("cpp_references"), TEXT("Name"));
	}

	using FNames = std::vector<std::string>;
};

const std::string Mark = "\xEF\xBB\xBF";
const std::string Kelvin = "\xE2\x84\xAA";

std::string Utf16(std::u16string_view Text, bool bBigEndian)
{
	std::string Bytes = bBigEndian ? "\xFE\xFF" : "\xFF\xFE";
	for (const char16_t Char : Text)
	{
		const char Low = static_cast<char>(Char & 0xFF);
		const char High = static_cast<char>(Char >> 8);
		Bytes += bBigEndian ? High : Low;
		Bytes += bBigEndian ? Low : High;
	}
	return Bytes;
}

std::string WithZeros()
{
	return std::string("a\0b Ke_y c\0", 11);
}
}

TEST_F(FindReferences, DocumentOfFiles)
{
	Project.Write("Source/Game/Hero.cpp", "class HERO;");
	Project.Write("Plugins/Heroes/Source/x.h", "");
	const std::string Dir = ToUtf8(Project.Dir());
	EXPECT_EQ(ToUtf8(FKestrinFindUtils::FindInAllFiles(TEXT("hErO"))),
		"{\n\t\"reference_string\": \"hErO\",\n\t\"cpp_references\": [\n"
		"\t\t{\n\t\t\t\"Type\": \"cpp or h File\",\n\t\t\t\"Name\": \"Hero.cpp\",\n\t\t\t\"Path\": \"" +
			Dir +
			"Source/Game/Hero.cpp\"\n\t\t},\n"
			"\t\t{\n\t\t\t\"Type\": \"cpp or h File\",\n\t\t\t\"Name\": \"x.h\",\n\t\t\t\"Path\": \"" +
			Dir +
			"Plugins/Heroes/Source/x.h\"\n\t\t}\n"
			"\t],\n\t\"blueprint_references\": []\n}");
}

TEST_F(FindReferences, FilesInOrder)
{
	for (const char* const Path : { "Plugins/P/a.h", "Plugins/P/b.cpp", "Plugins/P/Intermediate/c.gen.cpp", "Source/d.h", "Source/e.cpp",
			 "Source/Deep/Down/f.CPP", "Source/Deep/g.h", "Source/h.hpp", "Source/i.c", "Source/j.cpp.txt", "Source/k.uasset",
			 "Source/l.inl", "Content/m.cpp", "n.cpp" })
	{
		Project.Write(Path, "Key");
	}
	EXPECT_EQ(FindFiles("key"), (FNames{ "e.cpp", "f.CPP", "d.h", "g.h", "b.cpp", "c.gen.cpp", "a.h" }));
	EXPECT_EQ(FindFiles("nowhere"), FNames{});
	EXPECT_EQ(FindFiles(""), FNames{});
	EXPECT_EQ(FindFiles("game.uproject"), FNames{});
}

/** What is found in a file's bytes is what is found in its text. The path, whose folder has a name by chance, holds none of the references.
 */
TEST_F(FindReferences, InTextsOfAllKinds)
{
	constexpr SIZE_T Piece = 256 * 1024;
	const std::string Long(300000, 'x');
	const struct
	{
		const char* Name;
		std::string Bytes;
		std::string Reference;
		bool bFound;
	} Cases[] = {
		{ "other case", "the hEro", "HeRO", true },
		{ "at the start", "Ke_y", "ke_y", true },
		{ "one sign", std::string(500, '.') + "$", "$", true },
		{ "none of that sign", std::string(500, '.'), "$", false },
		{ "an empty file", "", "ke_y", false },
		{ "longer than the file", "ke_", "ke_y", false },
		{ "cut off", "Ke_Ke_ ke_", "ke_y", false },
		{ "in the last place", std::string(777, '-') + "ke_y", "ke_y", true },
		{ "signs have no case", "a{b` [c@", "a[b", false },
		{ "nor have these", "k@y", "k`y", false },
		{ "digits and signs", "x = 0x1F_[2];", "0X1f_[2]", true },
		{ "line ends", "a\r\nb", "a\nb", false },
		{ "zeros", WithZeros(), "KE_Y", true },
		{ "over the border of two pieces", std::string(Piece - 2, 'a') + "Ke_y" + std::string(9, 'a'), "ke_y", true },
		{ "but for its last letter before the border", std::string(Piece - 3, 'a') + "Ke_y", "ke_y", true },
		{ "just before the border", std::string(Piece - 4, 'a') + "Ke_y" + std::string(9, 'a'), "ke_y", true },
		{ "just behind the border", std::string(Piece, 'a') + "Ke_y", "ke_y", true },
		{ "split by the border, in part only", std::string(Piece - 2, 'a') + "Ke_" + std::string(9, 'a'), "ke_y", false },
		{ "at the border of the third piece", std::string(2 * Piece - 1, 'a') + "Ke_y", "ke_y", true },
		{ "longer than a piece", "ab" + Long + "c", "B" + Long + "C", true },
		{ "longer than a piece, but for the end", "ab" + Long + "d" + Long, "B" + Long + "C", false },
		{ "UTF-8 with a mark", Mark + "\xC3\xA4 Ke_y", "ke_y", true },
		{ "the mark is no text", Mark + "Ke_y", Mark + "Ke_y", false },
		{ "Latin-1", "\xE4 Ke_y", "ke_y", true },
		{ "UTF-16, little endian", Utf16(u"\u00E4 Ke_y", false), "ke_y", true },
		{ "UTF-16, big endian", Utf16(u"\u00E4 Ke_y", true), "ke_y", true },
		{ "UTF-16 without it", Utf16(u"ke_ y", false), "ke_y", false },
		{ "UTF-16 that spells it in bytes", "\xFF\xFEKe_y", "ke_y", false },
		{ "beyond ASCII", "\xC3\x84pfel", "\xC3\xA4PFEL", true },
		{ "beyond ASCII, in Latin-1", "\xC4pfel", "\xC3\xA4PFEL", true },
		{ "beyond the basic plane", "x\xF0\x9F\x90\xA6y", "X\xF0\x9F\x90\xA6Y", true },
		{ "the sign of Kelvin is a k", Kelvin + "e_y", "ke_y", true },
		{ "also far inside, and over a border", std::string(Piece - 1, 'a') + Kelvin + "e_y", "ke_y", true },
		{ "a k is a sign of Kelvin", "ke_y", Kelvin + "e_y", true },
		{ "those bytes in Latin-1 are none", Kelvin + "e_y \xE4", "ke_y", false },
		{ "a capital i with a dot is an i", "k\xC4\xB0_nd", "kI_nD", true },
		{ "a long s is no s", "\xC5\xBF_o", "s_o", false },
		{ "none of these letters in it", Kelvin + "e_y", "he_y", false },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		Project.Write("Source/f.h", Case.Bytes);
		EXPECT_EQ(FindFiles(Case.Reference.c_str()), Case.bFound ? FNames{ "f.h" } : FNames{});
		FString Text;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Text, *(Project.Dir() + TEXT("Source/f.h"))));
		EXPECT_EQ(Text.Find(FUtf8::Decode(Case.Reference), ESearchCase::IgnoreCase) != INDEX_NONE, Case.bFound) << "in the text itself";
	}
}

TEST_F(FindReferences, AmongFilesThatCannotBeRead)
{
	for (const char* const Path : { "Source/key1.h", "Source/key2.h", "Source/key3.h", "Source/key4.h" })
	{
		Project.Write(Path, "\xE4 text");
	}
	std::filesystem::resize_file(Project.Folder() / "Source/key3.h", SIZE_T(1) << 31); // more than a text holds
	std::filesystem::create_symlink("nowhere.h", Project.Folder() / "Source/key5.h");
	std::filesystem::create_directories(Project.Folder() / "Source/key6.h");
	FFileFaults::SetHook(
		[this](EFileOperation Operation, const FString& Path)
		{
		if (Path.EndsWith(TEXT("key2.h")))
		{
			std::filesystem::remove(Project.Folder() / "Source/key4.h"); // vanishes after it was listed
		}
		return Operation != EFileOperation::OpenRead || !Path.EndsWith(TEXT("key2.h"));
	});
	EXPECT_EQ(FindFiles("key"), FNames{ "key1.h" });
	Project.Write("Source/key4.h", "");
	EXPECT_EQ(FindFiles("\xC3\xA4 text"), FNames{ "key1.h" }) << "not in ASCII";
}

TEST_F(FindReferences, InALargeFile)
{
	const std::filesystem::path File = Project.Folder() / "Source/Large.cpp";
	Project.Write("Source/Large.cpp", "start");
	std::filesystem::resize_file(File, 200 << 20);
	std::FILE* const Appended = std::fopen(File.c_str(), "ab");
	std::fputs("the Needle", Appended);
	std::fclose(Appended);
	EXPECT_EQ(FindFiles("needle"), FNames{ "Large.cpp" });
	EXPECT_EQ(FindFiles("needles"), FNames{});
}

TEST_F(FindReferences, WhereLinksLeadInACircle)
{
	Project.Write("Source/A/a.h", "Key");
	Project.Write("Source/B/b.h", "Key");
	const std::filesystem::path Source = Project.Folder() / "Source";
	std::filesystem::create_directory_symlink(Source / "B", Source / "A/ToB");
	std::filesystem::create_directory_symlink(Source / "A", Source / "B/ToA");
	std::filesystem::create_directory_symlink(Source, Source / "B/Up");
	EXPECT_EQ(FindFiles("key"), (FNames{ "a.h", "b.h", "b.h", "a.h" })) << "each file by each way that does not go round";
}

TEST_F(FindReferences, InABlueprint)
{
	const FTestBlueprint Lamp(TEXT("/Game/Lights/BP_Lamp"), AActor::StaticClass());
	Lamp.AddVariable(TEXT("LampPower"), PinType(UEdGraphSchema_K2::PC_Boolean));
	Lamp.AddVariable(TEXT("Other"), PinType(UEdGraphSchema_K2::PC_String), TEXT("lamp in a value"));
	UEdGraph* const Function = Lamp.AddFunction(TEXT("SwitchLAMP"));
	FTestBlueprint::AddParameter(Function, TEXT("lamp index"), PinType(UEdGraphSchema_K2::PC_Int));
	Lamp.Compile();
	UEdGraph* const Page = Lamp.MakeEmptyEventGraph();
	UK2Node* const Get = AddGet(Page, TEXT("LampPower"));
	Get->NodeComment = TEXT("of the lamp");
	AddCall(Page, AActor::StaticClass(), TEXT("K2_DestroyActor"))->FindPin(TEXT("self"))->DefaultValue = TEXT("lamp");
	FTestBlueprint(TEXT("/Game/BP_Door"), AActor::StaticClass()).AddVariable(TEXT("bLamplit"), PinType(UEdGraphSchema_K2::PC_Boolean));

	const TSharedPtr<FJsonObject> Answer = ParseDocument(ToUtf8(FKestrinFindUtils::FindInAllFiles(TEXT("lamp"))));
	std::string Records;
	for (const TSharedPtr<FJsonValue>& Value : Answer->GetArrayField(TEXT("blueprint_references")))
	{
		for (const auto& [Key, Field] : Value->AsObject()->Values)
		{
			Records += ToUtf8(FString(Key)) + "=" + ToUtf8(Field->AsString()) + "|";
		}
		Records += "\n";
	}
	const std::string Content = ToUtf8(Project.Dir()) + "Content/";
	const auto Record = [&](const std::string& Type, const std::string& Name, const std::string& Blueprint, const std::string& File)
	{
		return "Type=" + Type + "|" + (Name.empty() ? "" : "Name=" + Name + "|") + "Blueprint=" + Blueprint + "|Path=" + Content + File +
			"|\n";
	};
	const std::string File = "Lights/BP_Lamp.uasset";
	EXPECT_EQ(Records,
		Record("Variable", "bLamplit", "BP_Door", "BP_Door.uasset") + Record("Blueprint File", "", "BP_Lamp", File) +
			Record("Variable", "LampPower", "BP_Lamp", File) + Record("Function", "SwitchLAMP", "BP_Lamp", File) +
			Record("Node Title", "Switch LAMP", "BP_Lamp", File) + Record("Pin", "lamp index", "BP_Lamp", File) +
			Record("Node Title", "Get LampPower", "BP_Lamp", File) + Record("Node Comment", "of the lamp", "BP_Lamp", File) +
			Record("Pin", "LampPower", "BP_Lamp", File));
	EXPECT_TRUE(Find(TEXT(""), TEXT("blueprint_references"), TEXT("Type")).empty());
}

TEST_F(FindReferences, InBlueprintsThatAreInFilesAlone)
{
	FTestBlueprint(TEXT("/Game/A/BP_Key1"), AActor::StaticClass()).Save();
	FTestBlueprint(TEXT("/Game/B/BP_Key2")).Save();
	FTestBlueprint(TEXT("/Game/C/Key_Game/BP_Key3")).Save();
	SaveAsset(FKismetEditorUtilities::CreateBlueprint(UAnimInstance::StaticClass(), CreatePackage(TEXT("/Game/ABP_Key")), TEXT("ABP_Key"),
		BPTYPE_Normal, UAnimBlueprint::StaticClass(), UAnimBlueprintGeneratedClass::StaticClass()));
	Forget();
	std::string Damaged = Project.Read("Content/A/BP_Key1.uasset");
	for (SIZE_T Place = Damaged.size() / 2; Place < Damaged.size(); ++Place)
	{
		Damaged[Place] = static_cast<char>(~Damaged[Place]);
	}
	Project.Write("Content/A/BP_Key1.uasset", Damaged);
	EXPECT_EQ(Find(TEXT("bp_key"), TEXT("blueprint_references"), TEXT("Blueprint")), (FNames{ "BP_Key2", "BP_Key3" }));
	EXPECT_EQ(Find(TEXT("bp_key3"), TEXT("blueprint_references"), TEXT("Path")),
		FNames{ ToUtf8(Project.Dir()) + "Content/C/Key_Game/BP_Key3.uasset" });
}
