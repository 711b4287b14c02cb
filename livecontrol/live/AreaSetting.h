#pragma once

#include <QStringList>

/// Image processings that would move the rectangle away from the pixels that it stands for: forbidden while a
/// page edits it.
inline QStringList forbiddenProcessings() {
    return {QStringLiteral("binning"), QStringLiteral("warp"), QStringLiteral("lenscalib")};
}
