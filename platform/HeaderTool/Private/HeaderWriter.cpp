#include "Writer.h"

namespace
{
std::string Forward(const Enum& Type)
{
	std::string Text = Type.bScoped ? "enum class " : "enum ";
	Text += Type.Name;
	Text += Type.Underlying.empty() ? "" : " : " + Type.Underlying;
	Text += ";\n";
	Text += "DLLEXPORT UEnum* Z_Construct_UEnum_" + Type.Name + "();\n";
	Text += "template <>\nDLLEXPORT UEnum* StaticEnum<" + Type.Name + ">();\n\n";
	return Text;
}

std::string Constructor(const Class& Type)
{
	const bool bTakes = Type.bTakesInitializer;
	return std::string("static void __DefaultConstructor(void* Memory, const FObjectInitializer&") + (bTakes ? " Initializer" : "") +
		") { new (Memory) " + Type.Name + (bTakes ? "(Initializer)" : "()") + "; }";
}

std::string ClassBody(const Class& Type)
{
	std::vector<std::string> Lines{ "private:", "\tfriend struct Z_Construct_UClass_" + Type.Name + "_Statics;" };
	for (const Function& Each : Type.Functions)
	{
		Lines.push_back("\tstatic void exec" + Each.Name + "(UObject* Context, void* Parms);");
	}
	Lines.push_back("public:");
	Lines.push_back("\tusing Super = " + Type.Super + ";");
	Lines.push_back("\tusing ThisClass = " + Type.Name + ";");
	Lines.push_back("\tstatic UClass* StaticClass() { return Z_Construct_UClass_" + Type.Name + "(); }");
	if (!Type.Config.empty())
	{
		Lines.push_back("\tstatic const TCHAR* StaticConfigName() { return TEXT(" + Quote(Type.Config) + "); }");
	}
	Lines.push_back("\t" + Constructor(Type));
	Lines.push_back("private:");
	std::string Text;
	for (const std::string& Line : Lines)
	{
		Text += " \\\n" + Line;
	}
	return Text;
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

std::string Body(const std::string& FileId, const Class& Type, const std::string& Text)
{
	return "#define " + FileId + "_" + std::to_string(Type.BodyLine) + "_GENERATED_BODY" + Text + "\n\n";
}
}

std::string WriteGeneratedHeader(const Header& Source, const std::string& Module)
{
	const std::string FileId = "FID_" + Module + "_" + Source.Stem + "_h";
	std::string Text = "// Written by the header tool from " + Source.Include + "; changes made here are lost.\n#pragma once\n\n";
	// As from the engine's, one can make and look at objects from here on.
	Text += Source.Classes.empty() ? "#include \"UObject/ObjectMacros.h\"\n\n" : "#include \"UObject/UObjectGlobals.h\"\n\n";
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
		Text += Body(FileId, Type, StructBody(Type));
	}
	for (const Class& Type : Source.Classes)
	{
		Text += Body(FileId, Type, ClassBody(Type));
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
