#include "livecontrol/overlays/info/GUI_EditInfoDialog.h"

#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Save.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/InfoItems.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QPixmap>

namespace {

const Qt::WindowFlags kFlags = Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
constexpr int kLive = 1; // kind of output that stands for the live image
const QString kDisplay = QStringLiteral("info/display");

/// The picture with its information, by kind of output.
int thumbnailKind(int saveType) {
    switch (saveType) {
    case 4:
        return 18;
    case 6:
        return 11;
    case 16:
        return 17;
    default:
        return 10;
    }
}

/// The link behind an item that has more to set: its id and its class.
struct Link {
    const char* key;
    const char* id;
    const char* className;
};
constexpr char kPlain[] = "float-right localize";
constexpr char kTimeCode[] = "custom_timecode float-right";
constexpr Link kLinks[] = {
    {"Comment", "edit_comment", kPlain},   {"Custom", "edit_custom", kPlain},
    {"Logo", "select_logo", kPlain},       {"TimeIrigCode", "time_code", kTimeCode},
    {"TimeCode", "time_code", kTimeCode},  {"ShutterSpeed", "edit_shutter", kPlain},
    {"Length", "edit_rectime", kPlain},    {"FrameRate", "edit_recordrate", kPlain},
    {"FrameNumber", "edit_frame", kPlain}, {"MaxFrames", "edit_frame", kPlain},
};

bool isOffered(const InfoItem& item, int mode) {
    return mode == HOST_MODE_LIVE ? item.live : mode == HOST_MODE_MEMORY ? item.memory : item.file;
}

} // namespace

GUI_EditInfoDialog::GUI_EditInfoDialog(HostObject* host)
    : GUI_EditInfoDialog(host, kLive, false, nullptr, 0, {}, QDateTime::currentDateTime()) {}

GUI_EditInfoDialog::GUI_EditInfoDialog(HostObject* host, int saveType, bool saveView, DOC_Interface* document,
                                       PARTITIONNUMBER partition, const QList<DOC_Interface*>& documents,
                                       const QDateTime& dateTime)
    : GUI_PageDialog(host, QStringLiteral("edit information"), host->getDialogParent(), kFlags),
      m_settings(host, saveView), m_saveType(saveType), m_document(kNoKey), m_partition(partition),
      m_dateTime(dateTime) {
    if (DOC_Interface* const shown = document ? document : host->currentDocument()) {
        m_document = host->keyOfDocument(shown);
        if (m_partition == 0) {
            m_partition = docAs<DOC_Settings>(shown).getPartitionNumber(false);
        }
    }
    for (DOC_Interface* const each : documents) {
        m_documents.append(host->keyOfDocument(each));
    }
    takeBackup();
    if (saveView) {
        setFixedSize(850, 680);
        loadPage(QStringLiteral("qrc:/saveinfoview.html"));
    } else {
        setFixedSize(340, 680);
        loadPage(QStringLiteral("qrc:/editinfo.html"));
    }
}

GUI_EditInfoDialog::~GUI_EditInfoDialog() = default;

void GUI_EditInfoDialog::populateJavaScriptWindowObject() { addToPage(QStringLiteral("editInfo"), this); }

GUI_EditInfoDialog::Group* GUI_EditInfoDialog::group(int offset) {
    return offset >= 0 && offset < InfoSettings::Groups ? &m_groups[size_t(offset)] : nullptr;
}

DOC_Interface* GUI_EditInfoDialog::document() {
    return m_document == kNoKey ? nullptr : m_host->docByKey(m_document, true);
}

void GUI_EditInfoDialog::update() {
    if (!m_settings.isSavedView()) {
        m_host->updateAll(-1, true);
    }
}

void GUI_EditInfoDialog::takeBackup() {
    m_collective = m_settings.isCollective();
    for (int offset = 0; offset < InfoSettings::Groups; ++offset) {
        Group& each = *group(offset);
        each.storedList = m_settings.text(info::Display, offset);
        each.storedStyle = m_settings.style(offset);
    }
    m_withinImage = m_settings.isWithinImage();
    m_blankLine = m_settings.hasBlankLine();
}

