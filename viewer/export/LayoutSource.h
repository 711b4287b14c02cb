#pragma once

#include "viewer/recordings/FrameSource.h"

#include <QVector>

#include <functional>

/// Several recordings beside each other in one picture, as windows stand on the screen. The first gives the
/// steps; the others show what they recorded at the same time from their triggers, or their nearest frame.
class LayoutSource : public FrameSource {
public:
    struct Tile {
        FrameSourcePtr source;
        QRect place; // in the picture, pixels
        /// What is drawn into its frames; empty for nothing. Any thread.
        std::function<Frame(const Frame& frame, int index)> compose;
    };

    /// Of at least one tile, each with a recording that has frames.
    LayoutSource(const QVector<Tile>& tiles, const QSize& size);

    Frame frame(int index) const override;
    /// Which frame of a tile shows with that one of the first.
    int indexOf(const Tile& tile, int index) const;

private:
    QVector<Tile> m_tiles;
};
