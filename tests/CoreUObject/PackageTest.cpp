#include "PackageSupport.h"
#include "UObject/PackageReader.h"

using PackageFaults = Packages;

TEST_F(Packages, ObjectsComeBackWithTheirValuesAndReferences)
{
	UTestWhole* Asset = MakeAsset(TEXT("/Game/Sub/Lantern"));
	UTestPart* const Deep = NewObject<UTestPart>(NewObject<UTestPart>(Asset, "Middle_3"), FName("Ends_5_7"), RF_Transactional);
	UTestPart* const Transient = NewObject<UTestPart>(Asset, "Transient", RF_Transient);
	NewObject<UTestPart>(Asset, "Unused");
	Asset->Cache = -12;
	Asset->Part->Number = 9;
	Asset->Part->Friend = Deep;
	Deep->Friend = UTestPart::StaticClass();
	Deep->Number = 11;
	Asset->Extras = { NewObject<UTestPart>(Asset), nullptr };
	Asset->Links = { Deep, Transient, GetMutableDefault<UTestPart>(), NewObject<UTestPart>(Transient, "Within") };
	ASSERT_TRUE(Save(Asset));
	EXPECT_FALSE(Asset->GetPackage()->IsDirty());
	const FString ExtraName = Asset->Extras[0]->GetName();
	Forget();
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Sub/Lantern")), nullptr);

	Asset = LoadObject<UTestWhole>(nullptr, TEXT("/Game/Sub/Lantern.Lantern"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Asset->GetFlags(), RF_Public | RF_Standalone | RF_WasLoaded);
	EXPECT_FALSE(Asset->GetPackage()->IsDirty());
	EXPECT_EQ(Asset->Cache, -12);
	EXPECT_EQ(Asset->Part->GetOuter(), Asset);
	EXPECT_TRUE(Asset->Part->IsDefaultSubobject());
	EXPECT_EQ(Asset->Part->Number, 9);
	ASSERT_EQ(Asset->Links.Num(), 4);
	const UTestPart* const Loaded = Cast<UTestPart>(Asset->Links[0]);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->GetPathName(), TEXT("/Game/Sub/Lantern.Lantern:Middle_3.Ends_5_7"));
	EXPECT_EQ(Loaded->GetFName().GetNumber(), 8);
	EXPECT_TRUE(Loaded->HasAnyFlags(RF_Transactional));
	EXPECT_EQ(Loaded->Number, 11);
	EXPECT_EQ(Loaded->Friend, UTestPart::StaticClass());
	EXPECT_EQ(Asset->Part->Friend, Loaded);
	EXPECT_EQ(Asset->Links[1], nullptr);
	EXPECT_EQ(Asset->Links[2], GetDefault<UTestPart>());
	EXPECT_EQ(Asset->Links[3], nullptr);
	ASSERT_EQ(Asset->Extras.Num(), 2);
	EXPECT_EQ(GetNameSafe(Asset->Extras[0]), ExtraName);
	EXPECT_EQ(FindObject<UObject>(Asset, TEXT("Unused")), nullptr);
	EXPECT_TRUE(Log.Lines.IsEmpty()) << TCHAR_TO_UTF8(*FString::Join(Log.Lines, TEXT("\n")));
}

