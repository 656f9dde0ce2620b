#include "Parser.h"
#include "SourceError.h"
#include "Specifiers.h"

#include <gtest/gtest.h>

namespace
{
// A header with one class around the members.
std::string InClass(const std::string& Members)
{
	return "#include \"A.generated.h\"\nUCLASS()\nclass UA : public UObject\n{\n\tGENERATED_BODY()\n" + Members + "\n};\n";
}

// "Name Kind Flags" of each property.
std::string Describe(const std::vector<Property>& Properties)
{
	std::string Text;
	for (const Property& Each : Properties)
	{
		Text += Each.Name + ":" + Each.Type.Kind;
		for (const PropertyType& Inner : Each.Type.Inner)
		{
			Text += "<" + Inner.Kind + ">";
		}
		Text += Each.bBitField ? ":bit" : "";
		Text += Each.Flags.empty() ? " " : "[" + Each.Flags + "] ";
	}
	return Text;
}

Class ReadClass(const std::string& Members)
{
	return ParseHeader(InClass(Members), "A.h").Classes.at(0);
}

std::string GetMeta(const MetaData& Meta, const std::string& Key)
{
	for (const auto& [Name, Value] : Meta.GetPairs())
	{
		if (Name == Key)
		{
			return Value;
		}
	}
	return "(none)";
}
}

TEST(HeaderToolParser, ReadsThePropertiesAmongAllOtherMembers)
{
	struct Case
	{
		const char* Members;
		const char* Expected;
	};
	const Case Cases[] = {
		{ "UPROPERTY() bool bA = true; UPROPERTY() uint8 B; UPROPERTY() int32 C{ 3 }; UPROPERTY() int64 D = 1'000;",
			"bA:Bool B:Byte C:Int D:Int64 " },
		{ "UPROPERTY() float A; UPROPERTY() double B; UPROPERTY() FString C = TEXT(\"};\"); UPROPERTY() FName D; UPROPERTY() FText E;",
			"A:Float B:Double C:Str D:Name E:Text " },
		{ "UPROPERTY() EMode Mode = EMode::A; UPROPERTY() TEnumAsByte<EOld> Old; UPROPERTY() FItem Item;",
			"Mode:Enum Old:Byte Item:Struct " },
		{ "UPROPERTY() UA* Raw; UPROPERTY() class AActor *Actor = nullptr; UPROPERTY() TObjectPtr<UA> Smart; UPROPERTY() TSubclassOf<class "
		  "UA> Type;",
			"Raw:Object Actor:Object Smart:Object Type:Class " },
		{ "UPROPERTY() TArray<FString> A = { TEXT(\"a\"), TEXT(\"b\") }; UPROPERTY() TArray<TObjectPtr<UA>> B; UPROPERTY() TArray<struct "
		  "FItem> C;",
			"A:Array<Str> B:Array<Object> C:Array<Struct> " },
		{ "UPROPERTY() int8 A; UPROPERTY() int16 B; UPROPERTY() uint16 C; UPROPERTY() uint32 D; UPROPERTY() uint64 E;",
			"A:Int8 B:Int16 C:UInt16 D:UInt32 E:UInt64 " },
		{ "UPROPERTY() TMap<FName, TObjectPtr<UA>> A; UPROPERTY() TSet<FString> B; UPROPERTY() float C[4] = {}; UPROPERTY() UClass* D;",
			"A:Map<Name><Object> B:Set<Str> C:Float D:Class " },
		{ "UPROPERTY() TWeakObjectPtr<UA> A; UPROPERTY() TSoftObjectPtr<class UA> B; UPROPERTY() TSoftClassPtr<AActor> C; UPROPERTY() "
		  "TScriptInterface<IA> D; UPROPERTY() TEnumAsByte<EOld::Type> E;",
			"A:WeakObject B:SoftObject C:SoftClass D:Interface E:Byte " },
		{ "UPROPERTY(meta = (ExposeOnSpawn = \"true\")) int32 A;", "A:Int[CPF_ExposeOnSpawn] " },
		{ "UPROPERTY() uint8 bA : 1; UPROPERTY() bool bB : 1 = true; UPROPERTY() uint32 bC : 1; uint8 bHidden : 1;",
			"bA:Bool:bit bB:Bool:bit bC:Bool:bit " },
		{ "UPROPERTY(EditAnywhere, Config, BLUEPRINTREADONLY) int32 A;",
			"A:Int[CPF_Edit | CPF_Config | CPF_BlueprintVisible | CPF_BlueprintReadOnly] " },
		{ "UA() : A{ 1 }, B(2) { if (true) { A = 2; } } UPROPERTY() int32 A; int32 B;", "A:Int " },
		{ "bool operator==(const UA& Other) const { return A == Other.A; } UPROPERTY() int32 A;", "A:Int " },
		{ "static constexpr const TCHAR* Text = TEXT(\"UPROPERTY() int32 No;\"); UPROPERTY() int32 A;", "A:Int " },
		{ "const char* Raw = R\"x(\" UPROPERTY() )\" )x\"; char C = '\"'; UPROPERTY() int32 A;", "A:Int " },
		{ "TFunction<void()> Callback = [] { struct { int X; } Y; }; TMap<FString, TArray<int>> Map{ { 1, 2 } }; UPROPERTY() int32 A;",
			"A:Int " },
		{ "template <typename T> requires(sizeof(T) > 1) T Get() const; enum { X, Y }; struct FInner { int A; } Inner; UPROPERTY() int32 "
		  "A;",
			"A:Int " },
		{ "// UPROPERTY() int32 No;\n/* UPROPERTY() int32 No; */ UPROPERTY() int32 A; // UPROPERTY() int32 No;", "A:Int " },
		{ "DECLARE_SOMETHING(UA, 3)\nUPROPERTY() int32 A;\nSECOND_MACRO()\npublic:\nUPROPERTY() int32 B;", "A:Int B:Int " },
		{ "UPROPERTY() UE_DEPRECATED(5.0, \"Gone; really\") int32 A; UPROPERTY() [[maybe_unused]] int32 B;", "A:Int B:Int " },
		{ "#if WITH_EDITOR\nUPROPERTY() int32 A;\n#else\nUPROPERTY() float A;\n#endif\n#if 0\nit's \"text\nUPROPERTY() int32 B;\n#endif",
			"A:Int " },
		{ "#define MEMBER \\\n\tUPROPERTY() int32 No;\n#if !WITH_EDITOR\nUPROPERTY() int32 No;\n#elif defined(X) // '\nUPROPERTY() int32 "
		  "A;\n#else\nint\n#endif",
			"A:Int " },
	};
	for (const Case& Each : Cases)
	{
		SCOPED_TRACE(Each.Members);
		EXPECT_EQ(Describe(ReadClass(Each.Members).Properties), Each.Expected);
	}
}

