#include "Support/Program.h"

#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace
{
[[noreturn]] void Execute(std::vector<std::string>& Arguments, const std::string& ErrorFile)
{
	std::vector<char*> Pointers{ const_cast<char*>(EDITOR_PROGRAM) };
	for (std::string& Argument : Arguments)
	{
		Pointers.push_back(Argument.data());
	}
	Pointers.push_back(nullptr);
	dup2(open(ErrorFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
	execv(EDITOR_PROGRAM, Pointers.data());
	_exit(127);
}

std::chrono::steady_clock::time_point After(double Seconds)
{
	return std::chrono::steady_clock::now() + std::chrono::microseconds(static_cast<long>(Seconds * 1e6));
}
}

Program::Program(std::vector<std::string> Arguments, Face InFace)
{
	signal(SIGPIPE, SIG_IGN);
	const std::string ErrorFile = (Files / "stderr").string();
	if (InFace == Face::Terminal)
	{
		termios Settings = {};
		cfmakeraw(&Settings);
		Settings.c_lflag |= ISIG | ICANON;
		Settings.c_cc[VINTR] = 3;
		Settings.c_cc[VEOF] = 4;
		Process = forkpty(&Output, nullptr, &Settings, nullptr);
		if (Process == 0)
		{
			Execute(Arguments, ErrorFile);
		}
		Input = Output;
		return;
	}
	int In[2];
	int Out[2];
	EXPECT_EQ(pipe2(In, O_CLOEXEC) + pipe2(Out, O_CLOEXEC), 0);
	Process = fork();
	if (Process == 0)
	{
		signal(SIGPIPE, SIG_DFL);
		dup2(In[0], STDIN_FILENO);
		dup2(Out[1], STDOUT_FILENO);
		Execute(Arguments, ErrorFile);
	}
	close(In[0]);
	close(Out[1]);
	Input = In[1];
	Output = Out[0];
	// A child that writes while its input is being written must not block both.
	fcntl(Input, F_SETFL, O_NONBLOCK);
}

Program::~Program()
{
	if (Process > 0)
	{
		kill(Process, SIGKILL);
		waitpid(Process, nullptr, 0);
	}
	if (Input != Output)
	{
		CloseInput();
	}
	close(Output);
}

void Program::Write(std::string_view Text)
{
	while (!Text.empty())
	{
		// What the child writes meanwhile is taken off it, so that neither waits for the other.
		pollfd Ends[] = { { Input, POLLOUT, 0 }, { Output, POLLIN, 0 } };
		if (poll(Ends, 2, 20000) <= 0 || ((Ends[1].revents != 0) && !ReadMore(Clock::now())))
		{
			return;
		}
		const ssize_t Written = Ends[0].revents != 0 ? write(Input, Text.data(), Text.size()) : 0;
		if (Written < 0 && errno != EAGAIN)
		{
			return;
		}
		Text.remove_prefix(static_cast<size_t>(std::max<ssize_t>(Written, 0)));
	}
}

void Program::CloseInput()
{
	if (Input >= 0 && Input != Output)
	{
		close(Input);
		Input = -1;
	}
}

bool Program::ReadMore(Clock::time_point Deadline)
{
	const auto Left = std::chrono::ceil<std::chrono::milliseconds>(Deadline - Clock::now()).count();
	pollfd Ready{ Output, POLLIN, 0 };
	if (poll(&Ready, 1, static_cast<int>(std::max<long>(Left, 0))) <= 0)
	{
		return false;
	}
	char Chunk[65536];
	const ssize_t Got = read(Output, Chunk, sizeof Chunk);
	if (Got <= 0)
	{
		return false;
	}
	Buffer.append(Chunk, static_cast<size_t>(Got));
	return true;
}

std::optional<std::string> Program::ReadLine(double Seconds)
{
	const auto Deadline = After(Seconds);
	size_t End = 0;
	for (size_t Seen = 0; (End = Buffer.find('\n', Seen)) == std::string::npos;)
	{
		Seen = Buffer.size();
		if (!ReadMore(Deadline))
		{
			return std::nullopt;
		}
	}
	std::string Line = Buffer.substr(0, End);
	Buffer.erase(0, End + 1);
	return Line;
}

std::string Program::ReadUntil(std::string_view Text, double Seconds)
{
	const auto Deadline = After(Seconds);
	size_t Place = 0;
	while ((Place = Buffer.find(Text)) == std::string::npos)
	{
		if (!ReadMore(Deadline))
		{
			ADD_FAILURE() << "\"" << Text << "\" did not come, but:\n" << Buffer;
			return std::exchange(Buffer, {});
		}
	}
	std::string Read = Buffer.substr(0, Place + Text.size());
	Buffer.erase(0, Read.size());
	return Read;
}

Ending Program::Finish(double Seconds)
{
	CloseInput();
	const auto Deadline = After(Seconds);
	while (ReadMore(Deadline))
	{
	}
	if (Clock::now() >= Deadline)
	{
		ADD_FAILURE() << "The editor did not end.";
		kill(Process, SIGKILL);
	}
	int Status = 0;
	waitpid(std::exchange(Process, -1), &Status, 0);
	return { WIFEXITED(Status) ? WEXITSTATUS(Status) : -1, std::exchange(Buffer, {}), ReadText(Files / "stderr") };
}

Ending RunEditor(const std::vector<std::string>& Arguments, std::string_view Input)
{
	Program Editor(Arguments);
	Editor.Write(Input);
	return Editor.Finish();
}
