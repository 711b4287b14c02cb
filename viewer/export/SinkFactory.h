#pragma once

#include "viewer/export/writers/FrameSink.h"

#include <memory>

struct ExportRequest;

/// What writes the frames of that request, of which the first is composed already. Throws RecordingError.
std::shared_ptr<FrameSink> makeSink(const ExportRequest& request, const Frame& first);
