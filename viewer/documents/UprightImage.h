#pragma once

#include "livecontrol/interface/types.h"

#include <QImage>
#include <QSize>

class Document;
struct ViewState;

/// A document's picture as the user has turned and mirrored it, with 8 bits a sample.
namespace UprightImage {

/// In pixels, before any reduction; of that partition's recording while the memory shows. Partition 0 is the
/// current one.
QSize size(const Document& document, PARTITIONNUMBER partition = 0);
/// Exactly as large as that has room for, in its own proportions; null without a picture. Frames of a
/// recording count from 1; 0 is what shows, in another partition the frame of that number or the last one.
QImage fitted(Document& document, const QSize& limit, PARTITIONNUMBER partition = 0, int frame = 0);
/// A frame of the document's as the user has turned and mirrored it, in the size that it has.
QImage turned(const QImage& image, const ViewState& view);

} // namespace UprightImage
