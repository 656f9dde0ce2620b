#include "Thunks.h"
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
	return Type.Kind == "Enum" || Type.Kind == "Byte" ? EnumReference : ClassReference;
}

std::string ConstructName(const Reference& Kind, const std::string& Type)
{
	return std::string("Z_Construct_") + Kind.Kind + "_" + Type;
}

constexpr Reference SignatureReference{ "Signature", "UFunction" };

// What the tables of a container's element, or a map's key and value, are named behind the property.
constexpr const char* InnerSuffixes[] = { "_Inner", "_MapValue" };

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
		for (const Delegate& Type : Source.Delegates)
		{
			WriteDelegate(Type, nullptr);
		}
		for (const Class& Type : Source.Classes)
		{
			WriteClass(Type);
			for (const Delegate& Each : Type.Delegates)
			{
				WriteDelegate(Each, &Type);
			}
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
		if (Type.Kind != "Struct")
		{
			Declare(GetReference(Type), Type.Referred);
		}
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
			DeclareAll(Each);
		}
		for (const Delegate& Each : Type.Delegates)
		{
			DeclareAll(Each.Signature);
		}
	}

	void DeclareAll(const Function& Source)
	{
		for (const Property& Parameter : Source.Parameters)
		{
			Declare(Parameter.Type);
		}
	}

	// Types that other headers define, this module's or another's.
	void WriteDeclarations()
	{
		for (const Header& Each : Headers)
		{
			for (const Delegate& Type : Each.Delegates)
			{
				DeclareAll(Type.Signature);
			}
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
		if (Type.Kind == "Struct")
		{
			// Only the compiler knows whether it is a struct or a delegate.
			const std::string Traits = "UECodeGen::TStructOrDelegate<" + Type.Cpp + ">::";
			return ", .Kind = " + Traits + "Kind, .Struct = " + Traits + "GetStruct(), .Signature = " + Traits + "GetSignature()";
		}
		std::string Fields = ", .Kind = UECodeGen::EPropertyKind::" + Type.Kind;
		if (Type.Kind == "Enum")
		{
			Fields += ", .Size = UECodeGen::GetEnumSize<" + Type.Cpp + ">()";
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
			for (size_t Index = 0; Index < Each.Type.Inner.size(); ++Index)
			{
				const std::string InnerName = Each.Type.Kind == "Map" ? (Index ? "_Value" : "_Key") : "";
				Text += "\tstatic constexpr UECodeGen::FPropertyInfo " + Name + InnerSuffixes[Index] +
					"{ .Name = " + Quote(Each.Name + InnerName) + TypeFields(Each.Type.Inner[Index]) + " };\n";
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
		Fields += Each.bBitField ? "" : ", .Offset = offsetof(" + Owner + ", " + Each.Name + ")";
		Fields += Each.bFixedArray ? ", .ArrayDim = std::extent_v<decltype(" + Owner + "::" + Each.Name + ")>" : "";
		Fields += Each.bBitField ? ", .SetBit = &" + Name + "_SetBit, .OwnerSize = sizeof(" + Owner + ")" : "";
		for (size_t Index = 0; Index < Each.Type.Inner.size(); ++Index)
		{
			Fields += (Index ? ", .Value = &" : ", .Inner = &") + Name + InnerSuffixes[Index];
		}
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
				Text += "\t\t{ .Name = " + Quote(Each.Name) + ", .Value = static_cast<int64>(" + Type.Cpp + "::" + Each.Name + ")" +
					MetaField(Each.Name, Each.Meta) + " },\n";
			}
			Text += "\t};\n";
		}
		Text += "\tstatic constexpr UECodeGen::FEnumInfo Info{ .Package = " + Quote("/Script/" + Module) + ", .Name = " + Quote(Type.Name) +
			", .bScoped = " + (Type.bScoped ? "true" : "false") + (Type.Enumerators.empty() ? "" : ", .Enumerators = Enumerators") +
			MetaField("", Type.Meta) + " };\n};\n\n";
		WriteConstruct(EnumReference, Type.Name);
		Text += "template <>\nUEnum* StaticEnum<" + Type.Cpp + ">()\n{\n\treturn " + Construct + "();\n}\n\n";
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
		WriteInterfaces(Type);
		Text += "\tstatic constexpr UECodeGen::FClassInfo Info{ .Type = { " + TypeInfo(Type, ClassReference) + " }";
		Text += Type.Flags.empty() ? "" : ", .Flags = " + Type.Flags;
		Text += Type.Config.empty() ? "" : ", .Config = " + Quote(Type.Config);
		Text += Type.Functions.empty() ? "" : ", .Functions = Functions";
		Text += Type.Bases.empty() ? "" : ", .Interfaces = Interfaces";
		Text += ", .Constructor = &" + Type.Name + "::__DefaultConstructor };\n};\n\n";
		WriteConstruct(ClassReference, Type.Name);
		for (const Function& Each : Type.Functions)
		{
			if (Each.IsNative())
			{
				Text += WriteThunk(Type, Construct, Each);
			}
			if (Each.IsEvent())
			{
				Text += WriteEvent(Type, Construct, Each);
			}
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

	static std::string FunctionFields(const Function& Each, const std::string& Native)
	{
		std::string Fields = ".Name = " + Quote(Each.Name) + ", .Flags = " + Each.Flags;
		Fields += Native.empty() ? "" : ", .Native = &" + Native;
		if (!Each.Parameters.empty())
		{
			Fields += ", .ParmsSize = sizeof(" + Each.Name + "_Parms), .Parameters = " + Each.Name + "_Properties";
		}
		return Fields + MetaField(Each.Name, Each.Meta);
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
			const std::string Native = Each.IsNative() ? Type.GetFunctionOwner() + "::exec" + Each.Name : std::string();
			Text += "\t\t{ " + FunctionFields(Each, Native) + " },\n";
		}
		Text += "\t};\n";
	}

	void WriteInterfaces(const Class& Type)
	{
		if (Type.Bases.empty())
		{
			return;
		}
		Text += "\tstatic constexpr UECodeGen::FInterfaceInfo Interfaces[] = {\n";
		for (const std::string& Base : Type.Bases)
		{
			Text += "\t\tUECodeGen::GetInterfaceInfo<" + Type.Name + ", " + Base + ">(),\n";
		}
		Text += "\t};\n";
	}

	// Owner is the class that declares it, or null.
	void WriteDelegate(const Delegate& Type, const Class* Owner)
	{
		const std::string Construct = "Z_Construct_UDelegateFunction_" + Type.Name;
		Text += "struct " + Construct + "_Statics\n{\n";
		WriteFunctionTables(Type.Signature);
		Text += "\tstatic constexpr UECodeGen::FSignatureInfo Info{ ";
		Text += Owner ? ".Class = &" + ConstructName(ClassReference, Owner->Name) : ".Package = " + Quote("/Script/" + Module);
		Text += ", .Function = { " + FunctionFields(Type.Signature, {}) + " } };\n};\n\n";
		Text += "UFunction* " + Construct + "()\n{\n\tstatic UFunction* Made = nullptr;\n\treturn UECodeGen::Construct(Made, " + Construct +
			"_Statics::Info);\n}\n\n";
		Signatures.push_back(Construct);
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
		WriteList(SignatureReference, "Signatures", Signatures);
		Text += "\tstatic constexpr UECodeGen::FModuleTypes Types{ ";
		Text += Signatures.empty() ? "" : ".Signatures = Signatures, ";
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
	std::vector<std::string> Signatures;
};
}

std::string WriteGeneratedSource(const std::vector<Header>& Headers, const std::string& Module)
{
	return SourceWriter(Headers, Module).Run();
}
