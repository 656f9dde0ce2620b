#pragma once

#include "Model.h"

#include <string>
#include <vector>

// The text of X.generated.h, which a header includes last: forward declarations and what GENERATED_BODY stands for.
std::string WriteGeneratedHeader(const Header& Source, const std::string& Module);

// The text of <Module>.gen.cpp: tables of all types of the module's headers and their registration.
std::string WriteGeneratedSource(const std::vector<Header>& Headers, const std::string& Module);

// A C++ string literal of Text's bytes.
std::string Quote(const std::string& Text);