TEST_F(Packages, AreLoadedByEveryFormOfPath)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Lantern"));
	ASSERT_TRUE(Save(Asset));
	struct
	{
		UClass* Class;
		const TCHAR* Path;
		const TCHAR* Found;
	} const Cases[] = {
		{ UObject::StaticClass(), TEXT("/Game/Lantern.Lantern"), TEXT("/Game/Lantern.Lantern") },
		{ UObject::StaticClass(), TEXT("/Game/Lantern"), TEXT("/Game/Lantern.Lantern") },
		{ UTestWhole::StaticClass(), TEXT("/Script/TestObjects.TestWhole'/Game/Lantern.Lantern'"), TEXT("/Game/Lantern.Lantern") },
		{ UTestPart::StaticClass(), TEXT("/Game/Lantern.Lantern:Part"), TEXT("/Game/Lantern.Lantern:Part") },
		{ UTestPart::StaticClass(), TEXT("/Game/Lantern.Lantern"), nullptr },
		{ UObject::StaticClass(), TEXT("/Game/Lantern.Other"), nullptr },
		{ UObject::StaticClass(), TEXT("/Game/Other"), nullptr },
		{ UObject::StaticClass(), TEXT("/Script/TestObjects.Other"), nullptr },
		{ UObject::StaticClass(), TEXT("/Game/../Lantern"), nullptr },
		{ UObject::StaticClass(), TEXT(""), nullptr },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Path));
		for (const uint32 Flags : { LOAD_Quiet, LOAD_None })
		{
			Forget();
			Log.Lines.Empty();
			const UObject* const Object = StaticLoadObject(Each.Class, nullptr, Each.Path, nullptr, Flags);
			EXPECT_EQ(GetPathNameSafe(Object), Each.Found ? Each.Found : TEXT("None"));
			EXPECT_EQ(Log.Lines.Num(), Each.Found || Flags == LOAD_Quiet ? 0 : 1);
		}
	}
}

TEST_F(Packages, MayReferToEachOtherInCircles)
{
	UTestWhole* const First = MakeAsset(TEXT("/Game/First"));
	UTestWhole* const Second = MakeAsset(TEXT("/Game/Second"));
	First->Links = { Second, Second->Part };
	Second->Links = { First->Part };
	ASSERT_TRUE(Save(First) && Save(Second));
	Forget();
	const UTestWhole* const Loaded = LoadObject<UTestWhole>(nullptr, TEXT("/Game/First"));
	ASSERT_NE(Loaded, nullptr);
	const UTestWhole* const Other = FindObject<UTestWhole>(nullptr, TEXT("/Game/Second.Second"));
	ASSERT_NE(Other, nullptr);
	EXPECT_EQ(Loaded->Links[0], Other);
	EXPECT_EQ(Loaded->Links[1], Other->Part);
	EXPECT_EQ(Other->Links[0], Loaded->Part);
	EXPECT_FALSE(Other->HasAnyFlags(RF_NeedLoad | RF_NeedPostLoad));
}

TEST_F(Packages, WhatIsMissingIsToldOnceAndNull)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Asset"));
	UTestWhole* const Other = MakeAsset(TEXT("/Game/Other"));
	Asset->Links = { Other, Other, Asset->Part };
	ASSERT_TRUE(Save(Asset));
	Forget();
	const UTestWhole* const Loaded = LoadObject<UTestWhole>(nullptr, TEXT("/Game/Asset"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Links, (TArray<UObject*>{ nullptr, nullptr, Loaded->Part }));
	EXPECT_EQ(Log.Lines.Num(), 1);
	EXPECT_TRUE(Log.HasLineWith(TEXT("'/Game/Other.Other' is missing")));
}

TEST_F(Packages, TellTheRegistryOfTheirAssetsAlone)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Lantern"));
	Asset->Title = FString::ChrN(5000, 'x') + TEXT("é");
	NewObject<UTestPart>(Asset, "Inner", RF_Public);
	ASSERT_TRUE(Save(Asset));
	TArray<FAssetData> Assets;
	FString Error;
	ASSERT_TRUE(FPackageReader::ReadAssets(GetFilename(Asset), "/Game/Lantern", Assets, Error)) << TCHAR_TO_UTF8(*Error);
	ASSERT_EQ(Assets.Num(), 1);
	EXPECT_EQ(Assets[0].GetExportTextName(), TEXT("/Script/TestObjects.TestWhole'/Game/Lantern.Lantern'"));
	EXPECT_EQ(Assets[0].PackagePath, FName("/Game"));
	EXPECT_EQ(Assets[0].TagsAndValues.FindTag("Title").AsString(), Asset->Title);
	EXPECT_FALSE(Assets[0].TagsAndValues.FindTag("Cache").IsSet());
	EXPECT_EQ(Assets[0].GetClass(), UTestWhole::StaticClass());
	Forget();
	EXPECT_FALSE(Assets[0].IsAssetLoaded());
	EXPECT_EQ(GetPathNameSafe(Assets[0].GetAsset()), TEXT("/Game/Lantern.Lantern"));
}

