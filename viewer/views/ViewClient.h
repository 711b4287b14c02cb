#pragma once

#include <QRect>

class Document;
class OverlayPreferences;
class PLG_Interface;

/// What the image views ask the program around them.
class ViewClient {
public:
    virtual ~ViewClient() = default;

    /// The plug-in whose panel is open: it paints over the images, and takes mouse and keys while its page
    /// edits an area. Null if there is none.
    virtual PLG_Interface* openPlugin() = 0;
    /// Whether the open plug-in counts the pixels of a document's image as it paints, which needs every one
    /// of them.
    virtual bool isFrameRead(const Document& document) {
        Q_UNUSED(document)
        return false;
    }
    /// What the information over the images looks like; null while none shows.
    virtual OverlayPreferences* shownInfo() = 0;
    /// The user has changed the area that the plug-in edits on a document's image from that one. `joins`:
    /// the change belongs to the one before, of a drag or a held key.
    virtual void areaEdited(Document& document, const QRect& before, bool joins) {
        Q_UNUSED(document)
        Q_UNUSED(before)
        Q_UNUSED(joins)
    }
};
