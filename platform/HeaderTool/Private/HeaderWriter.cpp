#include "Signatures.h"
#include "Writer.h"

namespace
{
std::string Forward(const Enum& Type)
{
	const bool bNamespace = Type.Cpp != Type.Name;
	std::string Text = bNamespace ? "namespace " + Type.Name + "\n{\nenum Type" : (Type.bScoped ? "enum class " : "enum ") + Type.Name;
	Text += Type.Underlying.empty() ? "" : " : " + Type.Underlying;
	Text += bNamespace ? ";\n}\n" : ";\n";
	Text += "DLLEXPORT UEnum* Z_Construct_UEnum_" + Type.Name + "();\n";
	Text += "template <>\nDLLEXPORT UEnum* StaticEnum<" + Type.Cpp + ">();\n\n";
	return Text;
}

std::string Constructor(const Class& Type)
{
	const bool bTakes = Type.bTakesInitializer;
	return std::string("static void __DefaultConstructor(void* Memory, const FObjectInitializer&") + (bTakes ? " Initializer" : "") +
		") { new (Memory) " + Type.Name + (bTakes ? "(Initializer)" : "()") + "; }";
}

std::string JoinLines(const std::vector<std::string>& Lines)
{
	std::string Text;
	for (const std::string& Line : Lines)
	{
		Text += " \\\n" + Line;
	}
	return Text;
}

// The functions through which reflection calls.
void AddThunks(const Class& Type, std::vector<std::string>& Lines)
{
	for (const Function& Each : Type.Functions)
	{
		if (Each.IsNative())
		{
			Lines.push_back("\tstatic void exec" + Each.Name + "(UObject* Context, void* Parms);");
		}
	}
}

std::string ClassBody(const Class& Type)
{
	std::vector<std::string> Lines{ "private:", "\tfriend struct Z_Construct_UClass_" + Type.Name + "_Statics;" };
	if (!Type.IsInterface())
	{
		AddThunks(Type, Lines);
	}
	Lines.push_back("public:");
	Lines.push_back("\tusing Super = " + Type.Super + ";");
	Lines.push_back("\tusing ThisClass = " + Type.Name + ";");
	Lines.push_back("\tstatic UClass* StaticClass() { return Z_Construct_UClass_" + Type.Name + "(); }");
	for (const Function& Each : Type.Functions)
	{
		const std::string Implementation = Each.Name + "_Implementation";
		if (!Type.IsInterface() && Each.IsEvent() && Each.IsNative() && !Type.Implementations.contains(Implementation))
		{
			Lines.push_back("\tvirtual " + Declare(Each, Implementation) + ";");
		}
	}
	if (!Type.Config.empty())
	{
		Lines.push_back("\tstatic const TCHAR* StaticConfigName() { return TEXT(" + Quote(Type.Config) + "); }");
	}
	Lines.push_back("\t" + Constructor(Type));
	Lines.push_back("private:");
	return JoinLines(Lines);
}

// Of the class "I...".
std::string InterfaceBody(const Class& Type)
{
	const std::string Owner = Type.GetFunctionOwner();
	std::vector<std::string> Lines{ "private:", "\tfriend struct Z_Construct_UClass_" + Type.Name + "_Statics;" };
	AddThunks(Type, Lines);
	Lines.push_back("public:");
	Lines.push_back("\tvirtual ~" + Owner + "() = default;");
	Lines.push_back("\tusing UClassType = " + Type.Name + ";");
	Lines.push_back("\tusing ThisClass = " + Owner + ";");
	for (const Function& Each : Type.Functions)
	{
		const std::string Implementation = Each.Name + "_Implementation";
		if (!Each.IsEvent())
		{
			continue;
		}
		Lines.push_back("\tstatic " + DeclareExecute(Each) + ";");
		if (Each.IsNative() && !Type.Implementations.contains(Implementation))
		{
			Lines.push_back("\tvirtual " + Declare(Each, Implementation) + (Each.bReturns ? " { return {}; }" : " {}"));
		}
	}
	Lines.push_back("private:");
	return JoinLines(Lines);
}

std::string StructBody(const Class& Type)
{
	std::string Text = " \\\n\tfriend struct Z_Construct_UScriptStruct_" + Type.Name + "_Statics;";
	if (!Type.Super.empty())
	{
		Text += " \\\n\tusing Super = " + Type.Super + ";";
	}
	return Text + " \\\n\tstatic UScriptStruct* StaticStruct() { return Z_Construct_UScriptStruct_" + Type.Name + "(); }";
}

std::string Body(const std::string& FileId, int Line, const std::string& Text)
{
	return "#define " + FileId + "_" + std::to_string(Line) + "_GENERATED_BODY" + Text + "\n\n";
}

std::vector<const Delegate*> GetDelegates(const Header& Source)
{
	std::vector<const Delegate*> All;
	for (const Delegate& Each : Source.Delegates)
	{
		All.push_back(&Each);
	}
	for (const Class& Type : Source.Classes)
	{
		for (const Delegate& Each : Type.Delegates)
		{
			All.push_back(&Each);
		}
	}
	return All;
}
}

std::string WriteGeneratedHeader(const Header& Source, const std::string& Module)
{
	const std::string FileId = "FID_" + Module + "_" + Source.Stem + "_h";
	std::string Text = "// Written by the header tool from " + Source.Include + "; changes made here are lost.\n#pragma once\n\n";
	// As from the engine's, one can make and look at objects from here on.
	Text += Source.Classes.empty() ? "#include \"UObject/ObjectMacros.h\"\n" : "#include \"UObject/UObjectGlobals.h\"\n";
	Text += GetDelegates(Source).empty() ? "\n" : "#include \"UObject/ScriptDelegates.h\"\n\n";
	for (const Delegate* const Each : GetDelegates(Source))
	{
		Text += "DLLEXPORT UFunction* Z_Construct_UDelegateFunction_" + Each->Name + "();\n\n";
	}
	for (const Enum& Type : Source.Enums)
	{
		Text += Forward(Type);
	}
	for (const Class& Type : Source.Structs)
	{
		Text += "struct " + Type.Name + ";\nDLLEXPORT UScriptStruct* Z_Construct_UScriptStruct_" + Type.Name + "();\n\n";
	}
	for (const Class& Type : Source.Classes)
	{
		Text += "class " + Type.Name + ";\nDLLEXPORT UClass* Z_Construct_UClass_" + Type.Name + "();\n\n";
	}
	Text += "#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " + FileId + "\n\n";
	for (const Class& Type : Source.Structs)
	{
		Text += Body(FileId, Type.BodyLine, StructBody(Type));
	}
	for (const Class& Type : Source.Classes)
	{
		Text += Body(FileId, Type.BodyLine, ClassBody(Type));
		if (Type.IsInterface())
		{
			Text += Body(FileId, Type.InterfaceBodyLine, InterfaceBody(Type));
		}
	}
	return Text;
}

std::string Quote(const std::string& Text)
{
	std::string Result = "\"";
	for (const char C : Text)
	{
		const auto Byte = static_cast<unsigned char>(C);
		if (C == '"' || C == '\\' || C == '?')
		{
			Result += '\\';
			Result += C;
		}
		else if (Byte < 0x20 || Byte >= 0x7F)
		{
			Result += '\\';
			Result += static_cast<char>('0' + (Byte >> 6));
			Result += static_cast<char>('0' + ((Byte >> 3) & 7));
			Result += static_cast<char>('0' + (Byte & 7));
		}
		else
		{
			Result += C;
		}
	}
	return Result + "\"";
}