void GUI_EditInfoDialog::restoreStyles() {
    const bool saved = m_settings.isSavedView();
    for (int offset = saved ? 1 : 0; offset < (saved ? InfoSettings::Groups : 1); ++offset) {
        setStyle(offset, group(offset)->storedStyle);
    }
    m_settings.setCollective(m_collective);
    m_settings.setWithinImage(m_withinImage);
    update();
}

void GUI_EditInfoDialog::restore() {
    const bool saved = m_settings.isSavedView();
    for (int offset = 0; offset < (saved ? InfoSettings::Groups : 1); ++offset) {
        m_settings.setText(info::Display, offset, group(offset)->storedList);
    }
    if (!saved) {
        m_settings.setBlankLine(m_blankLine);
    }
    restoreStyles();
}

QMap<QString, bool> GUI_EditInfoDialog::availability() {
    QMap<QString, bool> available;
    const int mode = m_host->getMode();
    for (const InfoItem* item = kInfoItems; *item->key; ++item) {
        const QString key = QLatin1String(item->key);
        if (DisplayList::isSeparator(key)) {
            continue;
        }
        if (m_settings.isSavedView()) {
            available.insert(key, item->saved);
        } else if (mode >= HOST_MODE_LIVE && mode <= HOST_MODE_FILE) {
            available.insert(key, isOffered(*item, mode));
        }
    }
    return available;
}

QString GUI_EditInfoDialog::getInfoSettingsHtml(int offset) {
    return guarded(
        [&] {
            m_isOk = false;
            Group* const chosen = group(offset);
            if (!chosen) {
                return QString();
            }
            m_current = offset;
            chosen->list.parse(m_settings.text(info::Display, offset));
            if (!document()) {
                return QString();
            }
            const QMap<QString, bool> available = availability();
            QString html;
            for (const QString& entry : chosen->list.entries()) {
                if (DisplayList::isSeparator(entry)) {
                    html += QLatin1String(m_settings.isSavedView() ? "<hr class='unsortable'>" : "<hr>");
                    continue;
                }
                const QStringList parts = entry.split(QLatin1Char(':'));
                if (parts.size() >= 2) {
                    m_states.insert(parts[0], parts[1]);
                    html += itemHtml(parts[0], parts[1], available.value(parts[0]));
                }
            }
            return html;
        },
        QString());
}

// The key comes from the preferences, the label from the host: neither is markup.
QString GUI_EditInfoDialog::itemHtml(const QString& key, const QString& state, bool isAvailable) {
    const QString id = key.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
    QString html = QStringLiteral("<li><input type='checkbox' id='%1' %2%3><label for='%1'>%4</label>")
                       .arg(id, QLatin1String(state == QLatin1String("true") ? "checked='checked'" : ""),
                            QLatin1String(isAvailable ? "" : " disabled='disabled'"),
                            m_host->getInfoItemLabel(key).toHtmlEscaped());
    for (const Link& link : kLinks) {
        if (key == QLatin1String(link.key)) {
            html += QStringLiteral("<a href='#' name='editinfo_edit' id='%1' class='%2'>%3</a>")
                        .arg(QLatin1String(link.id), QLatin1String(link.className),
                             m_host->translate(QStringLiteral("edit..."), nullptr, 0).toHtmlEscaped());
        }
    }
    return html + QLatin1String("</li>");
}

void GUI_EditInfoDialog::changeDisp(const QString& id, bool check, int offset) {
    guarded([&] {
        if (Group* const changed = group(offset)) {
            m_states.insert(id, QLatin1String(check ? "true" : "false"));
            store(*changed, offset);
        }
    });
}

void GUI_EditInfoDialog::changeOrder(const QString& idList, int offset) {
    guarded([&] {
        if (Group* const changed = group(offset)) {
            changed->list.setOrder(idList);
            store(*changed, offset);
        }
    });
}

void GUI_EditInfoDialog::store(Group& group, int offset) {
    m_settings.setText(info::Display, offset, group.list.text(m_states));
    update();
}

bool GUI_EditInfoDialog::getDisplayBlankLine() {
    return guarded([&] { return m_settings.hasBlankLine(); }, false);
}

void GUI_EditInfoDialog::setDisplayBlankLine(bool display) {
    guarded([&] {
        m_settings.setBlankLine(display);
        update();
    });
}

