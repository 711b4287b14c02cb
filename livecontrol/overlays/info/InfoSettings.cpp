#include "livecontrol/overlays/info/InfoSettings.h"

#include "livecontrol/interface/HostApplication.h"

#include <QVariant>

namespace {

// What the store holds before the first write is the host's own factory value.
const QVariant kNoDefault;
const QString kCollective = QStringLiteral("saveinfo/collectiveSetting");
const QString kWithinImage = QStringLiteral("saveinfo/WithinImage");
const QString kBlankLine = QStringLiteral("info/BlankLine");

} // namespace

QString InfoSettings::plainKey(const char* name) const {
    return QLatin1String(m_savedView ? "saveinfo/" : "info/") + QLatin1String(name);
}

QString InfoSettings::key(const InfoSetting& setting, int group) const {
    if (setting.family == (m_savedView ? InfoSetting::LiveOnly : InfoSetting::SavedOnly)) {
        return QString();
    }
    return m_savedView ? plainKey(setting.name) + QString::number(group) : plainKey(setting.name);
}

QVariant InfoSettings::read(const QString& key) const {
    return key.isEmpty() ? QVariant() : m_host->getPref(key, kNoDefault);
}

QString InfoSettings::text(const InfoSetting& setting, int group) const {
    return read(key(setting, group)).toString();
}

void InfoSettings::setText(const InfoSetting& setting, int group, const QString& value) {
    if (const QString stored = key(setting, group); !stored.isEmpty()) {
        m_host->setPref(stored, value);
    }
}

bool InfoSettings::flag(const InfoSetting& setting, int group) const {
    const QString stored = key(setting, group);
    return !stored.isEmpty() && m_host->getPrefBool(stored, kNoDefault);
}

void InfoSettings::setFlag(const InfoSetting& setting, int group, bool value) {
    if (const QString stored = key(setting, group); !stored.isEmpty()) {
        m_host->setPrefBool(stored, value);
    }
}

int InfoSettings::number(const InfoSetting& setting, int group) const {
    const QString stored = key(setting, group);
    return stored.isEmpty() ? 0 : m_host->getPrefInt(stored, kNoDefault);
}

void InfoSettings::setNumber(const InfoSetting& setting, int group, int value) {
    if (const QString stored = key(setting, group); !stored.isEmpty()) {
        m_host->setPref(stored, setting.isNumberText ? QVariant(QString::number(value)) : QVariant(value));
    }
}

QSize InfoSettings::size(const InfoSetting& setting, int group) const {
    const QVariant value = read(key(setting, group));
    return value.canConvert<QSize>() ? value.toSize() : QSize();
}

void InfoSettings::setSize(const InfoSetting& setting, int group, const QSize& value) {
    if (const QString stored = key(setting, group); !stored.isEmpty()) {
        m_host->setPref(stored, value);
    }
}

void InfoSettings::remove(const InfoSetting& setting, int group) { m_host->removePref(key(setting, group)); }

InfoStyle InfoSettings::style(int group) const {
    InfoStyle style;
    style.fontName = text(info::FontName, group);
    style.fontSize = text(info::FontSize, group);
    style.bold = flag(info::Bold, group);
    style.italic = flag(info::Italic, group);
    style.fixedRatio = flag(info::FixedFontSizeRatio, group);
    style.ratioBase = size(info::FixedFontSizeRatioBaseResolution, group);
    style.alignment = number(info::Alignment, group);
    style.width = number(info::Width, group);
    style.toColumn = flag(info::ToColumn, group);
    style.columnCount = text(info::ColumnNum, group);
    style.foreground = text(info::ForegroundColor, group);
    style.useBackground = flag(info::UseBackgroundColor, group);
    style.background = text(info::BackgroundColor, group);
    style.columnSpacing = number(info::ColumnSpacing, group);
    return style;
}

void InfoSettings::setStyle(int group, const InfoStyle& style) {
    setText(info::FontName, group, style.fontName);
    setText(info::FontSize, group, style.fontSize);
    setFlag(info::Bold, group, style.bold);
    setFlag(info::Italic, group, style.italic);
    setText(info::ForegroundColor, group, style.foreground);
    setFlag(info::FixedFontSizeRatio, group, style.fixedRatio);
    setSize(info::FixedFontSizeRatioBaseResolution, group, style.ratioBase);
    setFlag(info::UseBackgroundColor, group, style.useBackground);
    setText(info::BackgroundColor, group, style.background);
    setNumber(info::Alignment, group, style.alignment);
    setNumber(info::Width, group, style.width);
    setFlag(info::ToColumn, group, style.toColumn);
    setText(info::ColumnNum, group, style.columnCount);
    setNumber(info::ColumnSpacing, group, style.columnSpacing);
}

bool InfoSettings::isCollective() const {
    return m_savedView && m_host->getPrefBool(kCollective, kNoDefault);
}

void InfoSettings::setCollective(bool value) {
    if (m_savedView) {
        m_host->setPrefBool(kCollective, value);
    }
}

bool InfoSettings::isWithinImage() const {
    return m_savedView && m_host->getPrefBool(kWithinImage, kNoDefault);
}

void InfoSettings::setWithinImage(bool value) {
    if (m_savedView) {
        m_host->setPrefBool(kWithinImage, value);
    }
}

bool InfoSettings::hasBlankLine() const { return m_host->getPrefBool(kBlankLine, kNoDefault); }

void InfoSettings::setBlankLine(bool value) { m_host->setPrefBool(kBlankLine, value); }

QString InfoSettings::logoPath() const { return read(plainKey("LogoPath")).toString(); }

void InfoSettings::setLogoPath(const QString& path) { m_host->setPref(plainKey("LogoPath"), path); }