TEST_F(PackageFaults, RefuseWhatIsDamagedCutForeignOrNewer)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Lantern"));
	Asset->Links = { NewObject<UTestPart>(Asset, "Link") };
	ASSERT_TRUE(Save(Asset));
	Forget();
	const std::string Good = Folder.Read("Content/Lantern.uasset");
	TArray<std::pair<std::string, std::string>> Cases{
		{ "empty", "" },
		{ "foreign", "\xC1\x83\x2A\x9E" + std::string(400, '\0') },
		{ "text", "This is no package, whatever its name says." },
		{ "newer", Good.substr(0, 4) + '\x63' + Good.substr(5) },
		{ "longer", Good + "x" },
	};
	for (SIZE_T Place = 0; Place < Good.size(); Place += 7)
	{
		std::string Damaged = Good;
		Damaged[Place] = static_cast<char>(Damaged[Place] ^ 0x10);
		Cases.Add({ "damaged at " + std::to_string(Place), Damaged });
		Cases.Add({ "cut at " + std::to_string(Place), Good.substr(0, Place) });
	}
	for (const auto& [Name, Bytes] : Cases)
	{
		SCOPED_TRACE(Name);
		Folder.Write("Content/Lantern.uasset", Bytes);
		Log.Lines.Empty();
		EXPECT_EQ(LoadPackage(nullptr, TEXT("/Game/Lantern")), nullptr);
		EXPECT_EQ(Log.Lines.Num(), 1);
		EXPECT_TRUE(Log.HasLineWith(TEXT("Content/Lantern.uasset: the package is refused: ")));
		EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/Game/Lantern.Lantern")), nullptr);
	}
	TArray<FAssetData> Assets;
	FString Error;
	Folder.Write("Content/Lantern.uasset", Good.substr(0, 30));
	EXPECT_FALSE(FPackageReader::ReadAssets(Folder / "Content/Lantern.uasset", "/Game/Lantern", Assets, Error));
	EXPECT_EQ(Error, TEXT("it is cut off"));
	EXPECT_TRUE(Assets.IsEmpty());

	Folder.Write("Content/Lantern.uasset", Good);
	EXPECT_NE(LoadPackage(nullptr, TEXT("/Game/Lantern")), nullptr) << "a file that was replaced by a good one is read";
}

TEST_F(PackageFaults, OfOneFileAreNotThoseOfWhatRefersToIt)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Asset"));
	UTestWhole* const Other = MakeAsset(TEXT("/Game/Other"));
	Asset->Links = { Other };
	Other->Links = { Asset };
	ASSERT_TRUE(Save(Asset) && Save(Other));
	Forget();
	std::string Bytes = Folder.Read("Content/Other.uasset");
	Bytes[Bytes.size() / 2] ^= 1;
	Folder.Write("Content/Other.uasset", Bytes);
	const UTestWhole* const Loaded = LoadObject<UTestWhole>(nullptr, TEXT("/Game/Asset"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Links, TArray<UObject*>{ nullptr });
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Other")), nullptr);
}

