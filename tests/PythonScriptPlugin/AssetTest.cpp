#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/Blueprint.h"
#include "Misc/PackageName.h"
#include "PythonSupport.h"
#include "UObject/UnrealType.h"

class PythonAssets : public Python
{
protected:
	PythonAssets()
	{
		EXPECT_TRUE(Run("lib = unreal.EditorAssetLibrary\n"
						"def make(name, parent, path='/Game'):\n"
						"  factory = unreal.BlueprintFactory()\n"
						"  factory.set_editor_property('parent_class', parent)\n"
						"  return unreal.AssetToolsHelpers.get_asset_tools().create_asset(name, path, unreal.Blueprint, factory)"))
			<< TCHAR_TO_UTF8(*Command.CommandResult);
	}

	/** Nothing is in memory afterwards. */
	void Forget()
	{
		EXPECT_TRUE(Run("for name in [n for n in globals() if n[0] == 'b']: del globals()[name]"));
		GEditor->ResetTransaction(FText::GetEmpty());
		CollectGarbage(RF_NoFlags);
	}
	bool Has(const char* File) const { return std::filesystem::exists(Folder.Native(std::string("Content/") + File)); }
};

TEST_F(PythonAssets, AScriptMakesABlueprintSavesItAndSetsItsDefaults)
{
	ASSERT_TRUE(Run("b = make('BP_Lamp', unreal.TestSubject, '/Game/Lamps')\n"
					"defaults = unreal.get_default_object(lib.load_blueprint_class('/Game/Lamps/BP_Lamp'))\n"
					"defaults.set_editor_property('oil_left', 12)\ndefaults.set_editor_property('of_defaults', 3)\n"
					"assert lib.save_loaded_asset(b)\ndefaults = None"))
		<< TCHAR_TO_UTF8(*Command.CommandResult);
	EXPECT_EQ(Evaluate("type(b), b.get_path_name()"), "(<class 'unreal.Blueprint'>, '/Game/Lamps/BP_Lamp.BP_Lamp')");
	EXPECT_EQ(Evaluate("make('BP_Lamp', unreal.TestSubject, '/Game/Lamps')"), "None");
	EXPECT_EQ(Evaluate("lib.list_assets('/Game'), lib.list_assets('/Game/', include_folder=True)"),
		"(['/Game/Lamps/BP_Lamp.BP_Lamp'], ['/Game/Lamps/BP_Lamp.BP_Lamp', '/Game/Lamps/'])");
	EXPECT_EQ(Evaluate("[lib.does_asset_exist(p) for p in ('/Game/Lamps/BP_Lamp', '/Game/Lamps/BP_Lamp.BP_Lamp', '/Game/BP_Lamp', 'x')]"),
		"[True, True, False, False]");
	EXPECT_EQ(Evaluate("[lib.does_directory_exist(p) for p in ('/Game/Lamps', '/Game/Lamps/', '/Game/Posts', '/Game')]"),
		"[True, True, False, True]");
	EXPECT_EQ(Evaluate("lib.make_directory('/Game/Posts/Old'), lib.does_directory_exist('/Game/Posts/Old')"), "(True, True)");
	Forget();
	EXPECT_EQ(Evaluate("unreal.get_default_object(lib.load_blueprint_class('/Game/Lamps/BP_Lamp')).oil_left"), "12");
	EXPECT_EQ(Evaluate("lib.load_asset('/Game/Nothing')"), "None");
}

TEST_F(PythonAssets, DefaultsThatFollowTheParentsFollowAndUndoTakesBothBack)
{
	ASSERT_TRUE(
		Run("parent = make('BP_Parent', unreal.TestSubject)\nchild = make('BP_Child', lib.load_blueprint_class('/Game/BP_Parent'))\n"
			"first, second = (unreal.get_default_object(lib.load_blueprint_class(p)) for p in ('/Game/BP_Parent', '/Game/BP_Child'))\n"
			"second.set_editor_property('title', 'Own')\n"
			"with unreal.ScopedEditorTransaction('Defaults'):\n"
			"  first.set_editor_property('oil_left', 20)\n  first.set_editor_property('title', 'New')"))
		<< TCHAR_TO_UTF8(*Command.CommandResult);
	EXPECT_EQ(Evaluate("second.get_editor_property('oil_left'), second.get_editor_property('title')"), "(20, 'Own')");
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Evaluate("[unreal.get_default_object(lib.load_blueprint_class(p)).oil_left for p in ('/Game/BP_Parent', '/Game/BP_Child')]"),
		"[7, 7]");
	EXPECT_TRUE(Run("del parent, child, first, second"));
}

