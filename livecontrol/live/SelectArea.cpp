// The rectangle on the image between the page and the plug-in. The page counts in pixels of what the user
// sees (userview), the plug-in in those of the original image. All setting pages with an area share this.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/UTL_MapRect.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"
#include "livecontrol/live/LivePlugin.h"

namespace {

int bounded(double number) { return static_cast<int>(qBound<double>(-kMaxPixels, number, kMaxPixels)); }

int pageNumber(const QJsonObject& object, const char* key) {
    return bounded(object.value(QLatin1String(key)).toDouble());
}

QString areaText(const QRect& area) {
    return json::compact({{QStringLiteral("X"), area.left()},
                          {QStringLiteral("Y"), area.top()},
                          {QStringLiteral("Width"), area.width()},
                          {QStringLiteral("Height"), area.height()}});
}

} // namespace

QRect JS_Mediator_LiveControl::selectAreaInUserview(DOC_Interface* document) {
    return mapRectToUserview(host(), document, m_livePlugin->getSelectArea());
}

QString JS_Mediator_LiveControl::convertUserviewRect(int x, int y, int w, int h) {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            return document ? areaText(mapRectToUserview(
                                  host(), document, QRect(bounded(x), bounded(y), bounded(w), bounded(h))))
                            : QString();
        },
        QString());
}

bool JS_Mediator_LiveControl::unsetSelectArea() { return m_livePlugin->isSelectAreaNull(); }

void JS_Mediator_LiveControl::resetSelectArea() { m_livePlugin->setSelectArea(QRect()); }

void JS_Mediator_LiveControl::sendSelectArea(const QString& selectAreaJSON) {
    guarded([&] {
        DOC_Interface* const document = host()->currentDocument();
        if (!document) {
            return;
        }
        const QJsonObject area = QJsonDocument::fromJson(selectAreaJSON.toUtf8()).object();
        const QRect inUserview(QPoint(pageNumber(area, "X"), pageNumber(area, "Y")),
                               QSize(pageNumber(area, "Width"), pageNumber(area, "Height")));
        m_livePlugin->setSelectArea(mapRectToOriginal(host(), document, inUserview));
    });
}

QString JS_Mediator_LiveControl::recvSelectArea() {
    return guarded(
        [&] {
            DOC_Interface* const document = host()->currentDocument();
            return document ? areaText(selectAreaInUserview(document)) : QString();
        },
        QString());
}
