using UnrealBuildTool;

public class LanternHollowTarget : TargetRules
{
	public LanternHollowTarget(TargetInfo Target) : base(Target)
	{
		Type = TargetType.Game;
		DefaultBuildSettings = BuildSettingsVersion.V5;
		IncludeOrderVersion = EngineIncludeOrderVersion.Unreal5_5;
		ExtraModuleNames.Add("LanternHollow");
	}
}
