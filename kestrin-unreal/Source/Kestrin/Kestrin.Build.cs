using UnrealBuildTool;

public class Kestrin : ModuleRules
{
	public Kestrin(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"Json",
		});

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"HTTP",
			"Settings",
		});
	}
}
