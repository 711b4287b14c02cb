// What can be done to a head from outside: its state as JSON, and a change of a setting at the camera itself.
#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/SettingsRules.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <cmath>

namespace {

const QString Outside = QStringLiteral("changeFromOutside");

[[noreturn]] void badValue(const QString& camera, const QString& reason) {
    throw CameraError(CameraError::Kind::BadValue, Outside, camera, reason);
}

// Texts count too: a console hands on what a user typed.
double number(const QString& camera, const QVariant& value, double min, double max, bool whole) {
    bool ok = value.type() != QVariant::Bool;
    const double result = ok ? value.toDouble(&ok) : 0;
    if (!ok || !(result >= min && result <= max) || (whole && result != std::floor(result)))
        badValue(camera, QStringLiteral("a %1 from %2 to %3 is expected")
                             .arg(whole ? QStringLiteral("whole number") : QStringLiteral("number"))
                             .arg(min)
                             .arg(max, 0, 'f', 0));
    return result;
}

int wholeNumber(const QString& camera, const QVariant& value, int min) {
    return static_cast<int>(number(camera, value, min, 10000000, true));
}

bool truth(const QString& camera, const QVariant& value) {
    const QString text = value.toString();
    if (text != QLatin1String("true") && text != QLatin1String("false"))
        badValue(camera, QStringLiteral("true or false is expected"));
    return text == QLatin1String("true");
}

QSize size(const QString& camera, const QVariant& value) {
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,5})\\s*x\\s*(\\d{1,5})\\s*$"));
    if (value.type() == QVariant::Size)
        return value.toSize();
    const QVariantList pair = value.toList();
    if (pair.size() == 2)
        return {wholeNumber(camera, pair.at(0), 1), wholeNumber(camera, pair.at(1), 1)};
    const QRegularExpressionMatch match = form.match(value.toString());
    if (!match.hasMatch())
        badValue(camera, QStringLiteral("a size such as 1280x1024 is expected"));
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

CommandResult done() { return CommandResult::Ok; }

} // namespace

CameraHead::Edit CameraHead::outsideEdit(const QString& setting, const QVariant& value) const {
    const QString camera = fullName();
    if (setting == QLatin1String("resolution"))
        return
            [=](HeadSettings& s) { return SettingsRules::setResolution(*m_model, s, size(camera, value)); };
    if (setting == QLatin1String("rate"))
        return [=](HeadSettings& s) {
            return SettingsRules::setRate(*m_model, s, quint32(wholeNumber(camera, value, 1)));
        };
    if (setting == QLatin1String("shutter"))
        return [=](HeadSettings& s) {
            return SettingsRules::setShutter(*m_model, s, quint32(wholeNumber(camera, value, 1)));
        };
    if (setting == QLatin1String("shutterLock"))
        return [=](HeadSettings& s) {
            requireFunction(CameraFunction::ShutterLock, Outside);
            return SettingsRules::setShutterLock(s, truth(camera, value));
        };
    if (setting == QLatin1String("resolutionLock"))
        return [=](HeadSettings& s) {
            requireFunction(CameraFunction::ResolutionLock, Outside);
            s.resolutionLock = truth(camera, value);
            return done();
        };
    if (setting == QLatin1String("dualSlope"))
        return editDualSlope(Outside, wholeNumber(camera, value, 0));
    if (setting == QLatin1String("dualSlopeMode"))
        return [=](HeadSettings& s) {
            requireFunction(CameraFunction::DualSlopeMode, Outside);
            s.dualSlopeMode = truth(camera, value);
            return done();
        };
    if (setting == QLatin1String("autoExposure"))
        return editAutoExposure(Outside, truth(camera, value));
    if (setting == QLatin1String("triggerMode"))
        return editTrigger(Outside, wholeNumber(camera, value, 0), 0);
    if (setting == QLatin1String("afterFrames"))
        return editTrigger(Outside, m_settings.triggerMode, wholeNumber(camera, value, 1));
    if (setting == QLatin1String("randomFrames"))
        return editTrigger(Outside, m_settings.triggerMode, 0, wholeNumber(camera, value, 1));
    if (setting == QLatin1String("randomCount"))
        return editTrigger(Outside, m_settings.triggerMode, 0, 0, wholeNumber(camera, value, 1));
    if (setting == QLatin1String("randomTimes"))
        return editRandomTimes(Outside, truth(camera, value));
    if (setting == QLatin1String("aperture"))
        return [=](HeadSettings& s) {
            s.aperture = number(camera, value, 0, 16, false);
            return done();
        };
    if (setting == QLatin1String("lowLight"))
        return editLowLight(Outside, truth(camera, value));
    if (setting == QLatin1String("channel"))
        return editChannel(Outside, wholeNumber(camera, value, 0));
    badValue(camera, QStringLiteral("unknown setting \"%1\"").arg(setting));
}

