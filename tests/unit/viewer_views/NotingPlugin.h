#pragma once

#include "livecontrol/interface/IMG_FrameBuffer.h"
#include "livecontrol/plugin/PLG_HTML.h"
#include "viewer/overlay/OverlaySettings.h"
#include "viewer/prefs/FilePreferences.h"
#include "viewer/views/ViewClient.h"

#include <QTest>

#include <stdexcept>

/// Notes the calls; `area` says whether its page edits an area.
class NotingPlugin : public PLG_HTML {
public:
    void onPaintOverlay(DOC_Interface* document, bool /*pass*/, IMG_FrameBuffer* frame) override {
        ++paints;
        painted = document;
        QVERIFY(reads || !frame);
        size = frame ? QSize(frame->width, frame->height) : QSize();
        if (frame) {
            bins.fill(0, 256);
            frame->getHistogramBins(bins.data(), 1, bins.size(), 8, nullptr, false, true);
            corner = frame->samples16 ? frame->samples16[frame->stride * 19 + frame->width - 1] : -1;
        }
        if (throws) {
            throw std::runtime_error("overlay");
        }
    }
    bool isAreaPage() override { return area; }
    QRect getArea() override { return place; }
    void mousePress(const QPoint& pos, DOCKEY key) override { note("press", pos, key); }
    void mouseMove(const QPoint& pos, DOCKEY key) override { note("move", pos, key); }
    void mouseRelease(const QPoint& pos, DOCKEY key) override { note("release", pos, key); }
    void mouseCancel(DOCKEY key) override { note("cancel", QPoint(), key); }
    void mouseLeave() override { ++leaves; }
    void keyPress(QKeyEvent* event) override {
        events += QStringLiteral("key %1").arg(event->key());
        place.translate(1, 0);
    }
    void clearKeyHeld() override { ++keysUp; }

    bool area = true;
    QRect place{0, 0, 64, 64};
    bool throws = false;
    bool reads = false;    // a frame
    QSize size;            // of the last one,
    QVector<quint32> bins; // how often each sample of 8 bits is in it,
    int corner = 0;        // and its wide sample at the right of row 19; -1 without wide ones
    int paints = 0;
    int leaves = 0;
    int keysUp = 0;
    DOC_Interface* painted = nullptr;
    QStringList events;

private:
    void note(const char* what, const QPoint& pos, DOCKEY key) {
        events += QStringLiteral("%1 %2,%3 %4").arg(QLatin1String(what)).arg(pos.x()).arg(pos.y()).arg(key);
        if (throws) {
            throw std::runtime_error(what);
        }
    }
};

struct NotingClient : ViewClient {
    PLG_Interface* openPlugin() override { return plugin; }
    void areaEdited(Document&, const QRect&, bool isJoined) override { joins += isJoined; }
    QList<bool> joins; // of the edits of the area
    OverlayPreferences* shownInfo() override { return &overlay; }
    FilePreferences preferences{QString()};
    OverlayPreferences overlay{preferences};
    bool isFrameRead(const Document&) override { return reads; }
    PLG_Interface* plugin = nullptr;
    bool reads = false;
};
