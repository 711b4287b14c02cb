// How a group of information looks, and the dialogs on what its items say.

#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/formats/GUI_FrameFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RecordRateFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_RectimeFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_ShutterSpeedFormatDialog.h"
#include "livecontrol/overlays/formats/GUI_TimeCodeCustomDialog.h"
#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"
#include "livecontrol/overlays/notes/GUI_CommentDialog.h"
#include "livecontrol/overlays/notes/GUI_CustomInfoDialog.h"

template <class Result>
Result GUI_EditInfoDialog::get(Result (InfoSettings::*read)(const InfoSetting&, int) const,
                               const InfoSetting& setting, int offset) {
    return guarded(
        [&] {
            if (!group(offset)) {
                return Result();
            }
            m_current = offset;
            return (m_settings.*read)(setting, offset);
        },
        Result());
}

template <class Write, class Value>
void GUI_EditInfoDialog::set(Write write, const InfoSetting& setting, const Value& value, bool isUpdated) {
    guarded([&] {
        (m_settings.*write)(setting, m_current, value);
        if (isUpdated) {
            update();
        }
    });
}

template <class Run>
void GUI_EditInfoDialog::edit(Run&& run) {
    guarded([&] {
        run();
        update();
    });
}

QStringList GUI_EditInfoDialog::getFontNameList() {
    return guarded([this] { return m_host->getFontNameList(); }, QStringList());
}

QStringList GUI_EditInfoDialog::getFontSizeList() {
    QStringList sizes;
    for (const int size : {7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 26, 28, 32, 36, 40, 44}) {
        sizes += QString::number(size);
    }
    return sizes;
}

QStringList GUI_EditInfoDialog::getToColumnList() {
    QStringList counts;
    for (int count = 2; count <= 10; ++count) {
        counts += QString::number(count);
    }
    return counts;
}

bool GUI_EditInfoDialog::isCollectiveSetting() {
    return guarded([this] { return m_settings.isCollective(); }, false);
}

void GUI_EditInfoDialog::setCollectiveSetting(bool value, bool update) {
    guarded([&] {
        m_settings.setCollective(value);
        if (update && m_settings.isSavedView()) {
            this->update();
        }
    });
}

QString GUI_EditInfoDialog::getFontName(int offset) {
    return get(&InfoSettings::text, info::FontName, offset);
}

void GUI_EditInfoDialog::setFontName(const QString& value, bool update) {
    set(&InfoSettings::setText, info::FontName, value, update);
    guarded([&] { tellFont(m_current, value); });
}

// The host keeps the fonts of the groups round a saved image, too.
void GUI_EditInfoDialog::tellFont(int offset, const QString& name) {
    if (m_settings.isSavedView() && offset != 0 &&
        m_host->getPref(QStringLiteral("display/language"), QVariant()) != QLatin1String("ja")) {
        m_host->setSaveViewFontName(name, offset - 1);
    }
}

void GUI_EditInfoDialog::setStyle(int offset, const InfoStyle& style) {
    m_settings.setStyle(offset, style);
    tellFont(offset, style.fontName);
}

QString GUI_EditInfoDialog::getFontSize(int offset) {
    return get(&InfoSettings::text, info::FontSize, offset);
}
void GUI_EditInfoDialog::setFontSize(const QString& value, bool update) {
    set(&InfoSettings::setText, info::FontSize, value, update);
}

bool GUI_EditInfoDialog::getBold(int offset) { return get(&InfoSettings::flag, info::Bold, offset); }
void GUI_EditInfoDialog::setBold(bool value, bool update) {
    set(&InfoSettings::setFlag, info::Bold, value, update);
}

bool GUI_EditInfoDialog::getItalic(int offset) { return get(&InfoSettings::flag, info::Italic, offset); }
void GUI_EditInfoDialog::setItalic(bool value, bool update) {
    set(&InfoSettings::setFlag, info::Italic, value, update);
}

QString GUI_EditInfoDialog::getForegroundColor(int offset) {
    return get(&InfoSettings::text, info::ForegroundColor, offset);
}
void GUI_EditInfoDialog::setForegroundColor(const QString& value, bool update) {
    set(&InfoSettings::setText, info::ForegroundColor, value, update);
}

int GUI_EditInfoDialog::getAlignment(int offset) {
    return get(&InfoSettings::number, info::Alignment, offset);
}
void GUI_EditInfoDialog::setAlignment(int value, bool update) {
    set(&InfoSettings::setNumber, info::Alignment, value, update);
}

int GUI_EditInfoDialog::getWidth(int offset) { return get(&InfoSettings::number, info::Width, offset); }
void GUI_EditInfoDialog::setWidth(int value, bool update) {
    set(&InfoSettings::setNumber, info::Width, value, update);
}

int GUI_EditInfoDialog::getIconSize(int offset) { return get(&InfoSettings::number, info::IconSize, offset); }
void GUI_EditInfoDialog::setIconSize(int value, bool update) {
    set(&InfoSettings::setNumber, info::IconSize, value, update);
}

bool GUI_EditInfoDialog::getUseBackgroundColor(int offset) {
    return get(&InfoSettings::flag, info::UseBackgroundColor, offset);
}
void GUI_EditInfoDialog::setUseBackgroundColor(bool value, bool update) {
    set(&InfoSettings::setFlag, info::UseBackgroundColor, value, update);
}

