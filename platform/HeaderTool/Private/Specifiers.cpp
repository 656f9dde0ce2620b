#include "Specifiers.h"

#include "SourceError.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace
{
// One word of a macro's brackets: the flags it sets, the metadata key it stands for, either or both.
struct Word
{
	std::string_view Name; // Lower case.
	std::string_view Flags;
	std::string_view MetaKey;
	std::string_view MetaValue = "true"; // For a word that comes without a value.
};

constexpr Word ClassWords[] = {
	{ "abstract", "CLASS_Abstract", "" },
	{ "autocollapsecategories", "", "AutoCollapseCategories" },
	{ "autoexpandcategories", "", "AutoExpandCategories" },
	{ "blueprintable", "", "IsBlueprintBase" },
	{ "blueprinttype", "", "BlueprintType" },
	{ "classgroup", "", "ClassGroupNames" },
	{ "collapsecategories", "CLASS_CollapseCategories", "" },
	{ "config", "CLASS_Config", "" },
	{ "const", "CLASS_Const", "" },
	{ "defaultconfig", "CLASS_DefaultConfig", "" },
	{ "defaulttoinstanced", "CLASS_DefaultToInstanced", "" },
	{ "deprecated", "CLASS_Deprecated", "" },
	{ "displayname", "", "DisplayName" },
	{ "editinlinenew", "CLASS_EditInlineNew", "" },
	{ "experimental", "", "DevelopmentStatus", "Experimental" },
	{ "hidecategories", "", "HideCategories" },
	{ "hidedropdown", "CLASS_HideDropDown", "" },
	{ "hidefunctions", "", "HideFunctions" },
	{ "minimalapi", "CLASS_MinimalAPI", "" },
	{ "notblueprintable", "", "IsBlueprintBase", "false" },
	{ "noteditinlinenew", "", "" },
	{ "notplaceable", "CLASS_NotPlaceable", "" },
	{ "perobjectconfig", "CLASS_PerObjectConfig", "" },
	{ "placeable", "", "" },
	{ "showcategories", "", "ShowCategories" },
	{ "transient", "CLASS_Transient", "" },
	{ "within", "", "ClassWithin" },
};

constexpr Word TypeWords[] = {
	{ "atomic", "", "" },
	{ "blueprinttype", "", "BlueprintType" },
	{ "displayname", "", "DisplayName" },
};

constexpr Word EnumeratorWords[] = {
	{ "displayname", "", "DisplayName" },
	{ "hidden", "", "Hidden", "" },
	{ "tooltip", "", "ToolTip" },
};

constexpr Word PropertyWords[] = {
	{ "advanceddisplay", "CPF_AdvancedDisplay", "" },
	{ "assetregistrysearchable", "CPF_AssetRegistrySearchable", "" },
	{ "blueprintassignable", "CPF_BlueprintAssignable", "" },
	{ "blueprintauthorityonly", "CPF_BlueprintAuthorityOnly", "" },
	{ "blueprintcallable", "CPF_BlueprintCallable", "" },
	{ "blueprintgetter", "CPF_BlueprintVisible | CPF_BlueprintReadOnly", "BlueprintGetter" },
	{ "blueprintreadonly", "CPF_BlueprintVisible | CPF_BlueprintReadOnly", "" },
	{ "blueprintreadwrite", "CPF_BlueprintVisible", "" },
	{ "blueprintsetter", "CPF_BlueprintVisible", "BlueprintSetter" },
	{ "category", "", "Category" },
	{ "config", "CPF_Config", "" },
	{ "displayname", "", "DisplayName" },
	{ "duplicatetransient", "CPF_DuplicateTransient", "" },
	{ "editanywhere", "CPF_Edit", "" },
	{ "editdefaultsonly", "CPF_Edit | CPF_DisableEditOnInstance", "" },
	{ "editfixedsize", "CPF_EditFixedSize", "" },
	{ "editinstanceonly", "CPF_Edit | CPF_DisableEditOnTemplate", "" },
	{ "export", "CPF_ExportObject", "" },
	{ "globalconfig", "CPF_Config | CPF_GlobalConfig", "" },
	{ "instanced", "CPF_ExportObject | CPF_InstancedReference | CPF_PersistentInstance", "EditInline" },
	{ "interp", "CPF_Edit | CPF_BlueprintVisible | CPF_Interp", "" },
	{ "noclear", "CPF_NoClear", "" },
	{ "nonpieduplicatetransient", "CPF_NonPIEDuplicateTransient", "" },
	{ "nontransactional", "CPF_NonTransactional", "" },
	{ "replicated", "CPF_Net", "" },
	{ "replicatedusing", "CPF_Net | CPF_RepNotify", "ReplicatedUsing" },
	{ "savegame", "CPF_SaveGame", "" },
	{ "simpledisplay", "CPF_SimpleDisplay", "" },
	{ "skipserialization", "CPF_SkipSerialization", "" },
	{ "textexporttransient", "CPF_TextExportTransient", "" },
	{ "transient", "CPF_Transient", "" },
	{ "visibleanywhere", "CPF_Edit | CPF_EditConst", "" },
	{ "visibledefaultsonly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnInstance", "" },
	{ "visibleinstanceonly", "CPF_Edit | CPF_EditConst | CPF_DisableEditOnTemplate", "" },
};

constexpr Word FunctionWords[] = {
	{ "blueprintauthorityonly", "FUNC_BlueprintAuthorityOnly", "" },
	{ "blueprintcallable", "FUNC_BlueprintCallable", "" },
	{ "blueprintcosmetic", "FUNC_BlueprintCosmetic", "" },
	{ "blueprintgetter", "FUNC_BlueprintCallable | FUNC_BlueprintPure", "BlueprintGetter", "" },
	{ "blueprintimplementableevent", "FUNC_Event | FUNC_BlueprintEvent", "" },
	{ "blueprintinternaluseonly", "", "BlueprintInternalUseOnly" },
	{ "blueprintnativeevent", "FUNC_Native | FUNC_Event | FUNC_BlueprintEvent", "" },
	{ "blueprintpure", "FUNC_BlueprintCallable | FUNC_BlueprintPure", "" },
	{ "blueprintsetter", "FUNC_BlueprintCallable", "BlueprintSetter", "" },
	{ "callineditor", "", "CallInEditor" },
	{ "category", "", "Category" },
	{ "displayname", "", "DisplayName" },
	{ "exec", "FUNC_Exec", "" },
};

constexpr Word ParameterWords[] = {
	{ "displayname", "", "DisplayName" },
	{ "ref", "CPF_ReferenceParm", "" },
	{ "required", "CPF_RequiredParm", "" },
};

std::span<const Word> GetWords(SpecifierSet Set)
{
	switch (Set)
	{
	case SpecifierSet::Class: return ClassWords;
	case SpecifierSet::Struct:
	case SpecifierSet::Enum: return TypeWords;
	case SpecifierSet::Enumerator: return EnumeratorWords;
	case SpecifierSet::Property: return PropertyWords;
	case SpecifierSet::Function: return FunctionWords;
	case SpecifierSet::Parameter: return ParameterWords;
	}
	return {};
}

std::string_view GetSetName(SpecifierSet Set)
{
	static constexpr std::string_view Names[] = { "class", "struct", "enum", "enumerator", "property", "function", "parameter" };
	return Names[static_cast<size_t>(Set)];
}

std::string ToLower(std::string Text)
{
	std::ranges::transform(Text, Text.begin(), [](unsigned char C) { return static_cast<char>(std::tolower(C)); });
	return Text;
}

// A value up to the next comma or closing bracket: adjacent strings join, other tokens (1.5, A|B) keep their spelling.
std::string ReadValue(Cursor& Tokens)
{
	std::string Value;
	const int Line = Tokens.GetLine();
	bool bAny = false;
	while (!Tokens.Peek().Is(",") && !Tokens.Peek().Is(")"))
	{
		if (Tokens.AtEnd() || Tokens.Peek().Is("("))
		{
			throw SourceError(Tokens.GetLine(), "expected a value");
		}
		Value += Tokens.Take().Text;
		bAny = true;
	}
	if (!bAny)
	{
		throw SourceError(Line, "expected a value");
	}
	return Value;
}

// "(A, B)" becomes "A B".
std::string ReadList(Cursor& Tokens)
{
	std::string List;
	Tokens.Expect("(");
	while (!Tokens.TakeIf(")"))
	{
		List += List.empty() ? "" : " ";
		List += ReadValue(Tokens);
		if (!Tokens.Peek().Is(")"))
		{
			Tokens.Expect(",");
		}
	}
	return List;
}

void ReadMetaList(Cursor& Tokens, MetaData& Meta)
{
	Tokens.Expect("(");
	while (!Tokens.TakeIf(")"))
	{
		const std::string Key = Tokens.ExpectIdentifier("the name of a metadata key");
		Meta.Set(Key, Tokens.TakeIf("=") ? ReadValue(Tokens) : std::string());
		if (!Tokens.Peek().Is(")"))
		{
			Tokens.Expect(",");
		}
	}
}

void ReadWord(Cursor& Tokens, SpecifierSet Set, Specifiers& Result)
{
	const int Line = Tokens.GetLine();
	const std::string Spelling = Tokens.ExpectIdentifier("a specifier");
	const std::string Name = ToLower(Spelling);
	const bool bValue = Tokens.TakeIf("=");
	if (Name == "meta")
	{
		if (!bValue)
		{
			throw SourceError(Line, "meta needs a list: meta=(...)");
		}
		ReadMetaList(Tokens, Result.Meta);
		return;
	}
	const std::span<const Word> Words = GetWords(Set);
	const auto Found = std::ranges::find(Words, Name, &Word::Name);
	if (Found == Words.end())
	{
		throw SourceError(Line, "unknown " + std::string(GetSetName(Set)) + " specifier '" + Spelling + "'");
	}
	const std::string Value = !bValue ? std::string(Found->MetaValue) : Tokens.Peek().Is("(") ? ReadList(Tokens) : ReadValue(Tokens);
	AddFlags(Result.Flags, Found->Flags);
	if (!Found->MetaKey.empty())
	{
		Result.Meta.Set(std::string(Found->MetaKey), Value);
	}
	if (Set == SpecifierSet::Class && Name == "config")
	{
		if (!bValue)
		{
			throw SourceError(Line, "Config needs the name of an ini file: Config=Game");
		}
		Result.Config = Value;
	}
}

std::string_view Trim(std::string_view Text)
{
	const size_t Begin = Text.find_first_not_of(" \t\r");
	const size_t End = Text.find_last_not_of(" \t\r");
	return Begin == std::string_view::npos ? std::string_view() : Text.substr(Begin, End - Begin + 1);
}

std::string_view StripMarkers(std::string_view Line)
{
	Line = Trim(Line);
	for (const std::string_view Marker : { "/**", "/*", "///", "//" })
	{
		if (Line.starts_with(Marker))
		{
			Line.remove_prefix(Marker.size());
			break;
		}
	}
	if (Line.ends_with("*/"))
	{
		Line.remove_suffix(2);
	}
	Line = Trim(Line);
	while (Line.starts_with("*"))
	{
		Line.remove_prefix(1);
	}
	Line = Trim(Line);
	return Line.find_first_not_of("-=*/ ") == std::string_view::npos ? std::string_view() : Line;
}
}