// True if it was a matter of the lens.
bool CameraHead::turnLens(const QString& setting, const QVariant& value) {
    static const QStringList rings = {QStringLiteral("iris"), QStringLiteral("focus"),
                                      QStringLiteral("zoom")};
    const int ring = rings.indexOf(setting);
    if (ring >= 0) {
        m_lens.turn(LensAxis(ring), wholeNumber(fullName(), value, 0));
    } else if (setting == QLatin1String("lensContact")) {
        m_lens.setContact(truth(fullName(), value));
        if (!m_model->supports(CameraFunction::LensControl)) {
            m_lens.reset(); // nobody could ask for it
        }
    } else {
        return false;
    }
    followLightSoon();
    emit settingsChanged(this);
    return true;
}

CommandResult CameraHead::changeFromOutside(const QString& setting, const QVariant& value) {
    if (m_body->isDummy())
        refuse(Outside, QStringLiteral("a dummy has no settings"));
    m_body->requireNoRing(Outside, fullName());
    const CommandResult result = turnLens(setting, value) ? done() : apply(outsideEdit(setting, value));
    emit changedOutside(this);
    return result;
}

namespace {
QJsonObject judgeState(const AreaJudge& judge) {
    const QRect& area = judge.area;
    return {{QStringLiteral("area"), QJsonArray{area.x(), area.y(), area.width(), area.height()}},
            {QStringLiteral("value"), double(judge.value)},
            {QStringLiteral("range"), double(judge.range)}};
}
} // namespace

QJsonObject CameraHead::settingsState(const HeadSettings& s) {
    const QJsonObject settings{
        {QStringLiteral("resolution"), QJsonArray{s.resolution.width(), s.resolution.height()}},
        {QStringLiteral("rate"), double(s.rate)},
        {QStringLiteral("shutter"), double(s.shutter)},
        {QStringLiteral("shutterLock"), s.shutterLock},
        {QStringLiteral("resolutionLock"), s.resolutionLock},
        {QStringLiteral("dualSlope"), s.dualSlope},
        {QStringLiteral("dualSlopeMode"), s.dualSlopeMode},
        {QStringLiteral("autoExposure"), s.exposure.on},
        {QStringLiteral("imageTrigger"), s.imageTrigger.on},
        {QStringLiteral("triggerMode"), s.triggerMode},
        {QStringLiteral("afterFrames"), s.afterFrames},
        {QStringLiteral("randomFrames"), s.randomFrames},
        {QStringLiteral("randomCount"), s.randomCount},
        {QStringLiteral("randomTimes"), s.randomTimes},
        {QStringLiteral("aperture"), s.aperture},
        {QStringLiteral("channel"), s.channel},
        {QStringLiteral("lowLight"), s.lowLight.on},
        {QStringLiteral("lowLightType"), s.lowLight.type},
        {QStringLiteral("lowLightShutter"), double(s.lowLight.shutter)},
        {QStringLiteral("led"), s.led},
        {QStringLiteral("laser"), s.laser}};
    QJsonObject exposure = judgeState(s.exposure);
    exposure.insert(QStringLiteral("maxTime"), double(s.exposure.maxTime));
    return {{QStringLiteral("settings"), settings},
            {QStringLiteral("shutterWish"), double(s.shutterWish)},
            {QStringLiteral("exposureControl"), exposure},
            {QStringLiteral("imageTriggerControl"), judgeState(s.imageTrigger)}};
}

QJsonObject CameraHead::state() const {
    const Recording& memory = recording();
    QJsonArray takes;
    for (const Take& take : memory.takes)
        takes << QJsonObject{{QStringLiteral("triggerNumber"), double(take.triggerNumber)},
                             {QStringLiteral("before"), take.before},
                             {QStringLiteral("after"), take.after},
                             {QStringLiteral("step"), take.step}};
    const QJsonObject recorded{{QStringLiteral("frames"), memory.frames},
                               {QStringLiteral("firstNumber"), double(memory.firstNumber())},
                               {QStringLiteral("takes"), takes},
                               {QStringLiteral("rate"), double(memory.settings.rate)}};
    const QRect part = area();
    const QJsonObject lens{{QStringLiteral("iris"), m_lens.axis(LensAxis::Iris).value},
                           {QStringLiteral("focus"), m_lens.axis(LensAxis::Focus).value},
                           {QStringLiteral("zoom"), m_lens.axis(LensAxis::Zoom).value},
                           {QStringLiteral("lensContact"), m_lens.hasContact()}};
    QJsonObject state = settingsState(m_settings);
    state.insert(QStringLiteral("area"), QJsonArray{part.x(), part.y(), part.width(), part.height()});
    state.insert(QStringLiteral("name"), fullName());
    state.insert(QStringLiteral("head"), m_index);
    state.insert(QStringLiteral("lens"), lens);
    state.insert(QStringLiteral("imageTriggered"), m_imageMet);
    state.insert(QStringLiteral("totalFrames"), totalFrames());
    state.insert(QStringLiteral("recording"), recorded);
    return state;
}
