#pragma once

#include "viewer/export/ExportFormat.h"
#include "viewer/export/writers/FrameSink.h"

/// Pictures as the bytes of an image file: BMP, JPEG, PNG, TIFF. Any thread, several at a time.
///
/// PNG and TIFF keep samples of more than 8 bits: PNG spread over 16, TIFF as the camera delivers them. Both,
/// and JPEG, carry a text with what is known of the recording.
class ImageEncoder {
public:
    /// Of a format for single pictures.
    ImageEncoder(ExportFormat format, const SinkPlan& plan) : m_format(format), m_plan(plan) {}

    /// Throws RecordingError, with the plan's path.
    QByteArray encode(const Frame& frame) const;

private:
    QByteArray encodeByQt(const Frame& frame) const;
    QByteArray encodeTiff(const Frame& frame) const;

    ExportFormat m_format;
    SinkPlan m_plan;
};
