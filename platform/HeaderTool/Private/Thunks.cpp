#include "Thunks.h"

#include "Signatures.h"
#include "Writer.h"

namespace
{
// Condition: no Blueprint has taken the event over. Present: what must not be null for the call, or empty.
std::string WriteDirectCall(const Function& Each, const std::string& Condition, const std::string& Callee, const std::string& Present)
{
	std::string Text;
	Text += "\tif (" + Condition + ")\n\t{\n";
	if (Each.IsNative())
	{
		const std::string Call = Callee + Each.Name + "_Implementation(" + JoinArguments(Each, "") + ")";
		Text += Present.empty() ? "" : "\t\tif (" + Present + ")\n\t\t{\n";
		Text += "\t\t" + std::string(Each.bReturns ? "return " : "") + Call + ";\n";
		Text += Present.empty() ? "" : "\t\t}\n";
	}
	const bool bNeedsReturn = !Each.IsNative() || !Present.empty() || !Each.bReturns;
	Text += !bNeedsReturn ? "" : Each.bReturns ? "\t\treturn {};\n" : "\t\treturn;\n";
	Text += "\t}\n";
	return Text;
}

// Calls Function on Object; results go back to the arguments given by reference.
std::string WriteProcessEvent(const std::string& Construct, const Function& Each)
{
	std::string Text;
	if (Each.Parameters.empty())
	{
		Text += "\tObject->ProcessEvent(Function, nullptr);\n";
		return Text;
	}
	Text += "\t" + Construct + "_Statics::" + Each.Name + "_Parms Block{};\n";
	for (size_t Index = 0; Index < Each.NumArguments(); ++Index)
	{
		const std::string& Name = Each.Parameters[Index].Name;
		Text += "\tBlock." + Name + " = " + Name + ";\n";
	}
	Text += "\tObject->ProcessEvent(Function, &Block);\n";
	for (size_t Index = 0; Index < Each.NumArguments(); ++Index)
	{
		const Property& Parameter = Each.Parameters[Index];
		Text += Parameter.bReference && !Parameter.bConst ? "\t" + Parameter.Name + " = Block." + Parameter.Name + ";\n" : "";
	}
	Text += Each.bReturns ? "\treturn Block.ReturnValue;\n" : "";
	return Text;
}

// An interface's event is called on any object by Execute_<Event>, never by its own name.
std::string WriteInterfaceEvent(const Class& Type, const std::string& Construct, const Function& Each)
{
	const std::string Owner = Type.GetFunctionOwner();
	std::string Text = Declare(Each, Owner + "::" + Each.Name) + "\n{\n\tcheckf(false, TEXT(\"call Execute_" + Each.Name +
		" instead\"));\n" + (Each.bReturns ? "\treturn {};\n" : "") + "}\n\n";
	Text += DeclareExecute(Each, Owner) + "\n{\n";
	Text += "\tUObject* const Object = const_cast<UObject*>(static_cast<const UObject*>(O));\n";
	Text += "\tcheck(Object && Object->GetClass()->ImplementsInterface(" + Type.Name + "::StaticClass()));\n";
	Text += "\tauto* const Interface = static_cast<" + Owner + "*>(Object->GetNativeInterfaceAddress(" + Type.Name + "::StaticClass()));\n";
	Text += "\tUFunction* const Function = Object->FindFunction(" + Quote(Each.Name) + ");\n";
	Text += WriteDirectCall(Each, "!Function || Function->HasAnyFunctionFlags(FUNC_Native)", "Interface->", "Interface");
	return Text + WriteProcessEvent(Construct, Each) + "}\n\n";
}
}

std::string WriteThunk(const Class& Type, const std::string& Construct, const Function& Each)
{
	std::string Text;
	const std::string Owner = Type.GetFunctionOwner();
	const bool bParms = !Each.Parameters.empty();
	Text += "void " + Owner + "::exec" + Each.Name + "(UObject*" + (Each.bStatic ? "" : " Context") + ", void*" + (bParms ? " Parms" : "") +
		")\n{\n";
	if (bParms)
	{
		Text += "\tauto& Block = *static_cast<" + Construct + "_Statics::" + Each.Name + "_Parms*>(Parms);\n";
	}
	std::string Callee = Owner + "::";
	if (Type.IsInterface())
	{
		Text += "\tauto* const Interface = static_cast<" + Owner + "*>(Context->GetNativeInterfaceAddress(" + Type.Name +
			"::StaticClass()));\n\tif (!Interface)\n\t{\n\t\treturn;\n\t}\n";
		Callee = "Interface->";
	}
	else if (!Each.bStatic)
	{
		Callee = "static_cast<" + Owner + "*>(Context)->";
	}
	Text += Each.bReturns ? "\tBlock.ReturnValue = " : "\t";
	Text += Callee + Each.Name + (Each.IsEvent() ? "_Implementation(" : "(") + JoinArguments(Each, "Block.") + ");\n}\n\n";
	return Text;
}

std::string WriteEvent(const Class& Type, const std::string& Construct, const Function& Each)
{
	if (Type.IsInterface())
	{
		return WriteInterfaceEvent(Type, Construct, Each);
	}
	const std::string Owner = Type.GetFunctionOwner();
	std::string Text = Declare(Each, Owner + "::" + Each.Name) + "\n{\n";
	Text += "\tUObject* const Object = const_cast<" + Owner + "*>(this);\n";
	Text += "\tUFunction* const Function = FindFunctionChecked(" + Quote(Each.Name) + ");\n";
	Text += WriteDirectCall(Each, "Function->HasAnyFunctionFlags(FUNC_Native)", "", "");
	return Text + WriteProcessEvent(Construct, Each) + "}\n\n";
}
