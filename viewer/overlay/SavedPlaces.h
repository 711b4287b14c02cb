#pragma once

#include "viewer/overlay/SavedViewSettings.h"

#include <QRect>

#include <functional>

/// Where the picture and its information stand in what is saved: around it, with the sides no wider than
/// their texts, or in its corners and along its edges. In pixels of what is saved.
struct SavedPlaces {
    struct Place {
        QRect cell; // what the background fills; empty for a place without texts
        QSize most; // what its texts have room for
    };

    QSize size;
    QRect picture;
    std::array<Place, SavedViewSettings::Places> places;

    /// What the texts of a place need in the room that they have; empty without texts.
    using Measure = std::function<QSize(int place, const QSize& most)>;

    /// `gaps` are the distances of texts from the edges of their places.
    static SavedPlaces around(const QSize& picture, const std::array<int, SavedViewSettings::Places>& gaps,
                              const Measure& measure);
    static SavedPlaces within(const QSize& picture, const std::array<int, SavedViewSettings::Places>& gaps,
                              const std::array<Qt::AlignmentFlag, SavedViewSettings::Places>& alignments,
                              const Measure& measure);
};
