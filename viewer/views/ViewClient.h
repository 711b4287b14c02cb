#pragma once

class PLG_Interface;

/// What the image views ask the program around them.
class ViewClient {
public:
    virtual ~ViewClient() = default;

    /// The plug-in whose panel is open: it paints over the images, and takes mouse and keys while its page
    /// edits an area. Null if there is none.
    virtual PLG_Interface* openPlugin() = 0;
    /// Whether the information shows over the images.
    virtual bool isInfoShown() = 0;
};