TEST(HeaderToolParser, ReadsFunctionsWithParametersAndFlags)
{
	const Class Read = ReadClass(R"(
public:
	/** Adds. */
	UFUNCTION(BlueprintPure, Category = "Math", meta = (Keywords = "plus, sum"))
	static int32 Add(int32 A, const FString& Text = TEXT(","), TArray<int32>& Out = GetEmpty(1, 2));
protected:
	UFUNCTION()
	virtual void Act() const override { Body({ 1 }); }
	UFUNCTION(BlueprintCallable)
	virtual const UA* Find(UPARAM(ref) FName& Name) = 0;
)");
	ASSERT_EQ(Read.Functions.size(), 3u);
	const Function& Add = Read.Functions[0];
	EXPECT_EQ(Add.Flags, "FUNC_Native | FUNC_Public | FUNC_BlueprintCallable | FUNC_BlueprintPure | FUNC_Static | FUNC_HasOutParms");
	EXPECT_EQ(Describe(Add.Parameters),
		"A:Int[CPF_Parm] Text:Str[CPF_Parm | CPF_ConstParm | CPF_OutParm | CPF_ReferenceParm] "
		"Out:Array<Int>[CPF_Parm | CPF_OutParm] ReturnValue:Int[CPF_Parm | CPF_OutParm | CPF_ReturnParm] ");
	EXPECT_EQ(GetMeta(Add.Meta, "Keywords"), "plus, sum");
	EXPECT_EQ(GetMeta(Add.Meta, "ToolTip"), "Adds.");
	EXPECT_EQ(Read.Functions[1].Flags, "FUNC_Native | FUNC_Protected | FUNC_Const");
	EXPECT_EQ(Read.Functions[2].Parameters.back().Type.Cpp, "const UA*");
	EXPECT_EQ(Read.Functions[2].Parameters[0].Flags, "CPF_Parm | CPF_OutParm | CPF_ReferenceParm") << "read as well as written";
}

