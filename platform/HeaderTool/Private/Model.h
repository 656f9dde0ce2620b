#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

// What the tool has read from a header, ready to be written as code.

// In the order of appearance; a key given twice keeps its last value.
class MetaData
{
public:
	void Set(const std::string& Key, const std::string& Value);
	bool Has(const std::string& Key) const;
	const std::vector<std::pair<std::string, std::string>>& GetPairs() const { return Pairs; }

private:
	std::vector<std::pair<std::string, std::string>> Pairs;
};

// A C++ type that a property can have.
struct PropertyType
{
	std::string Kind;                // Enumerator of UECodeGen::EPropertyKind.
	std::string Cpp;                 // As it is spelled in generated code.
	std::string Referred;            // The class, struct or enum meant, or empty.
	std::vector<PropertyType> Inner; // A container's element type, or a map's key and value.
};

struct Property
{
	std::string Name;
	PropertyType Type;
	std::string Flags; // Names of flags joined by " | ", or empty; so everywhere below.
	MetaData Meta;
	bool bBitField = false;
	bool bFixedArray = false;
	bool bConst = false; // Of a parameter: how it is declared.
	bool bReference = false;
	int Line = 0;
};

struct Function
{
	std::string Name;
	std::string Flags;
	MetaData Meta;
	std::vector<Property> Parameters; // ReturnValue, where there is one, is the last.
	bool bStatic = false;
	bool bReturns = false;
	bool bConst = false;

	bool Has(const char* Flag) const { return Flags.find(Flag) != std::string::npos; }
	bool IsNative() const { return Has("FUNC_Native"); }
	bool IsEvent() const { return Has("FUNC_Event"); }
	size_t NumArguments() const { return Parameters.size() - bReturns; }
};

// A dynamic delegate.
struct Delegate
{
	std::string Name;   // With its prefix.
	Function Signature; // Its name is "<Name>__DelegateSignature", without the prefix.
	int Line = 0;
};

struct Class
{
	std::string Name;   // With its prefix.
	std::string Super;  // Empty only for a struct.
	std::string Config; // Name of the ini, or empty for the super class's.
	std::string Flags;
	MetaData Meta;
	int Line = 0;
	int BodyLine = 0;               // Where GENERATED_BODY stands.
	bool bTakesInitializer = false; // Its constructor takes an FObjectInitializer.
	std::vector<std::string> Bases; // The further base classes, which may be interfaces.
	std::vector<Property> Properties;
	std::vector<Function> Functions; // Those of an interface stand in the class "I...".
	std::vector<Delegate> Delegates;
	std::set<std::string> Implementations; // The functions "<Event>_Implementation" that the class declares itself.
	int InterfaceBodyLine = 0;             // Of the class "I...", for an interface.

	bool IsInterface() const { return Flags.find("CLASS_Interface") != std::string::npos; }
	// The C++ class that the functions are members of.
	std::string GetFunctionOwner() const { return IsInterface() ? "I" + Name.substr(1) : Name; }
};

struct Enumerator
{
	std::string Name;
	MetaData Meta;
};

struct Enum
{
	std::string Name;
	std::string Cpp;        // Name, or "Name::Type" where Name is a namespace around it.
	std::string Underlying; // Empty for the default one of an enum class.
	bool bScoped = false;
	MetaData Meta;
	int Line = 0;
	std::vector<Enumerator> Enumerators;
};

struct Header
{
	std::string Include; // How generated code includes it.
	std::string Stem;    // File name without extension.
	std::vector<Class> Classes;
	std::vector<Class> Structs;
	std::vector<Enum> Enums;
	std::vector<Delegate> Delegates;
};
