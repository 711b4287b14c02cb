// How the current image is shown, from a page's view.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/JS_Mediator.h"

namespace {

constexpr int kDegreesOfATurn = 360;
constexpr int kDefaultBits = 8;

struct Unit {
    const char* value;
    const char* view;
};

constexpr Unit kMetric[] = {{"Micro (\u00b5m)", "\u00b5m"}, {"Milimeters (mm)", "mm"}, {"Meters (m)", "m"}};
constexpr Unit kImperial[] = {{"Inches (in)", "inch"}, {"Feet (ft)", "feet"}, {"Yard (yd)", "yard"}};

} // namespace

QString JS_Mediator::getCalibrationUnits() {
    return guarded(
        [&] {
            const bool metric = m_host->getPrefInt(QStringLiteral("customize/unitSystem"), QVariant()) != 0;
            QJsonArray units;
            for (const Unit& unit : metric ? kMetric : kImperial) {
                units.append(QJsonObject{
                    {QStringLiteral("value"), QString::fromUtf8(unit.value)},
                    {QStringLiteral("view"), m_host->translate(QString::fromUtf8(unit.view), nullptr, 0)}});
            }
            return json::compact(units);
        },
        QString());
}

int JS_Mediator::getRangeMax() {
    return guarded(
        [&] {
            int bits = kDefaultBits;
            if (m_host->getPrefBool(QStringLiteral("display/DisplayWithRealBitDepth"), QVariant()) &&
                m_host->currentDocument()) {
                const int real = m_host->getBitDepth();
                bits = real > 0 ? real : kDefaultBits;
            }
            m_rangeMax = (1 << bits) - 1;
            return m_rangeMax;
        },
        0);
}

QString JS_Mediator::getFlip() {
    int flips = 0;
    guarded([&] {
        const DOCKEY key = m_host->getCurrentKey();
        flips |= m_host->getFlipA(key) ? 1 : 0;
        flips |= m_host->getFlipB(key) ? 2 : 0;
    });
    return json::text(flips);
}

QString JS_Mediator::getRotate() {
    return guarded(
        [&] { return json::text(qRound(m_host->getRotation(m_host->getCurrentKey()) * kDegreesOfATurn)); },
        QStringLiteral("0"));
}