TEST(HeaderToolParser, ReadsEvents)
{
	const Class Read = ReadClass(R"(
	UFUNCTION(BlueprintNativeEvent) int32 Own(int32 A) const;
	virtual int32 Own_Implementation(int32 A) const;
	UFUNCTION(BlueprintImplementableEvent) void Told();
)");
	EXPECT_EQ(Read.Functions.at(0).Flags, "FUNC_Private | FUNC_Native | FUNC_Event | FUNC_BlueprintEvent | FUNC_Const");
	EXPECT_EQ(Read.Functions.at(1).Flags, "FUNC_Private | FUNC_Event | FUNC_BlueprintEvent");
	EXPECT_EQ(Read.Implementations, std::set<std::string>{ "Own_Implementation" });
}

TEST(HeaderToolParser, NotesTheDefaultsOfParameters)
{
	struct Case
	{
		const char* Parameter;
		const char* Expected;
	};
	const Case Cases[] = {
		{ "int32 A = 5", "5" },
		{ "int32 A = -1'000", "-1000" },
		{ "int32 A = INDEX_NONE", "-1" },
		{ "float A = 2.f", "2.000000" },
		{ "double A = -0.5", "-0.500000" },
		{ "bool A = true", "true" },
		{ "const FString& A = TEXT(\"Hello, you\")", "Hello, you" },
		{ "FString A = FString()", "" },
		{ "FName A = NAME_None", "None" },
		{ "FName A = FName(\"x\")", "x" },
		{ "EMode A = EMode::Fast", "Fast" },
		{ "TEnumAsByte<EOld::Type> A = EOld::First", "First" },
		{ "UA* A = nullptr", "None" },
		{ "TSubclassOf<UA> A = NULL", "None" },
		{ "FVector A = FVector::ZeroVector", "" },
		{ "FVector A = FVector(1, -2.5f, 3)", "1.000000,-2.500000,3.000000" },
		{ "FVector2D A = FVector2D(1, 2)", "(X=1.000000,Y=2.000000)" },
		{ "FLinearColor A = FLinearColor(0.0, 0.66, 1.0)", "(R=0.000000,G=0.660000,B=1.000000,A=1.000000)" },
		{ "const FItem& A = FItem()", "()" },
		{ "int32 A = Compute(1, 2)", "(none)" },
		{ "FVector A = Make({ 1, 2 }, 3)", "(none)" },
		{ "int32 A", "(none)" },
	};
	for (const Case& Each : Cases)
	{
		const Class Read = ReadClass(std::string("UFUNCTION() void F(") + Each.Parameter + ", bool bLast = false);");
		EXPECT_EQ(GetMeta(Read.Functions.at(0).Meta, "CPP_Default_A"), Each.Expected) << Each.Parameter;
		EXPECT_EQ(GetMeta(Read.Functions.at(0).Meta, "CPP_Default_bLast"), "false") << Each.Parameter;
	}
}

