#include "Writer.h"

#include <set>

namespace
{
// How the function is called that gives a reflected type's object: Z_Construct_<Kind>_<Name>.
struct Reference
{
	const char* Field; // Of FPropertyInfo.
	const char* Kind;
};

constexpr Reference ClassReference{ "Class", "UClass" };
constexpr Reference StructReference{ "Struct", "UScriptStruct" };
constexpr Reference EnumReference{ "Enum", "UEnum" };

const Reference& GetReference(const PropertyType& Type)
{
	return Type.Kind == "Struct" ? StructReference : Type.Kind == "Enum" || Type.Kind == "Byte" ? EnumReference : ClassReference;
}

std::string ConstructName(const Reference& Kind, const std::string& Type)
{
	return std::string("Z_Construct_") + Kind.Kind + "_" + Type;
}

class SourceWriter
{
public:
	SourceWriter(const std::vector<Header>& InHeaders, const std::string& InModule)
		: Headers(InHeaders)
		, Module(InModule)
	{
	}

	std::string Run()
	{
		Text = "// Written by the header tool from the headers of " + Module + "; changes made here are lost.\n\n";
		for (const Header& Each : Headers)
		{
			Text += "#include \"" + Each.Include + "\"\n";
		}
		Text += "#include \"UObject/GeneratedCode.h\"\n\n";
		Text += "#include <cstddef>\n\n";
		Text += "// Reflected types are no plain structs, yet both compilers place their members as they do those of one.\n";
		Text += "#pragma GCC diagnostic ignored \"-Winvalid-offsetof\"\n\n";
		WriteDeclarations();
		for (const Header& Each : Headers)
		{
			WriteTypes(Each);
		}
		WriteRegistration();
		return std::move(Text);
	}

private:
	void WriteTypes(const Header& Source)
	{
		for (const Enum& Type : Source.Enums)
		{
			WriteEnum(Type);
		}
		for (const Class& Type : Source.Structs)
		{
			WriteStruct(Type);
		}
		for (const Class& Type : Source.Classes)
		{
			WriteClass(Type);
		}
	}

	void Declare(const Reference& Kind, const std::string& Type)
	{
		if (!Type.empty() && Declared.insert(Type).second)
		{
			Text += std::string("DLLEXPORT ") + Kind.Kind + "* " + ConstructName(Kind, Type) + "();\n";
		}
	}

	void Declare(const PropertyType& Type)
	{
		Declare(GetReference(Type), Type.Referred);
		for (const PropertyType& Inner : Type.Inner)
		{
			Declare(Inner);
		}
	}

	void DeclareAll(const Class& Type, const Reference& SuperKind)
	{
		Declare(SuperKind, Type.Super);
		for (const Property& Each : Type.Properties)
		{
			Declare(Each.Type);
		}
		for (const Function& Each : Type.Functions)
		{
			for (const Property& Parameter : Each.Parameters)
			{
				Declare(Parameter.Type);
			}
		}
	}

	// Types that other headers define, this module's or another's.
	void WriteDeclarations()
	{
		for (const Header& Each : Headers)
		{
			for (const Class& Type : Each.Structs)
			{
				DeclareAll(Type, StructReference);
			}
			for (const Class& Type : Each.Classes)
			{
				DeclareAll(Type, ClassReference);
			}
		}
		Text += "\n";
	}

	// The table's name for a member; the type's own has one that no member's can be.
	static std::string MetaName(const std::string& Member) { return Member.empty() ? "TypeMeta" : Member + "_Meta"; }

	void WriteMeta(const std::string& Member, const MetaData& Meta)
	{
		if (Meta.GetPairs().empty())
		{
			return;
		}
		Text += "\tstatic constexpr UECodeGen::FMetaDataPair " + MetaName(Member) + "[] = {\n";
		for (const auto& [Key, Value] : Meta.GetPairs())
		{
			Text += "\t\t{ " + Quote(Key) + ", " + Quote(Value) + " },\n";
		}
		Text += "\t};\n";
	}

	static std::string MetaField(const std::string& Member, const MetaData& Meta)
	{
		return Meta.GetPairs().empty() ? "" : ", .MetaData = " + MetaName(Member);
	}

	static std::string TypeFields(const PropertyType& Type)
	{
		std::string Fields = ", .Kind = UECodeGen::EPropertyKind::" + Type.Kind;
		if (Type.Kind == "Enum")
		{
			Fields += ", .Size = sizeof(" + Type.Cpp + ")";
		}
		if (!Type.Referred.empty())
		{
			const Reference& Kind = GetReference(Type);
			Fields += std::string(", .") + Kind.Field + " = &" + ConstructName(Kind, Type.Referred);
		}
		return Fields;
	}

