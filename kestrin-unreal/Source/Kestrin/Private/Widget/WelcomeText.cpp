#include "WelcomeText.h"

const FString& GetWelcomeText()
{
	// clang-format off
	static const FString Text(
		TEXT(" [ Kestrin ] \n\n")
		TEXT("I'm Kestrin, your AI-powered assistant for Unreal Engine 5.4+, here to accelerate gameplay mechanics ")
		TEXT("development. As a \"project-aware\" assistant, I understand your game, enabling me to support your mechanics ")
		TEXT("development workflow—from generating fresh gameplay variations to implementing entire systems, ")
		TEXT("troubleshooting, and optimizing—helping you find the fun faster.\n\n\n")
		TEXT("Here's how I can help:\n\n")
		TEXT("  1. 🛠️ UE5 Assistant – Navigate your project with intelligent file search, dependency tracing, diagnostics, ")
		TEXT("and UE5 feature integration best practices.\n\n")
		TEXT("  2. 💻 Code Copilot – Assist with building, refactoring, debugging, and analyzing C++ code, ensuring it ")
		TEXT("follows your game's architecture and guidelines.\n\n")
		TEXT("  3. 🔹 Blueprint Designer – Get step-by-step instructions for building, optimizing, and debugging gameplay ")
		TEXT("logic and AI using UE5's visual scripting.\n\n\n")
		TEXT("Tips for Working with Me:\n\n")
		TEXT("  1. Provide context – The more I know about your goal, the better I can help. Start with what you're trying ")
		TEXT("to build before giving instructions.\n\n")
		TEXT("  2. Be specific – Think of me like a teammate. Clear, direct instructions work best.\n\n")
		TEXT("  3. Reference key files – I can search your project, but if you know relevant classes, files, or assets, let ")
		TEXT("me know!\n\n")
		TEXT("  4. Access past chats – You can find conversation history in the \"Logs\" folder of your kestrin-unreal ")
		TEXT("plugin.\n\n\n")
		TEXT("Let's build something amazing! 🚀\n"));
	// clang-format on
	return Text;
}