TEST(HeaderToolParser, ReadsInterfacesAndDelegates)
{
	const Header Read = ParseHeader(R"(#include "A.generated.h"
/** Tells. */
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnTold, UA*, Teller, const FString&, Text);
UINTERFACE(MinimalAPI, Blueprintable)
class UTeller : public UInterface
{
	GENERATED_BODY()
};
class IForward;
class GAME_API ITeller : public IOther
{
	GENERATED_BODY()
public:
	UFUNCTION(BlueprintCallable) virtual void Tell() = 0;
};
UCLASS()
class UA : public UObject, public ITeller, public TOther<IForward, int>, public Outer::IThird
{
	GENERATED_BODY()
	DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(bool, FAsk, int32, Number);
	UPROPERTY(BlueprintAssignable) FOnTold OnTold;
	UPROPERTY() FAsk Ask;
};
)",
		"A.h");
	const Delegate& OnTold = Read.Delegates.at(0);
	EXPECT_EQ(OnTold.Signature.Name, "OnTold__DelegateSignature");
	EXPECT_EQ(OnTold.Signature.Flags, "FUNC_MulticastDelegate | FUNC_Public | FUNC_Delegate");
	EXPECT_EQ(Describe(OnTold.Signature.Parameters),
		"Teller:Object[CPF_Parm] Text:Str[CPF_Parm | CPF_ConstParm | CPF_OutParm | CPF_ReferenceParm] ");
	EXPECT_EQ(GetMeta(OnTold.Signature.Meta, "ToolTip"), "Tells.");
	const Class& Interface = Read.Classes.at(0);
	EXPECT_EQ(Interface.Flags, "CLASS_MinimalAPI | CLASS_Abstract | CLASS_Interface");
	EXPECT_EQ(Interface.BodyLine, 7);
	EXPECT_EQ(Interface.InterfaceBodyLine, 12);
	EXPECT_EQ(Interface.Functions.at(0).Name, "Tell");
	const Class& Type = Read.Classes.at(1);
	EXPECT_EQ(Type.Super, "UObject");
	EXPECT_EQ(Type.Bases, (std::vector<std::string>{ "ITeller", "Outer::IThird" }));
	EXPECT_EQ(Describe(Type.Delegates.at(0).Signature.Parameters),
		"Number:Int[CPF_Parm] ReturnValue:Bool[CPF_Parm | CPF_OutParm | CPF_ReturnParm] ");
	EXPECT_EQ(Type.Properties.at(1).Type.Cpp, "UA::FAsk") << "named from outside of the class";
}

