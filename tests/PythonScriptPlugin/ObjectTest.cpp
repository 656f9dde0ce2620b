#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "PythonSupport.h"

namespace
{
UTestSubject* FindSubject(const TCHAR* Name)
{
	return FindObject<UTestSubject>(GetTransientPackage(), Name);
}
}

class PythonObjects : public Python
{
protected:
	PythonObjects()
	{
		NewObject<UTestSubject>(GetTransientPackage(), FName(TEXT("Subject")), RF_Transactional);
		EXPECT_TRUE(Run("subject = unreal.find_object(None, '/Engine/Transient.Subject')\n"
						"def get(name): return subject.get_editor_property(name)\n"
						"def put(name, value):\n  subject.set_editor_property(name, value)\n  return get(name)"))
			<< TCHAR_TO_UTF8(*Command.CommandResult);
	}
	~PythonObjects() override { Run("subject = None"); }

	struct FCase
	{
		const char* Expression;
		const char* Result;
	};
	template <SIZE_T Count>
	void Check(const FCase (&Cases)[Count])
	{
		for (const FCase& Case : Cases)
		{
			EXPECT_EQ(Evaluate(Case.Expression), Case.Result) << Case.Expression << "\n" << TCHAR_TO_UTF8(*Command.CommandResult);
		}
	}
};

