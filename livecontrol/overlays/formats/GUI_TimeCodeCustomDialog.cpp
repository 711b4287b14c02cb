#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"

#include "livecontrol/foundation/TimeCodeMath.h"
#include "livecontrol/interface/HostObject.h"

#include <QtGlobal>

#include <limits>

using timecode::fourDecimals;
using timecode::numberOf;

namespace {

constexpr int kInFrames = 0;
constexpr int kInUnit = 1;
constexpr int kFewestFrames = 1;
constexpr int kMostFrames = 99999;
constexpr qint64 kSampleTime = 2000000; // ns

/// What a text that is to be a count holds, however large.
int wholeOf(double value) { return int(qBound(-timecode::kMaxShown, value, timecode::kMaxShown)); }

int held(qint64 count) { return int(qBound<qint64>(kFewestFrames, count, kMostFrames)); }

} // namespace

GUI_TimeCodeCustomDialog::GUI_TimeCodeCustomDialog(HostObject* host, QWidget* parent)
    : GUI_PageDialog(host, QStringLiteral("Current Time Setting"), parent, Qt::WindowFlags()) {
    load();
    setFixedSize(450, 470);
    loadPage(QStringLiteral("qrc:/prefs_customize_timecode.html"));
}

void GUI_TimeCodeCustomDialog::populateJavaScriptWindowObject() {
    addToPage(QStringLiteral("timecode_custom_mediator"), this);
    reportingFailures(m_host, [this] { addToPage(QStringLiteral("app"), m_host->getAppScriptObject()); });
}

void GUI_TimeCodeCustomDialog::ok() {
    if (saveTimeCodeSetting()) {
        accept();
    }
}

void GUI_TimeCodeCustomDialog::cancel() { reject(); }

void GUI_TimeCodeCustomDialog::loadTimeCodeSetting() {
    reportingFailures(m_host, [this] { load(); });
}

void GUI_TimeCodeCustomDialog::load() {
    const TimeCodeSetting setting = m_host->getTimeCodeSetting();
    m_edited.index = setting.index;
    m_edited.unit = setting.displayUnit;
    setTimeCodeOneFrame(fourDecimals(setting.oneFrame), false);
    m_edited.startValue = fourDecimals(setting.startValue);
    m_edited.scope = setting.scopeDisplayIndex;
    m_edited.decimalPlace = setting.decimalPlaceIndex;
    m_edited.decimalDivide = setting.decimalDivide;
    m_edited.usingRchFileInfo = setting.usingRchFileInfo;
    m_edited.overwrite = setting.overwrite;
    m_edited.realTime = setting.realTime;
    m_edited.reset = setting.reset;
    m_resetUnitIndex = kInUnit;
    setTimeCodeResetValue(fourDecimals(setting.resetValue), false);
    buildSample(true);
    setTimeCodeResetUnitIndex(kInFrames, false);
}

TimeCodeSetting GUI_TimeCodeCustomDialog::record() const {
    TimeCodeSetting setting;
    setting.index = m_edited.index;
    setting.displayUnit = m_edited.unit;
    setting.oneFrame = numberOf(m_edited.oneFrame);
    setting.startValue = numberOf(m_edited.startValue);
    setting.reset = m_edited.reset;
    const double count = wholeOf(numberOf(m_edited.resetValue));
    setting.resetValue =
        numberOf(m_resetUnitIndex == kInFrames ? fourDecimals(setting.startValue + setting.oneFrame * count)
                                               : m_edited.resetValue);
    setting.scopeDisplayIndex = m_edited.scope;
    setting.decimalPlaceIndex = m_edited.decimalPlace;
    setting.decimalDivide = m_edited.decimalDivide;
    setting.usingRchFileInfo = m_edited.usingRchFileInfo;
    setting.overwrite = m_edited.overwrite;
    setting.realTime = m_edited.realTime;
    return setting;
}

bool GUI_TimeCodeCustomDialog::saveTimeCodeSetting() {
    return guarded(
        [this] {
            m_host->setTimeCodeSetting(record());
            return true;
        },
        false);
}

