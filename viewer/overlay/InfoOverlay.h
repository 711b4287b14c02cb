#pragma once

#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/LogoImage.h"
#include "viewer/overlay/OverlayLayout.h"

/// The information over the picture of one view. Nothing is written or painted anew unless something is new.
class InfoOverlay {
public:
    /// Where it stands: the size of the view, and the distance from its edges.
    struct Place {
        QSize view;
        int margin = 0;
        double pixelRatio = 1;

        bool operator==(const Place& other) const {
            return view == other.view && margin == other.margin && pixelRatio == other.pixelRatio;
        }
    };

    /// Brings it up to date; true if another picture has come of it.
    bool update(const Document& document, OverlayPreferences& preferences, const Place& place);
    const QImage& image() const { return m_image; } // null if nothing stands there
    const OverlayLayout& layout() const { return m_layout; }
    /// How many times it has been laid out.
    int layoutCount() const { return m_layouts; }

private:
    InfoFacts m_facts;
    Place m_place;
    unsigned m_revision = 0;
    QVector<InfoLine> m_lines;
    LogoImage m_logo;
    OverlayLayout m_layout;
    QImage m_image;
    int m_layouts = 0;
};
