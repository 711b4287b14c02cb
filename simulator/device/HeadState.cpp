// What can be done to a head from outside: its state as JSON, and a change of a setting at the camera itself.
#include "simulator/device/SimulatedBody.h"
#include "viewer/cameras/settings/SettingTable.h"

#include <QJsonArray>

namespace {

const QString kOutside = QStringLiteral("changeFromOutside");

// Of the lens, which is no setting.
QVariant given(Setting::Kind kind, const QVariant& value, const QString& camera) {
    Setting form;
    form.kind = kind;
    return SettingTable::checked(form, value, kOutside, camera);
}

} // namespace

// True if it was a matter of the lens.
bool SimulatedHead::turnLens(const QString& setting, const QVariant& value) {
    static const QStringList rings = {QStringLiteral("iris"), QStringLiteral("focus"),
                                      QStringLiteral("zoom")};
    const int ring = rings.indexOf(setting);
    if (ring >= 0) {
        m_lens.turn(LensAxis(ring), given(Setting::Kind::Whole, value, fullName()).toInt());
    } else if (setting == QLatin1String("lensContact")) {
        m_lens.setContact(given(Setting::Kind::OnOff, value, fullName()).toBool());
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

CommandResult SimulatedHead::changeFromOutside(const QString& setting, const QVariant& value) {
    if (m_body->isDummy()) {
        throw refusal(kOutside, reason("a dummy has no settings"));
    }
    m_body->requireNoRing(kOutside, fullName());
    CommandResult result = CommandResult::Ok;
    if (!turnLens(setting, value)) {
        const Setting* const row = SettingTable::find(setting);
        if (!row) {
            throw CameraError(CameraError::Kind::BadValue, kOutside, fullName(),
                              reason("unknown setting \"%1\"", {setting}));
        }
        result = apply(edit(*row, kOutside, SettingTable::checked(*row, value, kOutside, fullName())));
    }
    emit changedOutside(this);
    return result;
}

QJsonObject SimulatedHead::state() const {
    const Recording& memory = recording();
    QJsonArray shots;
    for (const Shot& shot : memory.shots) {
        shots << QJsonObject{{QStringLiteral("triggerNumber"), double(shot.triggerNumber)},
                             {QStringLiteral("before"), shot.before},
                             {QStringLiteral("after"), shot.after},
                             {QStringLiteral("step"), shot.step}};
    }
    const QJsonObject recorded{{QStringLiteral("frames"), memory.frames},
                               {QStringLiteral("firstNumber"), double(memory.firstNumber())},
                               {QStringLiteral("shots"), shots},
                               {QStringLiteral("rate"), double(memory.settings.rate)}};
    const QRect part = area();
    const QJsonObject lens{{QStringLiteral("iris"), m_lens.axis(LensAxis::Iris).value},
                           {QStringLiteral("focus"), m_lens.axis(LensAxis::Focus).value},
                           {QStringLiteral("zoom"), m_lens.axis(LensAxis::Zoom).value},
                           {QStringLiteral("lensContact"), m_lens.hasContact()}};
    QJsonObject state = SettingTable::state(m_settings);
    state.insert(QStringLiteral("area"), QJsonArray{part.x(), part.y(), part.width(), part.height()});
    state.insert(QStringLiteral("name"), fullName());
    state.insert(QStringLiteral("head"), m_index);
    state.insert(QStringLiteral("lens"), lens);
    state.insert(QStringLiteral("imageTriggered"), m_imageMet);
    state.insert(QStringLiteral("totalFrames"), totalFrames());
    state.insert(QStringLiteral("recording"), recorded);
    return state;
}
