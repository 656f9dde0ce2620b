#include "Options.h"
#include "Routes.h"

#include <csignal>
#include <iostream>
#include <thread>

using namespace LocalService;

namespace
{
constexpr const char* Host = "127.0.0.1";
constexpr int ExitProblem = 1;
constexpr int ExitBadSetup = 2;

/** Blocks the signals that end the program, in this thread and all that it starts, so that one place can wait for them. */
sigset_t HoldEndSignals()
{
	sigset_t Set;
	sigemptyset(&Set);
	sigaddset(&Set, SIGINT);
	sigaddset(&Set, SIGTERM);
	pthread_sigmask(SIG_BLOCK, &Set, nullptr);
	return Set;
}

int Bind(WireServer& Server, int Port)
{
	const int Bound = Port == 0 ? Server.bind_to_any_port(Host) : Server.bind_to_port(Host, Port) ? Port : -1;
	if (Bound < 0)
	{
		throw SetupError("cannot listen on " + std::string(Host) + ":" + std::to_string(Port) + ": is the port in use?");
	}
	return Bound;
}

int Run(const Options& Asked)
{
	const sigset_t EndSignals = HoldEndSignals();
	Scenario Rules = Asked.ScenarioFile.empty() ? Scenario() : Scenario::Read(Asked.ScenarioFile);
	RequestLog Log(Asked.LogFile);
	WireServer Server(OpenTlsContext(Asked.CertificateDirectory));
	Routes Protocol(Server, std::move(Rules), Asked.Key, Log);
	const int Port = Bind(Server, Asked.Port);

	std::atomic<bool> bEnded = false;
	std::thread Listener(
		[&]
		{
		Server.listen_after_bind();
		bEnded = true;
		// When listening ended by itself, this wakes the main thread; otherwise nobody waits any more.
		kill(getpid(), SIGTERM);
	});
	while (!Server.is_running() && !bEnded)
	{
		std::this_thread::yield();
	}
	std::cout << "listening on " << Host << ':' << Port << std::endl;

	int Signal = 0;
	sigwait(&EndSignals, &Signal);
	const bool bBroken = bEnded;
	Protocol.EndDelays();
	Server.stop();
	Listener.join();
	return bBroken ? ExitProblem : 0;
}
}

int main(int Count, char** Arguments)
{
	try
	{
		const Options Asked = ReadOptions({ Arguments + 1, static_cast<size_t>(Count - 1) });
		if (Asked.bHelp)
		{
			std::cout << HelpText();
			return 0;
		}
		return Run(Asked);
	}
	catch (const SetupError& Error)
	{
		std::cerr << "kestrin-service: " << Error.what() << '\n';
		return ExitBadSetup;
	}
}
