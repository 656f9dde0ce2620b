#pragma once

/** What draws the widgets of an application. */
class FSlateRenderer
{
public:
	virtual ~FSlateRenderer() = default;

	/** Reads the images of brushes anew. */
	virtual void ReloadTextureResources() = 0;
};
