#include "ChildProcess.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{
/** Texts as the operating system takes them: pointers with a null at the end. */
class FNativeTexts
{
public:
	void Add(std::string Text) { Texts.push_back(MoveTemp(Text)); }
	void Add(const TArray<FString>& Added)
	{
		for (const FString& Text : Added)
		{
			Add(FUtf8::Encode(Text));
		}
	}
	char** Get()
	{
		Pointers.clear();
		for (std::string& Text : Texts)
		{
			Pointers.push_back(Text.data());
		}
		Pointers.push_back(nullptr);
		return Pointers.data();
	}

private:
	std::vector<std::string> Texts;
	std::vector<char*> Pointers;
};

/** The editor's own environment without the variables that Changes sets, and those. */
void AddEnvironment(FNativeTexts& Texts, const TArray<FString>& Changes)
{
	for (char** Variable = environ; *Variable; ++Variable)
	{
		const std::string_view Name(*Variable, std::strcspn(*Variable, "="));
		const bool bChanged = Changes.ContainsByPredicate(
			[Name](const FString& Change) { return FUtf8::Encode(Change).starts_with(std::string(Name) + "="); });
		if (!bChanged)
		{
			Texts.Add(*Variable);
		}
	}
	Texts.Add(Changes);
}

int Spawn(pid_t& OutProcess, const TArray<FString>& Command, const TArray<FString>& Environment, int Output)
{
	FNativeTexts Arguments;
	Arguments.Add(Command);
	FNativeTexts Variables;
	AddEnvironment(Variables, Environment);

	posix_spawn_file_actions_t Files;
	::posix_spawn_file_actions_init(&Files);
	::posix_spawn_file_actions_addopen(&Files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
	::posix_spawn_file_actions_adddup2(&Files, Output, STDOUT_FILENO);
	::posix_spawn_file_actions_adddup2(&Files, Output, STDERR_FILENO);

	// The editor ignores SIGPIPE and a thread may block signals; neither is the program's matter.
	posix_spawnattr_t Attributes;
	::posix_spawnattr_init(&Attributes);
	sigset_t Signals;
	::sigemptyset(&Signals);
	::posix_spawnattr_setsigmask(&Attributes, &Signals);
	::sigaddset(&Signals, SIGPIPE);
	::posix_spawnattr_setsigdefault(&Attributes, &Signals);
	::posix_spawnattr_setflags(&Attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

	const int Error = ::posix_spawnp(&OutProcess, Arguments.Get()[0], &Files, &Attributes, Arguments.Get(), Variables.Get());
	::posix_spawnattr_destroy(&Attributes);
	::posix_spawn_file_actions_destroy(&Files);
	return Error;
}

void ReadLines(int Input, TFunctionRef<void(const FString& Line)> OnLine)
{
	std::string Waiting;
	char Chunk[16384];
	for (ssize_t Got = 0; (Got = ::read(Input, Chunk, sizeof Chunk)) > 0 || (Got < 0 && errno == EINTR);)
	{
		Waiting.append(Chunk, static_cast<size_t>(std::max<ssize_t>(Got, 0)));
		size_t Start = 0;
		for (size_t End = 0; (End = Waiting.find('\n', Start)) != std::string::npos; Start = End + 1)
		{
			OnLine(FUtf8::Decode(std::string_view(Waiting).substr(Start, End - Start)));
		}
		Waiting.erase(0, Start);
	}
	if (!Waiting.empty())
	{
		OnLine(FUtf8::Decode(Waiting));
	}
}
}

FChildProcess::FEnd FChildProcess::Run(
	const TArray<FString>& Command, const TArray<FString>& Environment, TFunctionRef<void(const FString& Line)> OnLine)
{
	FEnd End;
	int Pipe[2];
	if (::pipe2(Pipe, O_CLOEXEC) != 0)
	{
		End.StartError = FUtf8::Decode(std::strerror(errno));
		return End;
	}
	pid_t Started = 0;
	const int Error = Spawn(Started, Command, Environment, Pipe[1]);
	::close(Pipe[1]);
	if (Error != 0)
	{
		End.StartError = FUtf8::Decode(std::strerror(Error));
		::close(Pipe[0]);
		return End;
	}
	Process = Started;
	if (bInterrupted)
	{
		Interrupt();
	}
	ReadLines(Pipe[0], OnLine);
	::close(Pipe[0]);

	// While it is waited for without being reaped, its number can't be another process's.
	siginfo_t Info;
	while (::waitid(P_PID, static_cast<id_t>(Started), &Info, WEXITED | WNOWAIT) != 0 && errno == EINTR)
	{
	}
	Process = 0;
	int Status = 0;
	while (::waitpid(Started, &Status, 0) < 0 && errno == EINTR)
	{
	}
	End.ExitCode = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	End.Signal = WIFSIGNALED(Status) ? WTERMSIG(Status) : 0;
	return End;
}

void FChildProcess::Interrupt()
{
	bInterrupted = true;
	if (const int Running = Process)
	{
		::kill(Running, SIGINT);
	}
}
