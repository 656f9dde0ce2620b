#pragma once

#include "IAssetTools.h"
#include "Modules/ModuleManager.h"

class ASSETTOOLS_API FAssetToolsModule : public IModuleInterface
{
public:
	virtual IAssetTools& Get() const { return IAssetTools::Get(); }
};
