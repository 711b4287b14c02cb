// What the pages of auto exposure and of the image trigger share: a rectangle that a camera judges, levels,
// and a histogram of it.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/AreaSetting.h"
#include "livecontrol/live/BrightnessSettings.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

void JS_Mediator_LiveControl::enterBrightnessPage(const brightness::Page& page) {
    host()->setActiveTool(QString());
    holdImageForArea(host());
    m_showHistogram = host()->getPrefBool(page.showHistogram, false);
    // Free for the mouse, without an area and a widget of a page before.
    resetSelectArea();
    m_livePlugin->setVariableAreaLocked(false); // its page may have gone with its camera, not been left
    m_livePlugin->clearWidget();
}

QJsonObject JS_Mediator_LiveControl::brightnessText(const brightness::Page& page,
                                                    const AutoExposureInfo& current,
                                                    AutoExposureLimits limits, DOC_Interface* document,
                                                    const std::optional<quint32>& upperLimit) {
    takeAreaLimits(limits);
    if (m_livePlugin->isSelectAreaNull()) {
        takeArea(brightness::areaOf(current), limits, document);
    }
    const QRect area = selectAreaInUserview(document);
    brightness::Levels levels =
        brightness::levelsOnPage(current.value, current.range, limits, brightness::pageMaximum(host()));
    if (docAs<DOC_Geometry>(document).isAxisSwapped()) {
        brightness::swapAxes(limits);
    }
    if (upperLimit) {
        levels.valueMax = levels.rangeMax = *upperLimit;
    }
    m_livePlugin->setHistogramBitDepth(brightness::pageBitDepth(host()));
    m_livePlugin->setHistogramVisible(m_showHistogram);
    QJsonObject text = brightness::pageText(page, area, levels, limits);
    text[QStringLiteral("ShowHistgram")] = m_showHistogram;
    return text;
}

void JS_Mediator_LiveControl::takeAreaLimits(const AutoExposureLimits& limits) {
    const auto size = [](quint32 width, quint32 height) {
        return QSize(static_cast<int>(width), static_cast<int>(height));
    };
    m_livePlugin->setAreaConstraints(
        QPoint(static_cast<int>(limits.posXStep), static_cast<int>(limits.posYStep)),
        size(limits.widthStep, limits.heightStep), size(limits.widthMax, limits.heightMax),
        size(limits.widthMin, limits.heightMin), false, false);
}

void JS_Mediator_LiveControl::takeArea(const QRect& cameraArea, const AutoExposureLimits& limits,
                                       DOC_Interface* document) {
    if (!cameraArea.isEmpty()) {
        m_livePlugin->setSelectArea(
            brightness::originalArea(cameraArea, limits, docAs<DOC_Geometry>(document)));
    }
}

// The host tells of a camera that has cut the area as of a failure. So the camera is read back after one too,
// and in a block of its own: the message box of the first may let events run, in which a document may go.
void JS_Mediator_LiveControl::sendBrightness(const brightness::Page& page, const QString& text,
                                             const BrightnessReader& read, const BrightnessSender& send) {
    const QJsonObject wish = QJsonDocument::fromJson(text.toUtf8()).object();
    if (wish.isEmpty()) {
        return;
    }
    m_isPageTaken = false;
    DOC_Interface* document = nullptr;
    std::optional<AutoExposureInfo> before;
    bool isSent = false;
    guarded([&] {
        document = host()->currentDocument();
        if (!document) {
            return;
        }
        AutoExposureLimits limits;
        before = read(limits);
        const QRect area = m_livePlugin->getSelectArea();
        const QPoint corner = docAs<DOC_Geometry>(document).mapOriginalToCamera(area.topLeft());
        send(brightness::wishedInfo(page, wish, QRect(corner, area.size()), limits,
                                    brightness::pageMaximum(host())),
             wish, *before);
        host()->setPref(page.showHistogram, wish.value(QStringLiteral("ShowHistgram")).toBool());
        isSent = m_isPageTaken = true;
    });
    guarded([&] {
        if (!before || host()->currentDocument() != document) {
            return;
        }
        AutoExposureLimits limits;
        const AutoExposureInfo now = read(limits);
        if (isSent || !brightness::isSame(now, *before)) {
            m_isPageTaken = true;
            takeArea(brightness::areaOf(now), limits, document);
        }
    });
}

void JS_Mediator_LiveControl::setHistgramVisible(bool isShow) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setHistgramVisible"),
                               traceArgs({{"isShow", isShow}}));
    m_showHistogram = isShow;
    m_livePlugin->setHistogramVisible(isShow);
}
