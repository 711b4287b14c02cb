#pragma once

#include "viewer/export/writers/FrameSink.h"

/// The text in a TIFF from which other programs learn of the movie: lines of "key=value", as ImageJ has them,
/// with the recording's own behind them.
QString tiffDescription(const SinkPlan& plan, int pages);
