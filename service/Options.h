#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace LocalService
{
/** What the command line asks for. */
struct Options
{
	/** 0: any free port. */
	int Port = 8443;
	std::string CertificateDirectory = "certificates";
	/** Empty: no rules, so that every prompt fails with a text that says so. */
	std::string ScenarioFile;
	/** The x-api-key that requests must carry; empty: any, or none. */
	std::string Key;
	/** Empty: standard output. */
	std::string LogFile;
	bool bHelp = false;
};

/** A command line or a file that the program cannot work with; the text is for the user. */
class SetupError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** Reads the arguments behind the program's name. Throws SetupError. */
Options ReadOptions(std::span<char*> Arguments);

const char* HelpText();
}
