using UnrealBuildTool;

public class LanternHollowEditorTarget : TargetRules
{
	public LanternHollowEditorTarget(TargetInfo Target) : base(Target)
	{
		Type = TargetType.Editor;
		DefaultBuildSettings = BuildSettingsVersion.V5;
		IncludeOrderVersion = EngineIncludeOrderVersion.Unreal5_5;
		ExtraModuleNames.Add("LanternHollow");
	}
}