	// Owner is the C++ type that the properties are members of, Prefix keeps names of one function's apart from the others'.
	void WriteProperties(const std::string& Owner, const std::string& Prefix, const std::vector<Property>& Properties)
	{
		if (Properties.empty())
		{
			return;
		}
		for (const Property& Each : Properties)
		{
			const std::string Name = Prefix + Each.Name;
			WriteMeta(Name, Each.Meta);
			if (!Each.Type.Inner.empty())
			{
				Text += "\tstatic constexpr UECodeGen::FPropertyInfo " + Name + "_Inner{ .Name = " + Quote(Each.Name) +
					TypeFields(Each.Type.Inner[0]) + " };\n";
			}
			if (Each.bBitField)
			{
				Text += "\tUE_NO_SANITIZE static void " + Name + "_SetBit(void* Memory) { static_cast<" + Owner + "*>(Memory)->" +
					Each.Name + " = 1; }\n";
			}
		}
		Text += "\tstatic constexpr UECodeGen::FPropertyInfo " + Prefix + "Properties[] = {\n";
		for (const Property& Each : Properties)
		{
			Text += "\t\t{ .Name = " + Quote(Each.Name) + PropertyFields(Owner, Prefix + Each.Name, Each) + " },\n";
		}
		Text += "\t};\n";
	}

	static std::string PropertyFields(const std::string& Owner, const std::string& Name, const Property& Each)
	{
		std::string Fields = TypeFields(Each.Type);
		Fields += Each.Flags.empty() ? "" : ", .Flags = " + Each.Flags;
		Fields += Each.bBitField ? ", .SetBit = &" + Name + "_SetBit, .OwnerSize = sizeof(" + Owner + ")"
								 : ", .Offset = offsetof(" + Owner + ", " + Each.Name + ")";
		Fields += Each.Type.Inner.empty() ? "" : ", .Inner = &" + Name + "_Inner";
		return Fields + MetaField(Name, Each.Meta);
	}

	void WriteEnum(const Enum& Type)
	{
		const std::string Construct = ConstructName(EnumReference, Type.Name);
		Text += "struct " + Construct + "_Statics\n{\n";
		WriteMeta("", Type.Meta);
		for (const Enumerator& Each : Type.Enumerators)
		{
			WriteMeta(Each.Name, Each.Meta);
		}
		if (!Type.Enumerators.empty())
		{
			Text += "\tstatic constexpr UECodeGen::FEnumeratorInfo Enumerators[] = {\n";
			for (const Enumerator& Each : Type.Enumerators)
			{
				Text += "\t\t{ .Name = " + Quote(Each.Name) + ", .Value = static_cast<int64>(" + Type.Name + "::" + Each.Name + ")" +
					MetaField(Each.Name, Each.Meta) + " },\n";
			}
			Text += "\t};\n";
		}
		Text += "\tstatic constexpr UECodeGen::FEnumInfo Info{ .Package = " + Quote("/Script/" + Module) + ", .Name = " + Quote(Type.Name) +
			", .bScoped = " + (Type.bScoped ? "true" : "false") + (Type.Enumerators.empty() ? "" : ", .Enumerators = Enumerators") +
			MetaField("", Type.Meta) + " };\n};\n\n";
		WriteConstruct(EnumReference, Type.Name);
		Text += "template <>\nUEnum* StaticEnum<" + Type.Name + ">()\n{\n\treturn " + Construct + "();\n}\n\n";
		Enums.push_back(Construct);
	}

	void WriteConstruct(const Reference& Kind, const std::string& Type)
	{
		const std::string Construct = ConstructName(Kind, Type);
		Text += std::string(Kind.Kind) + "* " + Construct + "()\n{\n\tstatic " + Kind.Kind +
			"* Made = nullptr;\n\treturn UECodeGen::Construct(Made, " + Construct + "_Statics::Info);\n}\n\n";
	}

	// The part of the Info that classes and structs share. A type's name in reflection has no prefix.
	std::string TypeInfo(const Class& Type, const Reference& Kind) const
	{
		std::string Fields = ".Package = " + Quote("/Script/" + Module) + ", .Name = " + Quote(Type.Name.substr(1)) + ", .Size = sizeof(" +
			Type.Name + "), .Alignment = alignof(" + Type.Name + ")";
		Fields += Type.Super.empty() ? "" : ", .Super = &" + ConstructName(Kind, Type.Super);
		Fields += Type.Properties.empty() ? "" : ", .Properties = Properties";
		return Fields + MetaField("", Type.Meta);
	}

	void WriteStruct(const Class& Type)
	{
		const std::string Construct = ConstructName(StructReference, Type.Name);
		Text += "struct " + Construct + "_Statics\n{\n";
		WriteMeta("", Type.Meta);
		WriteProperties(Type.Name, "", Type.Properties);
		Text += "\tstatic constexpr UECodeGen::FStructInfo Info{ .Type = { " + TypeInfo(Type, StructReference) +
			" }, .Ops = &UECodeGen::TStructOps<" + Type.Name + ">::Ops };\n};\n\n";
		WriteConstruct(StructReference, Type.Name);
		Structs.push_back(Construct);
	}