TEST(HeaderToolParser, ReadsClassStructAndEnumHeads)
{
	const Header Read = ParseHeader(R"(#pragma once
#include "Other.h"
#include "A.generated.h"
namespace Outer { class UNot : public UObject {}; }
class UForward;
DECLARE_DELEGATE_OneParam(FSomething, int32);
/** The way. */
UENUM(BlueprintType)
enum class EMode : uint8
{
	/** First of all. */
	First UMETA(DisplayName = "The First"),
	Second = First + (3 << 1), // trailing
	Third UMETA(Hidden) = 12,
};
USTRUCT() struct GAME_API FItem : public FBase { GENERATED_BODY() UPROPERTY() int32 A; };
UCLASS(Abstract, Config = Game, DefaultConfig, meta = (ShortTip = "x"))
class alignas(16) GAME_API UA final : public UObject, public IOther<int>
{
	GENERATED_BODY()
	explicit UA(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
)",
		"Sub/A.h");
	EXPECT_EQ(Read.Stem, "A");
	const Class& Type = Read.Classes.at(0);
	EXPECT_EQ(Type.Name, "UA");
	EXPECT_EQ(Type.Super, "UObject");
	EXPECT_EQ(Type.Config, "Game");
	EXPECT_EQ(Type.Flags, "CLASS_Abstract | CLASS_Config | CLASS_DefaultConfig");
	EXPECT_EQ(Type.BodyLine, 20);
	EXPECT_TRUE(Type.bTakesInitializer);
	EXPECT_EQ(Read.Structs.at(0).Super, "FBase");
	const Enum& Mode = Read.Enums.at(0);
	EXPECT_EQ(GetMeta(Mode.Meta, "ToolTip"), "The way.");
	ASSERT_EQ(Mode.Enumerators.size(), 3u);
	EXPECT_EQ(GetMeta(Mode.Enumerators[0].Meta, "DisplayName"), "The First");
	EXPECT_EQ(GetMeta(Mode.Enumerators[0].Meta, "ToolTip"), "First of all.");
	EXPECT_EQ(GetMeta(Mode.Enumerators[1].Meta, "ToolTip"), "(none)");
	EXPECT_EQ(Mode.Enumerators[2].Name, "Third");
}

TEST(HeaderToolParser, TakesTheCommentDirectlyOverADeclaration)
{
	struct Case
	{
		const char* Members;
		const char* Expected;
	};
	const Case Cases[] = {
		{ "/** One line. */ UPROPERTY() int32 A;", "One line." },
		{ "/**\n * Two\n *   lines.\n */\nUPROPERTY() int32 A;", "Two\nlines." },
		{ "// First\n/// second\nUPROPERTY() int32 A;", "First\nsecond" },
		{ "//----------\n// Ruled\n//==========\nUPROPERTY() int32 A;", "Ruled" },
		{ "// Heading of a block\n\nUPROPERTY() int32 A;", "(none)" },
		{ "// Heading\n\n// Its own\nUPROPERTY() int32 A;", "Its own" },
		{ "int32 Other; // of the other\nUPROPERTY() int32 A;", "(none)" },
		{ "/** Lost */ UPROPERTY(meta = (ToolTip = \"Said \\\"so\\\"\" \" twice\")) int32 A;", "Said \"so\" twice" },
		{ "/** \xC3\xBC * 2 */ UPROPERTY() int32 A;", "\xC3\xBC * 2" },
	};
	for (const Case& Each : Cases)
	{
		SCOPED_TRACE(Each.Members);
		EXPECT_EQ(GetMeta(ReadClass(Each.Members).Properties.at(0).Meta, "ToolTip"), Each.Expected);
	}
}

TEST(HeaderToolParser, NamesTheLineOfWhatItRefuses)
{
	struct Case
	{
		std::string Source;
		int Line;
		const char* Message;
	};
	const std::string Include = "#include \"A.generated.h\"\n";
	const Case Cases[] = {
		{ InClass("UPROPERTY()\nTSharedPtr<FString> A;"), 7, "type 'TSharedPtr' is not known to reflection" },
		{ InClass("UPROPERTY() TArray<TArray<int32>> A;"), 6, "a container of containers is not known to reflection" },
		{ InClass("UPROPERTY() TMap<FString, TSet<int32>> A;"), 6, "a container of containers is not known to reflection" },
		{ InClass("UPROPERTY() TMap<FString> A;"), 6, "expected ',' before '>'" },
		{ InClass("UPROPERTY() TScriptInterface<UA> A;"), 6, "type 'TScriptInterface<UA>' is not known to reflection" },
		{ InClass("UPROPERTY() std::string A;"), 6, "type 'std::string' is not known to reflection" },
		{ InClass("UPROPERTY() int32* A;"), 6, "type 'int32*' is not known to reflection" },
		{ InClass("UPROPERTY() UA A;"), 6, "type 'UA' is not known to reflection" },
		{ InClass("UPROPERTY() UA** A;"), 6, "type 'UA**' is not known to reflection" },
		{ InClass("UPROPERTY() int32 A[4][2];"), 6, "property A: an array of arrays is not known to reflection" },
		{ InClass("UPROPERTY() TArray<int32> A[4];"), 6, "property A: an array of fixed size of containers is not known to reflection" },
		{ InClass("UPROPERTY() int32 A : 1;"), 6, "property A: a bit field must be uint8, uint32 or bool and one bit wide" },
		{ InClass("UPROPERTY() uint8 A : 2;"), 6, "property A: a bit field must be uint8, uint32 or bool and one bit wide" },
		{ InClass("UPROPERTY() int32 A, B;"), 6, "one UPROPERTY declares one property" },
		{ InClass("UPROPERTY() static int32 A;"), 6, "a static member cannot be a property" },
		{ InClass("UPROPERTY() const int32 A;"), 6, "property A must be neither const nor a reference" },
		{ InClass("UPROPERTY() int32 A; UPROPERTY() float A;"), 6, "property A is declared twice" },
		{ InClass("UPROPERTY() int32 A"), 7, "expected ';' before '}'" },
		{ InClass("UPROPERTY(EditEverywhere) int32 A;"), 6, "unknown property specifier 'EditEverywhere'" },
		{ InClass("UPROPERTY(meta) int32 A;"), 6, "meta needs a list: meta=(...)" },
		{ InClass("UPROPERTY(Category=) int32 A;"), 6, "expected a value" },
		{ InClass("UPROPERTY(Config EditAnywhere) int32 A;"), 6, "expected ',' before 'EditAnywhere'" },
		{ InClass("UPROPERTY( int32 A;"), 6, "unknown property specifier 'int32'" },
		{ InClass("UFUNCTION() void A(TFunction<int32> B);"), 6, "type 'TFunction' is not known to reflection" },
		{ InClass("UFUNCTION(BlueprintNativeEvent) static void A();"), 6, "function A is an event and cannot be static" },
		{ InClass("UFUNCTION() void A(UPARAM(out) int32 B);"), 6, "unknown parameter specifier 'out'" },
		{ InClass("UFUNCTION(Server) void A();"), 6, "unknown function specifier 'Server'" },
		{ InClass("GENERATED_BODY()"), 6, "UA has two GENERATED_BODY()" },
		{ InClass("struct FB { UPROPERTY() int32 A; };"), 6, "UPROPERTY where the header tool cannot read it" },
		{ InClass("FString A = TEXT(\"open;"), 6, "string without end" },
		{ InClass("/* open"), 6, "comment without end" },
		{ InClass("#if WITH_EDITOR"), 6, "#if without #endif" },
		{ InClass("#endif"), 6, "#endif without #if" },
		{ Include + "UCLASS()\nclass UA : public UObject\n{\n};", 3, "UA has no GENERATED_BODY()" },
		{ Include + "UCLASS()\nclass UA : public UObject\n{\nGENERATED_BODY()\n", 4, "the body of UA has no end" },
		{ Include + "UCLASS()\nclass UA\n{ GENERATED_BODY() };", 3, "class UA needs a super class" },
		{ Include + "UCLASS()\nclass A : public UObject { GENERATED_BODY() };", 3, "the name 'A' must begin with 'U' or 'A'" },
		{ Include + "USTRUCT()\nstruct Item { GENERATED_BODY() };", 3, "the name 'Item' must begin with 'F'" },
		{ Include + "UENUM()\nenum Mode : uint8 { A };", 3, "the name 'Mode' must begin with 'E'" },
		{ Include + "UENUM()\nenum EMode { A };", 3, "enum EMode needs a type: enum class EMode : uint8" },
		{ Include + "UENUM()\nenum class EMode : uint8 { A B };", 3, "expected ',' before 'B'" },
		{ Include + "UENUM()\nenum class EMode : uint8 { A\n", 4, "expected ',' before the end of the file" },
		{ Include + "UCLASS()\nstruct UA {};", 3, "expected 'class' before 'struct'" },
		{ Include + "UCLASS()\nclass UA;", 2, "UCLASS over a declaration without body" },
		{ Include + "UCLASS(Config)\nclass UA {};", 2, "Config needs the name of an ini file: Config=Game" },
		{ Include + "namespace Game {\nUENUM()\nenum class EMode { A };\n}", 3, "UENUM where the header tool cannot read it" },
		{ Include + "\nUPROPERTY()\nint32 A;", 3, "UPROPERTY outside of a reflected class or struct" },
		{ Include + "UINTERFACE()\nclass UA : public UInterface { GENERATED_BODY() };", 3, "interface UA needs its class IA behind it" },
		{ Include + "UINTERFACE()\nclass UA : public UInterface { GENERATED_BODY() };\nclass IA {};", 4, "IA has no GENERATED_BODY()" },
		{ Include + "DECLARE_DYNAMIC_DELEGATE(OnA);", 2, "the name 'OnA' must begin with 'F'" },
		{ Include + "DECLARE_DYNAMIC_DELEGATE_OneParam(FOnA, int32);", 2, "expected ',' before ')'" },
		{ Include + "UENUM()\nnamespace EMode { enum Kind : int { A }; }", 3, "the enum in namespace EMode must be called 'Type'" },
		{ "#include \"A.generated.h\"\n#include \"B.h\"\nUENUM()\nenum class EMode { A };", 2,
			"the last include must be \"A.generated.h\"" },
		{ "UENUM()\nenum class EMode { A };", 1, "the last include must be \"A.generated.h\"" },
	};
	for (const Case& Each : Cases)
	{
		SCOPED_TRACE(Each.Source);
		try
		{
			ParseHeader(Each.Source, "A.h");
			ADD_FAILURE() << "not refused, expected: " << Each.Message;
		}
		catch (const SourceError& Error)
		{
			EXPECT_EQ(Error.Line, Each.Line);
			EXPECT_STREQ(Error.what(), Each.Message);
		}
	}
}