void GUI_TimeCodeCustomDialog::reset() {
    m_edited = Edited();
    m_resetUnitIndex = kInFrames;
    m_negative = false;
    buildSample(true);
}

void GUI_TimeCodeCustomDialog::buildSample(bool wanted) {
    if (!wanted) {
        return;
    }
    const timecode::TimeFormat format{m_edited.scope, m_edited.decimalPlace, m_edited.decimalDivide};
    m_sample = QLatin1Char(m_negative ? '-' : '+') +
               (m_edited.index != 0 ? timecode::valueText(numberOf(m_edited.oneFrame), m_edited.unit)
                                    : timecode::timeText(kSampleTime, format));
}

void GUI_TimeCodeCustomDialog::setTimeCodeIndex(int index, bool isUpdateSample) {
    m_edited.index = index;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDisplayUnit(const QString& unit, bool isUpdateSample) {
    m_edited.unit = unit;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeOneFrame(const QString& value, bool isUpdateSample) {
    m_negative = numberOf(value) < 0;
    m_edited.oneFrame = fourDecimals(numberOf(value));
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeStartValue(const QString& value, bool isUpdateSample) {
    m_edited.startValue = fourDecimals(numberOf(value));
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeReset(bool reset, bool isUpdateSample) {
    m_edited.reset = reset;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeResetUnitIndex(int index, bool isUpdateSample) {
    const double oneFrame = numberOf(m_edited.oneFrame);
    const double start = numberOf(m_edited.startValue);
    const double value = numberOf(m_edited.resetValue);
    if (index == kInFrames) {
        m_edited.resetValue =
            QString::number(held(timecode::countFromValue(m_edited.reset, oneFrame, value, start)));
    } else {
        m_edited.resetValue = fourDecimals(timecode::guardedValueFromCount(wholeOf(value), oneFrame, start));
    }
    m_resetUnitIndex = index;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeResetValue(const QString& value, bool isUpdateSample) {
    m_edited.resetValue = m_resetUnitIndex == kInFrames ? heldCount(value) : snappedValue(value);
    buildSample(isUpdateSample);
}

QString GUI_TimeCodeCustomDialog::heldCount(const QString& value) const {
    const double frames = numberOf(value);
    const bool isWithin = frames >= kFewestFrames && frames <= kMostFrames;
    return isWithin ? value : QString::number(frames < kFewestFrames ? kFewestFrames : kMostFrames);
}

QString GUI_TimeCodeCustomDialog::snappedValue(const QString& value) const {
    const double oneFrame = numberOf(m_edited.oneFrame);
    const double start = numberOf(m_edited.startValue);
    const double limit = start + oneFrame * kMostFrames;
    double number = numberOf(value);
    if ((number > 0 && limit > 0 && number > limit) || (number < 0 && limit < 0 && number < limit)) {
        number = limit;
    }
    const qint64 count = timecode::countFromValue(m_edited.reset, oneFrame, number, start);
    const int frames = int(qMin<qint64>(count, std::numeric_limits<int>::max()));
    return fourDecimals(timecode::guardedValueFromCount(frames, oneFrame, start));
}

void GUI_TimeCodeCustomDialog::setTimeCodeScopeDisplayIndex(int index, bool isUpdateSample) {
    m_edited.scope = index;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDecimalPlaceIndex(int index, bool isUpdateSample) {
    m_edited.decimalPlace = index;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeDecimalDivide(bool divide, bool isUpdateSample) {
    m_edited.decimalDivide = divide;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeUsingRchFileInfo(bool use, bool isUpdateSample) {
    m_edited.usingRchFileInfo = use;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeOverWrite(bool overwrite, bool isUpdateSample) {
    m_edited.overwrite = overwrite;
    buildSample(isUpdateSample);
}

void GUI_TimeCodeCustomDialog::setTimeCodeRealTime(bool realTime, bool isUpdateSample) {
    m_edited.realTime = realTime;
    buildSample(isUpdateSample);
}
