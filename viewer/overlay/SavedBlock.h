#pragma once

#include "viewer/overlay/OverlayLayout.h"
#include "viewer/overlay/SavedViewSettings.h"

#include <vector>

/// The texts of one place of a saved picture, laid out in their columns. No larger than they need.
class SavedBlock {
public:
    SavedBlock() = default;
    /// The group's lengths are those of the picture: see SavedGroup::at().
    SavedBlock(const QVector<InfoLine>& lines, const SavedGroup& group, const QImage& logo,
               const QSize& most);

    bool isEmpty() const { return m_size.isEmpty(); }
    QSize size() const { return m_size; }
    /// With the top left corner at the painter's origin.
    void paint(QPainter& painter) const;

private:
    struct Column {
        int left;
        OverlayLayout layout;
    };

    std::vector<Column> m_columns;
    QSize m_size;
};