	void WriteClass(const Class& Type)
	{
		const std::string Construct = ConstructName(ClassReference, Type.Name);
		Text += "struct " + Construct + "_Statics\n{\n";
		WriteMeta("", Type.Meta);
		WriteProperties(Type.Name, "", Type.Properties);
		for (const Function& Each : Type.Functions)
		{
			WriteFunctionTables(Each);
		}
		WriteFunctionList(Type);
		Text += "\tstatic constexpr UECodeGen::FClassInfo Info{ .Type = { " + TypeInfo(Type, ClassReference) + " }";
		Text += Type.Flags.empty() ? "" : ", .Flags = " + Type.Flags;
		Text += Type.Config.empty() ? "" : ", .Config = " + Quote(Type.Config);
		Text += Type.Functions.empty() ? "" : ", .Functions = Functions";
		Text += ", .Constructor = &" + Type.Name + "::__DefaultConstructor };\n};\n\n";
		WriteConstruct(ClassReference, Type.Name);
		for (const Function& Each : Type.Functions)
		{
			WriteThunk(Type, Construct, Each);
		}
		Classes.push_back(Construct);
	}

	void WriteFunctionTables(const Function& Each)
	{
		WriteMeta(Each.Name, Each.Meta);
		if (Each.Parameters.empty())
		{
			return;
		}
		const std::string Parms = Each.Name + "_Parms";
		Text += "\tstruct " + Parms + "\n\t{\n";
		for (const Property& Parameter : Each.Parameters)
		{
			Text += "\t\t" + Parameter.Type.Cpp + " " + Parameter.Name + ";\n";
		}
		Text += "\t};\n";
		WriteProperties(Parms, Each.Name + "_", Each.Parameters);
	}

	void WriteFunctionList(const Class& Type)
	{
		if (Type.Functions.empty())
		{
			return;
		}
		Text += "\tstatic constexpr UECodeGen::FFunctionInfo Functions[] = {\n";
		for (const Function& Each : Type.Functions)
		{
			Text += "\t\t{ .Name = " + Quote(Each.Name) + ", .Flags = " + Each.Flags + ", .Native = &" + Type.Name + "::exec" + Each.Name;
			if (!Each.Parameters.empty())
			{
				Text += ", .ParmsSize = sizeof(" + Each.Name + "_Parms), .Parameters = " + Each.Name + "_Properties";
			}
			Text += MetaField(Each.Name, Each.Meta) + " },\n";
		}
		Text += "\t};\n";
	}

	// The function through which reflection calls: arguments and result lie in one block.
	void WriteThunk(const Class& Type, const std::string& Construct, const Function& Each)
	{
		const bool bParms = !Each.Parameters.empty();
		Text += "void " + Type.Name + "::exec" + Each.Name + "(UObject*" + (Each.bStatic ? "" : " Context") + ", void*" +
			(bParms ? " Parms" : "") + ")\n{\n";
		if (bParms)
		{
			Text += "\tauto& Block = *static_cast<" + Construct + "_Statics::" + Each.Name + "_Parms*>(Parms);\n";
		}
		Text += Each.bReturns ? "\tBlock.ReturnValue = " : "\t";
		Text += Each.bStatic ? Type.Name + "::" : "static_cast<" + Type.Name + "*>(Context)->";
		Text += Each.Name + "(";
		const size_t Count = Each.Parameters.size() - Each.bReturns;
		for (size_t Index = 0; Index < Count; ++Index)
		{
			Text += (Index ? ", Block." : "Block.") + Each.Parameters[Index].Name;
		}
		Text += ");\n}\n\n";
	}

	void WriteList(const Reference& Kind, const char* Name, const std::vector<std::string>& Constructs)
	{
		if (Constructs.empty())
		{
			return;
		}
		Text += std::string("\tstatic constexpr ") + Kind.Kind + "* (*" + Name + "[])() = {";
		for (const std::string& Each : Constructs)
		{
			Text += " &" + Each + ",";
		}
		Text += " };\n";
	}

	void WriteRegistration()
	{
		Text += "struct Z_Registration_" + Module + "\n{\n";
		WriteList(EnumReference, "Enums", Enums);
		WriteList(StructReference, "Structs", Structs);
		WriteList(ClassReference, "Classes", Classes);
		Text += "\tstatic constexpr UECodeGen::FModuleTypes Types{ ";
		Text += Enums.empty() ? "" : ".Enums = Enums, ";
		Text += Structs.empty() ? "" : ".Structs = Structs, ";
		Text += Classes.empty() ? "" : ".Classes = Classes ";
		Text += "};\n};\n\nstatic const UECodeGen::FRegisterModuleTypes Register(Z_Registration_" + Module + "::Types);\n";
	}

	const std::vector<Header>& Headers;
	const std::string& Module;
	std::string Text;
	std::set<std::string> Declared;
	std::vector<std::string> Enums;
	std::vector<std::string> Structs;
	std::vector<std::string> Classes;
};
}

std::string WriteGeneratedSource(const std::vector<Header>& Headers, const std::string& Module)
{
	return SourceWriter(Headers, Module).Run();
}