void AddFlags(std::string& Flags, std::string_view Added)
{
	if (!Added.empty())
	{
		Flags += Flags.empty() ? "" : " | ";
		Flags += Added;
	}
}

Specifiers ReadSpecifiers(Cursor& Tokens, SpecifierSet Set, const std::string& Comment)
{
	Specifiers Result;
	const std::string ToolTip = CleanComment(Comment);
	if (!ToolTip.empty())
	{
		Result.Meta.Set("ToolTip", ToolTip);
	}
	Tokens.Expect("(");
	while (!Tokens.TakeIf(")"))
	{
		ReadWord(Tokens, Set, Result);
		if (!Tokens.Peek().Is(")"))
		{
			Tokens.Expect(",");
		}
	}
	return Result;
}

std::string CleanComment(std::string_view Comment)
{
	std::string Text;
	size_t Begin = 0;
	while (Begin <= Comment.size())
	{
		const size_t End = std::min(Comment.find('\n', Begin), Comment.size());
		Text += StripMarkers(Comment.substr(Begin, End - Begin));
		Text += '\n';
		Begin = End + 1;
	}
	const size_t First = Text.find_first_not_of('\n');
	return First == std::string::npos ? std::string() : Text.substr(First, Text.find_last_not_of('\n') - First + 1);
}
