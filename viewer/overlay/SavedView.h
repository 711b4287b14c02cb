#pragma once

#include "viewer/overlay/InfoFacts.h"
#include "viewer/overlay/SavedBlock.h"
#include "viewer/overlay/SavedPlaces.h"

/// Puts a picture and its information together, as they are saved. It reads nothing but what it is given, so
/// each thread may have one. Places and size stay the same for all frames of a recording; a place is laid out
/// anew only when its texts have changed.
class SavedView {
public:
    SavedView() = default;
    /// `logo` may be null.
    SavedView(const SavedViewSettings& settings, const QImage& logo) : m_settings(settings), m_logo(logo) {}

    /// How large is what is saved of a picture of that size.
    QSize size(const QSize& picture, const InfoFacts& facts);
    /// All of it. The picture has 8 bits a sample.
    QImage compose(const QImage& picture, const InfoFacts& facts);
    /// The same, made larger or smaller to fit in. `pictureOf` gives the picture in the size that it is asked
    /// for, of a picture that has `original` pixels.
    QImage fitted(const QSize& original, const InfoFacts& facts, const QSize& limit,
                  const std::function<QImage(const QSize&)>& pictureOf);
    /// How many times a place has been laid out for a picture; making room for them does not count.
    int layoutCount() const { return m_layouts; }

private:
    struct Group {
        SavedGroup settings; // in pixels of the picture
        QVector<InfoLine> lines;
        SavedBlock block;
        bool isLaidOut = false;
    };

    void arrange(const QSize& picture, const InfoFacts& facts);
    void write(const InfoFacts& facts);
    QVector<InfoLine> linesOf(const Group& group, const InfoFacts& facts) const;
    QImage paint(const QImage& picture, double scale, const QSize& size) const;
    void paintTexts(QPainter& painter) const;

    SavedViewSettings m_settings;
    QImage m_logo;
    InfoFacts m_facts; // that the places were made for
    SavedPlaces m_places;
    std::array<Group, SavedViewSettings::Places> m_groups;
    bool m_isArranged = false;
    int m_layouts = 0;
};