TEST_F(PythonObjects, PropertiesOfEachKindAreReadAndSet)
{
	Check({
		{ "get('is_lit'), get('bIsLit'), put('is_lit', True)", "(False, False, True)" },
		{ "put('first', False), put('second', True), get('first')", "(False, True, False)" },
		{ "put('oil_left', 9), put('OilLeft', True), put('oil_left', 3.0)", "(9, 1, 3)" },
		{ "put('oil_left', 2**31)", "OverflowError: NativizeProperty: 2147483648 is out of the range of 'OilLeft' (IntProperty)" },
		{ "put('oil_left', 3.5)", "TypeError: NativizeProperty: Cannot nativize 'float' as 'OilLeft' (IntProperty)" },
		{ "put('oil_left', '3')", "TypeError: NativizeProperty: Cannot nativize 'str' as 'OilLeft' (IntProperty)" },
		{ "put('small', 255)", "255" },
		{ "put('small', -1)", "OverflowError: NativizeProperty: -1 is out of the range of 'Small' (ByteProperty)" },
		{ "put('long', -2**63), put('long_unsigned', 2**64 - 1)", "(-9223372036854775808, 18446744073709551615)" },
		{ "put('long_unsigned', -1)", "OverflowError: can't convert negative int to unsigned" },
		{ "put('ratio', 0.1) == 0.1, put('exact', 0.1), put('exact', 1)", "(False, 0.1, 1.0)" },
		{ "put('title', 'Öl \\U0001f56f')", "'Öl \xf0\x9f\x95\xaf'" },
		{ "put('title', None)", "TypeError: NativizeProperty: Cannot nativize 'NoneType' as 'Title' (StrProperty)" },
		{ "type(put('tag', 'Dusk')), str(get('tag')), get('tag') == 'Dusk'", "(<class 'unreal.Name'>, 'Dusk', True)" },
		{ "type(put('label', 'Dawn')), str(get('label'))", "(<class 'unreal.Text'>, 'Dawn')" },
		{ "put('shade', unreal.TestShade.DARK_GREY), get('shade').value", "(<TestShade.DARK_GREY: 4>, 4)" },
		{ "put('shade', 2)", "ValueError: NativizeProperty: Cannot nativize 'int' as 'Shade' (EnumProperty)" },
		{ "list(unreal.TestShade.__members__)", "['PITCH_BLACK', 'DARK_GREY', 'WHITE']" },
		{ "put('place', unreal.Vector(1, 2, z=3)).y", "2.0" },
		{ "put('place', [4, 5]).to_tuple(), put('place', {'x': 1}).to_tuple()", "((4.0, 5.0, 0.0), (1.0, 0.0, 0.0))" },
		{ "put('place', unreal.Rotator())", "TypeError: NativizeProperty: Cannot nativize 'Rotator' as 'Place' (StructProperty)" },
		{ "put('plate', {'inscription': 'a', 'gilded': True, 'years': (1, 2), 'maker': subject}).maker == subject", "True" },
		{ "get('plate').years, get('plate') == get('plate')", "([1, 2], True)" },
		{ "[plate.inscription for plate in put('plates', [{'inscription': 'x'}, unreal.TestPlate('y')])]", "['x', 'y']" },
		{ "sorted(put('words', ['b', 'a', 'B']))", "['a', 'b']" },
		{ "put('prices', {'oil': 2, 'wick': .5})", "{'oil': 2.0, 'wick': 0.5}" },
		{ "put('prices', [1])", "TypeError: NativizeProperty: Cannot nativize 'list' as 'Prices' (MapProperty)" },
		{ "get('prices')", "{'oil': 2.0, 'wick': 0.5}" },
		{ "put('fixed', (7, 8, 9))", "[7, 8, 9]" },
		{ "put('fixed', [1])", "ValueError: 'Fixed' has 3 values, not 1" },
		{ "put('friend', subject) == subject, put('friend', None)", "(True, None)" },
		{ "put('friend', unreal.Actor)", "TypeError: NativizeProperty: Cannot nativize 'pybind11_type' as 'Friend' (ObjectProperty)" },
		{ "put('acquaintance', subject) is subject, get('acquaintance') == subject", "(False, True)" },
		{ "put('kind', unreal.TestSubject).get_name(), put('kind', get('kind')) == unreal.TestSubject.static_class()",
			"('TestSubject', True)" },
		{ "put('kind', unreal.Actor)",
			"TypeError: NativizeProperty: Cannot nativize 'Actor' as 'Kind' (ClassProperty): it is no child class of 'TestSubject'" },
		{ "put('distant', subject) == subject, put('distant', '/Game/Nowhere.Nowhere')", "(True, None)" },
		{ "put('distant_kind', unreal.TestSubject).get_name()", "'TestSubject'" },
		{ "get('secret')",
			"Exception: TestSubject: Property 'Secret' for attribute 'secret' on 'TestSubject' is protected and cannot be read" },
		{ "put('only_seen', 1)",
			"Exception: TestSubject: Property 'OnlySeen' for attribute 'only_seen' on 'TestSubject' is read-only and cannot be set" },
		{ "put('of_defaults', 1)",
			"Exception: TestSubject: Property 'OfDefaults' for attribute 'of_defaults' on 'TestSubject' cannot be edited on instances" },
		{ "get('wick')", "Exception: TestSubject: Failed to find property 'wick' for attribute 'wick' on 'TestSubject'" },
	});
	ASSERT_TRUE(Run("nested = {}\nnested['smaller'] = [nested]"));
	EXPECT_TRUE(Evaluate("put('plate', nested)").starts_with("RecursionError: maximum recursion depth exceeded"));
	EXPECT_EQ(FindSubject(TEXT("Subject"))->Prices.Num(), 2);
}