void GUI_EditInfoDialog::reset() {
    guarded([&] {
        if (m_settings.isSavedView()) {
            for (int offset = 0; offset < InfoSettings::Groups; ++offset) {
                m_settings.remove(info::Display, offset);
            }
            return;
        }
        m_host->setPref(kDisplay, m_host->getDefaultInfoDisplay());
        m_settings.setBlankLine(m_host->getPrefDefault(QStringLiteral("info/BlankLine")).toBool());
        update();
    });
}

void GUI_EditInfoDialog::ok() {
    m_isOk = true;
    accept();
}

void GUI_EditInfoDialog::cancel() { reject(); }

void GUI_EditInfoDialog::reject() {
    if (!m_isOk) {
        guarded([this] { restore(); });
    }
    GUI_PageDialog::reject();
}

void GUI_EditInfoDialog::setLogoPath() {
    guarded([this] { chooseLogo(); });
}

void GUI_EditInfoDialog::chooseLogo() {
    const bool ofFiles = m_host->isFileMode();
    DOC_Interface* const shown = ofFiles ? document() : nullptr;
    if (ofFiles && !shown) {
        return;
    }
    const QString before = shown ? docAs<DOC_Geometry>(shown).getLogoPath() : m_settings.logoPath();
    const QString path =
        QFileDialog::getOpenFileName(this, m_host->translate(QStringLiteral("Logo Setting"), nullptr, 0),
                                     before.isEmpty() ? QString() : QFileInfo(before).path(),
                                     QStringLiteral("Image files (*.bmp *.jpg *.png)"));
    if (path.isEmpty()) {
        return;
    }
    if (ofFiles) {
        const QList<DOCKEY> targets = QList<DOCKEY>{m_document} + m_documents;
        for (const DOCKEY key : targets) {
            if (DOC_Interface* const target = m_host->docByKey(key, true)) {
                docAs<DOC_Geometry>(target).setLogoPath(path);
            }
        }
    } else {
        m_settings.setLogoPath(path);
    }
    update();
}

QString GUI_EditInfoDialog::getThumbnail(int width, int height) {
    return guarded([&] { return thumbnail(QSize(width, height)); }, QString());
}

QString GUI_EditInfoDialog::thumbnail(QSize size) {
    DOC_Interface* const shown = document();
    m_thumbnailSize = QSize();
    if (!shown) {
        return QString();
    }
    if (size.width() == 0) {
        size = docAs<DOC_Save>(shown).getImageSize(m_saveType, m_partition, 0);
    }
    const QPixmap picture = docAs<DOC_Geometry>(shown).renderThumbnail(
        thumbnailKind(m_saveType), size.width(), size.height(), m_partition, 0, &m_dateTime);
    m_thumbnailSize = picture.size();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return QString::fromLatin1(bytes.toBase64());
}

QList<int> GUI_EditInfoDialog::getThumbnailResolution() {
    return {m_thumbnailSize.width(), m_thumbnailSize.height()};
}

QString GUI_EditInfoDialog::getResolutionStr() {
    return guarded(
        [this] {
            DOC_Interface* const shown = document();
            const QSize size = shown ? docAs<DOC_Geometry>(shown).getImageSize() : QSize();
            return QStringLiteral("%1 : %2 x %3")
                .arg(m_host->translate(QStringLiteral("Resolution"), nullptr, 0))
                .arg(size.width())
                .arg(size.height());
        },
        QString());
}

QString GUI_EditInfoDialog::getExportLanguage() {
    return guarded(
        [this] {
            const QStringList languages{QStringLiteral("Same as operating language"),
                                        QStringLiteral("English"), QStringLiteral("Japanese")};
            const int chosen = m_host->getPrefInt(QStringLiteral("display/outputLanguage"), QVariant());
            return m_host->translate(QStringLiteral("Output Language Setting"), nullptr, 0) +
                   QLatin1String(" : ") + m_host->translate(languages.value(chosen), nullptr, 0);
        },
        QString());
}

bool GUI_EditInfoDialog::confirm(const QString& message) {
    return guarded([&] { return m_host->confirm(message, this, {}); }, false);
}

bool GUI_EditInfoDialog::onConvertParameterEditDialog() {
    constexpr int kConversion = 6;
    return guarded([&] { return !m_host->isFileMode() && m_saveType == kConversion; }, false);
}
