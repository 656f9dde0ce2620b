#pragma once

#include "Model.h"

// A function's declaration as generated code spells it: "int32 Name(const FString& A) const", Name with its class where one is given.
std::string Declare(const Function& Source, const std::string& Name);

// The declaration of the function that calls an interface's event on any object: "void Execute_Name(UObject* O, ...)".
std::string DeclareExecute(const Function& Source, const std::string& Owner = {});

// The result's type.
std::string GetResult(const Function& Source);

// "A, B", each with Prefix before it.
std::string JoinArguments(const Function& Source, const std::string& Prefix);
