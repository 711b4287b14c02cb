#include "livecontrol/overlays/info/InfoSettings.h"

#include "livecontrol/interface/HostApplication.h"

#include <QVariant>
#include <array>
#include <cstring>

namespace {

// What the store holds before the first write is the host's own factory value.
const QVariant kNoDefault;
const QString kCollective = QStringLiteral("saveinfo/collectiveSetting");
const QString kWithinImage = QStringLiteral("saveinfo/WithinImage");
const QString kBlankLine = QStringLiteral("info/BlankLine");

constexpr std::array<const char*, 7> kSavedOnly = {"UseBackgroundColor",
                                                   "BackgroundColor",
                                                   "ToColumn",
                                                   "ColumnNum",
                                                   "ColumnSpacing",
                                                   "FixedFontSizeRatio",
                                                   "FixedFontSizeRatioBaseResolution"};

bool isSavedOnly(const char* name) {
    for (const char* const each : kSavedOnly) {
        if (std::strcmp(each, name) == 0) {
            return true;
        }
    }
    return false;
}

} // namespace

QString InfoSettings::plainKey(const char* name) const {
    return QLatin1String(m_savedView ? "saveinfo/" : "info/") + QLatin1String(name);
}

QString InfoSettings::key(const char* name, int group) const {
    if (m_savedView) {
        const bool isLiveOnly = std::strcmp(name, "IconSize") == 0;
        return isLiveOnly ? QString() : plainKey(name) + QString::number(group);
    }
    return isSavedOnly(name) ? QString() : plainKey(name);
}

QVariant InfoSettings::read(const QString& key) const {
    return key.isEmpty() ? QVariant() : m_host->getPref(key, kNoDefault);
}

QString InfoSettings::text(const char* name, int group) const { return read(key(name, group)).toString(); }

void InfoSettings::setText(const char* name, int group, const QString& value) {
    if (const QString stored = key(name, group); !stored.isEmpty()) {
        m_host->setPref(stored, value);
    }
}

bool InfoSettings::flag(const char* name, int group) const {
    const QString stored = key(name, group);
    return !stored.isEmpty() && m_host->getPrefBool(stored, kNoDefault);
}

void InfoSettings::setFlag(const char* name, int group, bool value) {
    if (const QString stored = key(name, group); !stored.isEmpty()) {
        m_host->setPrefBool(stored, value);
    }
}

int InfoSettings::number(const char* name, int group) const {
    const QString stored = key(name, group);
    return stored.isEmpty() ? 0 : m_host->getPrefInt(stored, kNoDefault);
}

void InfoSettings::setNumber(const char* name, int group, int value) {
    if (std::strcmp(name, "ColumnSpacing") != 0) {
        setText(name, group, QString::number(value));
    } else if (const QString stored = key(name, group); !stored.isEmpty()) {
        m_host->setPref(stored, value);
    }
}

QSize InfoSettings::size(const char* name, int group) const {
    const QVariant value = read(key(name, group));
    return value.canConvert<QSize>() ? value.toSize() : QSize();
}

void InfoSettings::setSize(const char* name, int group, const QSize& value) {
    if (const QString stored = key(name, group); !stored.isEmpty()) {
        m_host->setPref(stored, value);
    }
}

void InfoSettings::remove(const char* name, int group) { m_host->removePref(key(name, group)); }

InfoStyle InfoSettings::style(int group) const {
    InfoStyle style;
    style.fontName = text("FontName", group);
    style.fontSize = text("FontSize", group);
    style.bold = flag("Bold", group);
    style.italic = flag("Italic", group);
    style.fixedRatio = flag("FixedFontSizeRatio", group);
    style.ratioBase = size("FixedFontSizeRatioBaseResolution", group);
    style.alignment = number("Alignment", group);
    style.width = number("Width", group);
    style.toColumn = flag("ToColumn", group);
    style.columnCount = text("ColumnNum", group);
    style.foreground = text("ForegroundColor", group);
    style.useBackground = flag("UseBackgroundColor", group);
    style.background = text("BackgroundColor", group);
    style.columnSpacing = number("ColumnSpacing", group);
    return style;
}

void InfoSettings::setStyle(int group, const InfoStyle& style) {
    setText("FontName", group, style.fontName);
    setText("FontSize", group, style.fontSize);
    setFlag("Bold", group, style.bold);
    setFlag("Italic", group, style.italic);
    setText("ForegroundColor", group, style.foreground);
    setFlag("FixedFontSizeRatio", group, style.fixedRatio);
    setSize("FixedFontSizeRatioBaseResolution", group, style.ratioBase);
    setFlag("UseBackgroundColor", group, style.useBackground);
    setText("BackgroundColor", group, style.background);
    setNumber("Alignment", group, style.alignment);
    setNumber("Width", group, style.width);
    setFlag("ToColumn", group, style.toColumn);
    setText("ColumnNum", group, style.columnCount);
    setNumber("ColumnSpacing", group, style.columnSpacing);
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