TEST_F(PythonObjects, AttributesFunctionsAndTypesComeByReflection)
{
	Check({
		{ "subject.oil_left", "7" },
		{ "subject.burn_oil(2), subject.burn_oil(hours=1, per_hour=1), subject.oil_left", "(3, 2, 2)" },
		{ "subject.burn_oil()", "TypeError: TestSubject.burn_oil(): required argument 'hours' (pos 1) not found" },
		{ "subject.burn_oil(1, 2, 3)", "TypeError: TestSubject.burn_oil() takes at most 2 arguments, or has none of such a name" },
		{ "subject.burn_oil(1, hours=2)", "TypeError: TestSubject.burn_oil(): argument 'hours' given twice" },
		{ "subject.call_method('BurnOil', (0,))", "2" },
		{ "subject.find_word('x'), put('words', {'x'}) and subject.find_word('X')", "(None, (1, 'X'))" },
		{ "unreal.TestSubject.join_words(['a', 'b']), subject.join_words([], '+')", "('a-b', '')" },
		{ "subject.hide()", "AttributeError: 'TestSubject' object has no attribute 'hide'" },
		{ "setattr(subject, 'oil', 1)", "AttributeError: 'TestSubject' object has no attribute 'oil'" },
		{ "unreal.Lamp", "AttributeError: module 'unreal' has no attribute 'Lamp'" },
		{ "'TestSubject' in dir(unreal), 'oil_left' in dir(subject)", "(True, True)" },
		{ "isinstance(subject, unreal.Object), subject.get_class() == unreal.TestSubject.static_class()", "(True, True)" },
		{ "subject.get_name(), subject.get_path_name(), subject.get_outer().get_name()",
			"('Subject', '/Engine/Transient.Subject', '/Engine/Transient')" },
		{ "unreal.Object.cast(subject) == subject, len({subject, unreal.find_object(None, '/Engine/Transient.Subject')})", "(True, 1)" },
		{ "unreal.Actor.cast(subject)", "TypeError: Cannot cast type 'TestSubject' to 'Actor'" },
		{ "unreal.get_default_object(unreal.TestSubject).get_editor_property('title')", "'Old'" },
		{ "unreal.TestSubject(name='Second').get_name()", "'Second'" },
		{ "unreal.TestSubject(name='Subject')", "Exception: TestSubject: there is an object 'Subject' in '/Engine/Transient' already" },
		{ "unreal.Package()", "Exception: Package: no object can be made of this class" },
		{ "unreal.Vector(1, 2, 3) == unreal.Vector(1, 2, 3), unreal.Vector(1)",
			"(True, <Struct 'Vector' (X=1.000000,Y=0.000000,Z=0.000000)>)" },
		{ "unreal.Vector(1, 2, 3, 4)", "TypeError: Vector: it has no more than 3 members" },
		{ "unreal.Vector(w=1)", "Exception: Vector: Failed to find property 'w' for attribute 'w' on 'Vector'" },
		{ "unreal.LinearColor(r=1, a=.5).a, unreal.SystemLibrary.get_engine_version()[:3]", "(0.5, '5.5')" },
		{ "unreal.Paths.project_dir() == os.path.dirname(__file__) + '/', unreal.Paths.convert_relative_path_to_full('a', '/b')",
			"(True, '/b/a')" },
		{ "unreal.load_asset('/Game/Nothing'), unreal.load_class(None, '/Script/Engine.Actor').get_name()", "(None, 'Actor')" },
	});
}

TEST_F(PythonObjects, AChangeIsToldRecordedAndTakenBack)
{
	UTestSubject* const Subject = FindSubject(TEXT("Subject"));
	ASSERT_TRUE(Run("with unreal.ScopedEditorTransaction('Dim') as transaction:\n"
					"  put('oil_left', 7)\n  put('title', 'New')\n  subject.is_lit = True"));
	EXPECT_EQ(Subject->Changed, (TArray<FName>{ FName(TEXT("Title")), FName(TEXT("bIsLit")) })) << "what stays the same is no change";
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Evaluate("get('title'), get('is_lit')"), "('Old', False)");
	EXPECT_FALSE(Run("with unreal.ScopedEditorTransaction('Fail'):\n  put('title', 'Half')\n  raise ValueError"));
	EXPECT_FALSE(GEditor->IsTransactionActive());
	EXPECT_EQ(Evaluate("get('title')"), "'Half'");
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Subject->Title, TEXT("Old"));
}

TEST_F(PythonObjects, AreKeptByScriptsButNotWhenTheyAreDeleted)
{
	ASSERT_TRUE(Run("plate = unreal.TestPlate('kept', maker=unreal.TestSubject(name='Kept'))\nsubject = unreal.TestSubject(name='Other')"));
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(FindSubject(TEXT("Kept")));
	EXPECT_EQ(Evaluate("plate.maker.get_name() + subject.get_name()"), "'KeptOther'");
	for (const TCHAR* const Name : { TEXT("Kept"), TEXT("Other") })
	{
		FindSubject(Name)->MarkAsGarbage();
	}
	EXPECT_EQ(Evaluate("subject.get_name()"), "Exception: The object is gone: it was deleted.");
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Evaluate("subject.get_editor_property('title')"), "Exception: The object is gone: it was deleted.");
	EXPECT_EQ(Evaluate("subject, plate.maker"), "(<Object (deleted)>, None)");
	EXPECT_TRUE(Run("del plate, subject"));
}
