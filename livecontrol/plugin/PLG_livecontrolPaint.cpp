// What the plug-in draws over the live image, in the host's OpenGL pass. No allocation takes place here.

#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/GUI_ImageTriggerHistgramWidget.h"
#include "livecontrol/plugin/PLG_livecontrol.h"

#include <QColor>
#include <algorithm>
#include <optional>
#include <qopengl.h>

namespace {

constexpr unsigned kLastVariableChannel = 20;

QSize sizeOf(unsigned width, unsigned height) { return {static_cast<int>(width), static_cast<int>(height)}; }

/// The document's current resolution as a rectangle in its largest one: centered, or where the active
/// variable channel put it. The host tells the two resolutions of the current camera alone; of another
/// document only its own channel is known, and without one there is no rectangle, rather than that of a
/// foreign camera.
std::optional<QRect> resolutionArea(HostObject& host, DOC_Interface* document, DOC_Settings& settings) {
    VariableChannelInfo info;
    const unsigned channel = settings.getCurrentVariableChannel();
    const bool isPlaced = channel >= 1 && channel <= kLastVariableChannel;
    if (isPlaced) {
        settings.getVariableChannelInfo(channel, info);
    }
    const QPoint place(static_cast<int>(info.posX), static_cast<int>(info.posY));
    if (!host.isCurrentDocument(document)) {
        return isPlaced ? std::optional(QRect(place, sizeOf(info.width, info.height))) : std::nullopt;
    }
    unsigned width = 0;
    unsigned height = 0;
    host.getResolution(width, height);
    const QSize size = sizeOf(width, height);
    if (isPlaced) {
        return QRect(place, size);
    }
    host.getMaxResolution(width, height);
    const QSize rest = sizeOf(width, height) - size;
    return QRect(QPoint(rest.width() / 2, rest.height() / 2), size);
}

} // namespace

void PLG_livecontrol::paintOverlay(DOC_Interface* document, bool pass, IMG_FrameBuffer* frame) {
    if (!document->isConnected()) {
        return;
    }
    auto& settings = docAs<DOC_Settings>(document);
    if (!settings.isLowLight()) {
        if (m_host->isCurrentDocument(document)) {
            drawArea(document, pass, m_selectArea, nullptr, 1.0F, GL_LINE_STIPPLE);
            if (frame && m_histogramVisible &&
                (m_host->isHwTriggerSetting() || m_host->isAutoExposureSetting())) {
                showHistogram(*frame);
            }
        }
        return;
    }
    if (!pass && settings.getLowLightType() == kLowLightShowsArea) {
        const QColor red(255, 0, 0, 255);
        if (const std::optional<QRect> area = resolutionArea(*m_host, document, settings)) {
            drawArea(document, false, *area, &red, 1.0F, GL_LINE_SMOOTH);
        }
    }
}

void PLG_livecontrol::showHistogram(IMG_FrameBuffer& frame) {
    std::array<histogram::Row, 3> bins{};
    const int channels = frame.isColor ? 3 : 1;
    frame.getHistogramBins(bins.front().data(), channels, histogram::kBins,
                           static_cast<qint8>(frame.bitsPerSample), &m_selectArea, false, true);
    const histogram::Row& shown = bins[frame.isColor ? 1 : 0];
    const quint32 peak = *std::max_element(shown.begin(), shown.end());
    if (auto* const widget = dynamic_cast<GUI_ImageTriggerHistgramWidget*>(getWidget())) {
        widget->setHistogramData(bins.front().data(), m_histogramBitDepth, channels, static_cast<int>(peak));
        widget->update();
    }
}