TEST_F(PythonAssets, ARenamedBlueprintTakesItsFileItsClassAndAllReferencesAlong)
{
	ASSERT_TRUE(
		Run("a = make('BP_Old', unreal.TestSubject)\nb = make('BP_Child', lib.load_blueprint_class('/Game/BP_Old'))\n"
			"bd = unreal.get_default_object(lib.load_blueprint_class('/Game/BP_Child'))\n"
			"bd.set_editor_property('distant', '/Game/BP_Old.BP_Old')\nbd.set_editor_property('distant_kind', '/Game/BP_Old.BP_Old_C')\n"
			"assert lib.save_loaded_asset(a) and lib.save_loaded_asset(b)\na = None"))
		<< TCHAR_TO_UTF8(*Command.CommandResult);
	Forget();
	ASSERT_FALSE(FindPackage(nullptr, TEXT("/Game/BP_Child")));
	const FLogLines Log;
	EXPECT_EQ(Evaluate("lib.rename_asset('/Game/BP_Old', '/Game/Posts/BP_New')"), "True");
	EXPECT_TRUE(Has("Posts/BP_New.uasset"));
	EXPECT_FALSE(Has("BP_Old.uasset"));
	EXPECT_EQ(Evaluate("lib.list_assets('/Game')"), "['/Game/BP_Child.BP_Child', '/Game/Posts/BP_New.BP_New']");
	Forget();
	const UBlueprint* const Child = LoadObject<UBlueprint>(nullptr, TEXT("/Game/BP_Child.BP_Child"));
	ASSERT_TRUE(Child);
	EXPECT_EQ(Child->ParentClass->GetPathName(), TEXT("/Game/Posts/BP_New.BP_New_C"));
	EXPECT_FALSE(Log.HasLineWith(TEXT("it is compiled"))) << "the files have what a compile would make";
	const auto* const Defaults = static_cast<UTestSubject*>(Child->GeneratedClass->GetDefaultObject());
	EXPECT_EQ(Defaults->Distant.ToString(), TEXT("/Game/Posts/BP_New.BP_New"));
	EXPECT_EQ(Defaults->DistantKind.ToString(), TEXT("/Game/Posts/BP_New.BP_New_C"));
	EXPECT_EQ(Child->ParentClass->GetDefaultObject()->GetName(), TEXT("Default__BP_New_C"));

	EXPECT_EQ(Evaluate("lib.rename_asset('/Game/Posts/BP_New', '/Game/BP_Child')"), "False");
	EXPECT_EQ(Evaluate("lib.rename_asset('/Game/Posts/BP_New', '/Nowhere/BP_New')"), "False");
	std::filesystem::permissions(Folder.Native("Content/BP_Child.uasset"), std::filesystem::perms::owner_read);
	EXPECT_EQ(Evaluate("lib.rename_asset('/Game/Posts/BP_New', '/Game/BP_Other')"), "False");
	EXPECT_EQ(Evaluate("lib.does_asset_exist('/Game/BP_Other'), lib.does_asset_exist('/Game/Posts/BP_New')"), "(False, True)");
}

TEST_F(PythonAssets, UndoLeavesARenamedAssetWhereItIsAndADeletedOneDeleted)
{
	ASSERT_TRUE(Run("b = make('BP_A', unreal.TestSubject)\nb2 = make('BP_B', unreal.TestSubject)\nassert lib.save_loaded_asset(b)\n"
					"with unreal.ScopedEditorTransaction('Change'):\n"
					"  for p in ('/Game/BP_A', '/Game/BP_B'):\n"
					"    unreal.get_default_object(lib.load_blueprint_class(p)).set_editor_property('oil_left', 1)\n"
					"  assert lib.rename_loaded_asset(b, '/Game/BP_C') and lib.delete_loaded_asset(b2)"))
		<< TCHAR_TO_UTF8(*Command.CommandResult);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Evaluate("b.get_path_name(), unreal.get_default_object(lib.load_blueprint_class('/Game/BP_C')).oil_left"),
		"('/Game/BP_C.BP_C', 7)");
	EXPECT_EQ(Evaluate("b2.get_name()"), "Exception: The object is gone: it was deleted.");
	EXPECT_EQ(Evaluate("lib.list_assets('/Game')"), "['/Game/BP_C.BP_C']");
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Evaluate("b.get_path_name()"), "'/Game/BP_C.BP_C'");
	Forget();
}

TEST_F(PythonAssets, AnAssetIsNotDeletedWhileOthersReferToIt)
{
	ASSERT_TRUE(Run("a = make('BP_Used', unreal.TestSubject)\nb = make('BP_User', lib.load_blueprint_class('/Game/BP_Used'))"));
	EXPECT_EQ(Evaluate("lib.delete_asset('/Game/BP_Used')"), "False");
	ASSERT_TRUE(Run("assert lib.save_loaded_asset(a) and lib.save_loaded_asset(b)\na = None"));
	Forget();
	EXPECT_EQ(Evaluate("lib.delete_asset('/Game/BP_Used')"), "False") << "the file of the other one refers to it";
	EXPECT_TRUE(Has("BP_Used.uasset"));
	EXPECT_EQ(
		Evaluate("lib.delete_asset('/Game/BP_User'), lib.delete_asset('/Game/BP_Used'), lib.list_assets('/Game')"), "(True, True, [])");
	EXPECT_FALSE(Has("BP_Used.uasset") || Has("BP_User.uasset"));
	Forget();
	EXPECT_EQ(Evaluate("make('BP_Used', unreal.TestSubject).get_name()"), "'BP_Used'") << "the name is free";
}
