#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "ServiceProcess.h"

/** The editor program as a child process; its standard error is kept until the end. Killed with the object. */
class Program
{
public:
	/** On a pseudo-terminal (echo off) the child's input and output are its terminal; else they are pipes. */
	enum class Face
	{
		Pipes,
		Terminal
	};

	explicit Program(std::vector<std::string> Arguments, Face InFace = Face::Pipes);
	~Program();
	Program(const Program&) = delete;
	Program& operator=(const Program&) = delete;

	/** Until Finish. */
	bool IsRunning() const { return Process > 0; }

	/** Writes all of it; a child that no longer reads is no error. */
	void Write(std::string_view Text);
	/** End of input; on a terminal nothing happens. */
	void CloseInput();

	/** The next line without its end, the rest at the end of output; nothing at the end or after the time. */
	std::optional<std::string> ReadLine(double Seconds);
	/** Reads until the text has come; what was read, with the test failed when it does not come. */
	std::string ReadUntil(std::string_view Text, double Seconds = 20);

	/** Reads the output to its end and waits for the child: its exit code, -1 after a signal; killed after the time. */
	Ending Finish(double Seconds = 20);

private:
	using Clock = std::chrono::steady_clock;
	/** False at the end of output or after the time. */
	bool ReadMore(Clock::time_point Deadline);

	pid_t Process = -1;
	int Input = -1;
	int Output = -1;
	std::string Buffer;
	TemporaryDirectory Files;
};

/** Runs the editor to its end with the text as its whole input. */
Ending RunEditor(const std::vector<std::string>& Arguments, std::string_view Input = {});