TEST_F(PackageFaults, OfSavingLeaveTheOldFile)
{
	UTestWhole* const Asset = MakeAsset(TEXT("/Game/Sub/Lantern"));
	ASSERT_TRUE(Save(Asset));
	const std::string Old = Folder.Read("Content/Sub/Lantern.uasset");
	const auto FailAt = [](EFileOperation Failing)
	{ FFileFaults::SetHook([Failing](EFileOperation Operation, const FString&) { return Operation != Failing; }); };
	const std::filesystem::path File = Folder.Native("Content/Sub/Lantern.uasset");
	struct
	{
		const char* Name;
		TFunction<void()> Break;
	} const Cases[] = {
		{ "a full disk", [&] { FailAt(EFileOperation::Write); } },
		{ "no new file", [&] { FailAt(EFileOperation::OpenWrite); } },
		{ "no renaming", [&] { FailAt(EFileOperation::MoveFile); } },
		{ "no folder", [&] { FailAt(EFileOperation::CreateDirectory); } },
		{ "read-only", [&] { std::filesystem::permissions(File, std::filesystem::perms::owner_read); } },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(Each.Name);
		Asset->Modify();
		Asset->Cache++;
		if (std::string_view(Each.Name) == "no folder")
		{
			std::filesystem::remove_all(File.parent_path());
		}
		Each.Break();
		Log.Lines.Empty();
		EXPECT_FALSE(Save(Asset));
		FFileFaults::SetHook({});
		EXPECT_TRUE(Asset->GetPackage()->IsDirty());
		EXPECT_EQ(Log.Lines.Num(), 1);
		EXPECT_TRUE(Log.HasLineWith(TEXT("LogSavePackage|Error|")));
		Folder.Write("Content/Sub/Other", "");
		EXPECT_TRUE(std::string_view(Each.Name) == "no folder" || Folder.Read("Content/Sub/Lantern.uasset") == Old);
		EXPECT_LE(std::distance(std::filesystem::directory_iterator(File.parent_path()), {}), 2) << "nothing is left beside the file";
		if (std::string_view(Each.Name) == "no folder")
		{
			Folder.Write("Content/Sub/Lantern.uasset", Old);
		}
	}
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	EXPECT_FALSE(UPackage::SavePackage(GetTransientPackage(), nullptr, *(Folder / "Transient.uasset"), Args));
	EXPECT_FALSE(UPackage::SavePackage(CreatePackage(TEXT("/Game/Empty")), nullptr, *(Folder / "Empty.uasset"), Args));
}

TEST_F(Packages, HaveNamesForFiles)
{
	struct
	{
		const TCHAR* Name;
		const TCHAR* File;
	} const Files[] = {
		{ TEXT("/Game/A/B"), TEXT("Content/A/B.uasset") },
		{ TEXT("/Script/Engine"), nullptr },
		{ TEXT("/Other/A"), nullptr },
		{ TEXT("Game/A"), nullptr },
	};
	for (const auto& Each : Files)
	{
		FString Filename;
		FString Name;
		EXPECT_EQ(FPackageName::TryConvertLongPackageNameToFilename(Each.Name, Filename, TEXT(".uasset")), Each.File != nullptr);
		EXPECT_EQ(Filename, Each.File ? Folder / TCHAR_TO_UTF8(Each.File) : FString());
		EXPECT_EQ(FPackageName::TryConvertFilenameToLongPackageName(Filename, Name), Each.File != nullptr);
		EXPECT_EQ(Name, Each.File ? Each.Name : TEXT(""));
	}
	FString Reason;
	FString Name;
	EXPECT_FALSE(FPackageName::TryConvertFilenameToLongPackageName(Folder / "Saved/A.uasset", Name, &Reason));
	EXPECT_TRUE(Reason.Contains(TEXT("Saved/A.uasset")));

	struct
	{
		FString Name;
		bool bValid;
	} const Names[] = {
		{ TEXT("/Game/A"), true },
		{ TEXT("/Game/Ä/日本"), true },
		{ TEXT("/Script/Engine"), false },
		{ TEXT("/Game/"), false },
		{ TEXT("/Game/A/"), false },
		{ TEXT("/Game//A"), false },
		{ TEXT("/Game/A.A"), false },
		{ TEXT("/Game/A B"), false },
		{ TEXT("/A"), false },
		{ TEXT("Game/A"), false },
		{ TEXT(""), false },
		{ TEXT("/Game/") + FString::ChrN(2000, 'x'), false },
	};
	for (const auto& Each : Names)
	{
		FText Text;
		EXPECT_EQ(FPackageName::IsValidLongPackageName(Each.Name, false, &Text), Each.bValid) << TCHAR_TO_UTF8(*Each.Name);
		EXPECT_EQ(Text.IsEmpty(), Each.bValid);
	}
	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/Script/Engine"), true));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game/A/B")), TEXT("/Game/A"));
	EXPECT_EQ(FPackageName::GetShortName(TEXT("/Game/A/B")), TEXT("B"));
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(TEXT("/Game/A/B.C:D.E")), TEXT("/Game/A/B"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(TEXT("/Game/A/B.C:D")), TEXT("D"));
	EXPECT_EQ(FPackageName::ExportTextPathToObjectPath(TEXT("Class'/Game/A.A'")), TEXT("/Game/A.A"));
	EXPECT_EQ(FPackageName::ExportTextPathToObjectPath(TEXT("'")), TEXT("'"));
}