QString GUI_EditInfoDialog::getBackgroundColor(int offset) {
    return get(&InfoSettings::text, info::BackgroundColor, offset);
}
void GUI_EditInfoDialog::setBackgroundColor(const QString& value, bool update) {
    set(&InfoSettings::setText, info::BackgroundColor, value, update);
}

bool GUI_EditInfoDialog::getToColumn(int offset) { return get(&InfoSettings::flag, info::ToColumn, offset); }
void GUI_EditInfoDialog::setToColumn(bool value, bool update) {
    set(&InfoSettings::setFlag, info::ToColumn, value, update);
}

QString GUI_EditInfoDialog::getColumnNum(int offset) {
    return get(&InfoSettings::text, info::ColumnNum, offset);
}
void GUI_EditInfoDialog::setColumnNum(const QString& value, bool update) {
    set(&InfoSettings::setText, info::ColumnNum, value, update);
}

int GUI_EditInfoDialog::getColumnSpacing(int offset) {
    return get(&InfoSettings::number, info::ColumnSpacing, offset);
}
void GUI_EditInfoDialog::setColumnSpacing(int value, bool update) {
    set(&InfoSettings::setNumber, info::ColumnSpacing, value, update);
}

bool GUI_EditInfoDialog::isFixedFontSizeRatio(int offset) {
    return get(&InfoSettings::flag, info::FixedFontSizeRatio, offset);
}
void GUI_EditInfoDialog::setFixedFontSizeRatio(bool value, bool update) {
    set(&InfoSettings::setFlag, info::FixedFontSizeRatio, value, update);
}

QSize GUI_EditInfoDialog::getFixedFontSizeRatioBaseResolution(int offset) {
    return get(&InfoSettings::size, info::FixedFontSizeRatioBaseResolution, offset);
}
void GUI_EditInfoDialog::setFixedFontSizeRatioBaseResolution(const QSize& value, bool update) {
    set(&InfoSettings::setSize, info::FixedFontSizeRatioBaseResolution, value, update);
}

bool GUI_EditInfoDialog::getWithinImage(int offset) {
    return guarded(
        [&] {
            m_current = group(offset) ? offset : m_current;
            return m_settings.isWithinImage();
        },
        false);
}

void GUI_EditInfoDialog::setWithinImage(bool value, bool update) {
    guarded([&] {
        m_settings.setWithinImage(value);
        if (update) {
            this->update();
        }
    });
}

void GUI_EditInfoDialog::backupFontSettings(int offset) {
    guarded([&] {
        if (group(offset)) {
            m_current = offset;
            m_fontBackup = {m_settings.isCollective(), m_settings.style(offset),
                            m_settings.number(info::IconSize, offset)};
        }
    });
}

// A saved view knows no size of icons.
void GUI_EditInfoDialog::restoreFontSettings() {
    const InfoStyle& style = m_fontBackup.style;
    setCollectiveSetting(m_fontBackup.collective, false);
    setFontName(style.fontName, false);
    setFontSize(style.fontSize, false);
    setBold(style.bold, false);
    setItalic(style.italic, false);
    setForegroundColor(style.foreground, false);
    setFixedFontSizeRatio(style.fixedRatio, false);
    setFixedFontSizeRatioBaseResolution(style.ratioBase, false);
    setAlignment(style.alignment, false);
    setUseBackgroundColor(style.useBackground, false);
    setBackgroundColor(style.background, false);
    setWidth(style.width, false);
    setIconSize(m_fontBackup.iconSize, false);
    setToColumn(style.toColumn, false);
    setColumnNum(style.columnCount, false);
    setColumnSpacing(style.columnSpacing, true);
}

void GUI_EditInfoDialog::writeFontOK() {
    guarded([this] {
        DOC_Interface* const shown = document();
        if (m_settings.flag(info::FixedFontSizeRatio, m_current)) {
            m_settings.setSize(info::FixedFontSizeRatioBaseResolution, m_current,
                               shown ? docAs<DOC_Save>(shown).getImageSize(1, 0, 1) : QSize());
        }
        if (!m_settings.isCollective()) {
            return;
        }
        const InfoStyle style = m_settings.style(m_current);
        for (int offset = 1; offset < InfoSettings::Groups; ++offset) {
            if (offset != m_current) {
                setStyle(offset, style);
            }
        }
    });
}

void GUI_EditInfoDialog::writeFontCancel() {
    guarded([this] { restoreStyles(); });
}

void GUI_EditInfoDialog::editComment() {
    edit([this] {
        DOC_Interface* const shown = document();
        if (shown || m_document == kNoKey) { // not of others instead of one that has gone
            GUI_CommentDialog(m_host, shown).exec();
        }
    });
}

void GUI_EditInfoDialog::editCustom() {
    edit([this] { GUI_CustomInfoDialog(m_host, this).exec(); });
}

void GUI_EditInfoDialog::execTimeCodeSettingDialog() {
    edit([this] { GUI_TimeCodeCustomDialog(m_host, view()).exec(); });
}

void GUI_EditInfoDialog::editShutterDispFormat() {
    edit([this] { GUI_ShutterSpeedFormatDialog(m_host, this).exec(); });
}

void GUI_EditInfoDialog::editRectimeDispFormat() {
    edit([this] { GUI_RectimeFormatDialog(m_host, this).exec(); });
}

void GUI_EditInfoDialog::editRecordRateDispFormat() {
    edit([this] { GUI_RecordRateFormatDialog(m_host, this).exec(); });
}

void GUI_EditInfoDialog::editFrameDispFormat() {
    edit([this] { GUI_FrameFormatDialog(m_host, this).exec(); });
}
