#include "livecontrol/overlays/notes/JS_Mediator_CustomInfoDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/FileToWrite.h"
#include "livecontrol/foundation/PipeOrDevice.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Geometry.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/notes/CustomItemFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr int kOverlay = 17; // other numbers stand for a kind of file name
const QString kComments = QStringLiteral("Comments");
const QString kFolder = QStringLiteral("xml/dir");

QString text(const QVariantMap& map, const char* key) { return map.value(QLatin1String(key)).toString(); }
bool isSelected(const QVariantMap& map) { return map.value(QStringLiteral("selected")).toBool(); }

/// An item as a document reports it.
struct Item {
    QString name;
    QString value;
    QString unit;
    bool display = false;
    bool useFileName = false;

    explicit Item(const QVariantMap& map)
        : name(text(map, "name")), value(text(map, "value")), unit(text(map, "unit")),
          display(text(map, "display") == QLatin1String("on")),
          useFileName(text(map, "usefilename") == QLatin1String("on")) {}
};

/// A disk that gets full cuts a write short; it is the next one that fails, with the reason.
bool writeAll(QIODevice& device, const QByteArray& bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = device.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0) {
            return false;
        }
        done += count;
    }
    return true;
}

/// Without texts and flags if the document has none of that name.
Item itemCalled(DOC_Settings& document, const QString& name) {
    const QVariantList items = document.getCustomItems();
    for (const QVariant& item : items) {
        if (text(item.toMap(), "name") == name) {
            return Item(item.toMap());
        }
    }
    return Item({});
}

} // namespace

JS_Mediator_CustomInfoDialog::JS_Mediator_CustomInfoDialog(HostObject* host, bool forTemporary)
    : JS_Mediator_Dialog(host, QStringLiteral("CustomInfoDialog")), m_callbackType(kOverlay),
      m_temporary(forTemporary) {
    const QList<DOCKEY> documents = keys();
    for (const DOCKEY key : documents) {
        if (DOC_Settings* const document = settingsOf(key)) {
            m_backup.insert(json::text(key), document->getCustomItems());
        }
    }
}

QList<DOCKEY> JS_Mediator_CustomInfoDialog::keys() {
    return m_temporary ? host()->listTemporaryKeys() : host()->getSelectedKeys(true);
}

bool JS_Mediator_CustomInfoDialog::isOverlay() const { return m_callbackType == kOverlay; }

DOC_Settings* JS_Mediator_CustomInfoDialog::settingsOf(DOCKEY key) {
    DOC_Interface* const document = host()->docByKey(key, true);
    return document ? &docAs<DOC_Settings>(document) : nullptr;
}

void JS_Mediator_CustomInfoDialog::change(const QVariantList& targets,
                                          const std::function<void(DOC_Interface&)>& action) {
    guarded([&] {
        for (const QVariant& target : targets) {
            if (DOC_Interface* const document = host()->docByKey(target.toUInt(), true)) {
                action(*document);
            }
        }
        host()->setToolsDisabled(true);
    });
}

void JS_Mediator_CustomInfoDialog::cancel() {
    guarded([&] {
        for (auto it = m_backup.cbegin(); it != m_backup.cend(); ++it) {
            DOC_Settings* const document = settingsOf(it.key().toUInt());
            if (!document) {
                continue;
            }
            document->clearCustomItems();
            for (const QVariant& map : it.value()) {
                const Item item(map.toMap());
                document->addCustomItem(item.name, item.value, item.unit, item.display, item.useFileName);
            }
        }
    });
}

QString JS_Mediator_CustomInfoDialog::getDeviceInfo() {
    return guarded(
        [&] {
            const QList<DOCKEY> documents = keys();
            const DOCKEY current = m_temporary ? documents.value(0) : host()->getCurrentKey();
            QJsonArray records;
            int selected = 0;
            for (const DOCKEY key : documents) {
                DOC_Interface* const document = host()->docByKey(key, true);
                if (!document) {
                    continue;
                }
                const int id = records.size() + 1;
                records.append(QJsonObject{{QStringLiteral("recid"), id},
                                           {QStringLiteral("name"), document->getDisplayName()},
                                           {QStringLiteral("dockey"), json::text(key)}});
                selected = key == current ? id : selected;
            }
            return json::compact(
                {{QStringLiteral("Records"), records}, {QStringLiteral("InitSelect"), selected}});
        },
        QString());
}

QString JS_Mediator_CustomInfoDialog::getCustomInfo(DOCKEY dockey) {
    return guarded(
        [&] {
            DOC_Settings* const document = settingsOf(dockey);
            const QVariantList items = document ? document->getCustomItems() : QVariantList();
            QJsonArray records;
            for (const QVariant& map : items) {
                const Item item(map.toMap());
                records.append(
                    QJsonObject{{QStringLiteral("recid"), records.size() + 1},
                                {QStringLiteral("selected"), isOverlay() ? item.display : item.useFileName},
                                {QStringLiteral("name"), item.name},
                                {QStringLiteral("value"), item.value},
                                {QStringLiteral("unit"), item.unit}});
            }
            return json::compact(records);
        },
        QString());
}

QString JS_Mediator_CustomInfoDialog::folder() { return host()->getPref(kFolder, QVariant()).toString(); }

void JS_Mediator_CustomInfoDialog::keepFolder(const QString& file) {
    host()->setPref(kFolder, QFileInfo(file).absolutePath());
}

void JS_Mediator_CustomInfoDialog::save(const QVariantList& customs) {
    guarded([&] {
        const QString chosen =
            QFileDialog::getSaveFileName(m_parentDialog, QString(), folder(), QStringLiteral("xml (*.xml)"),
                                         nullptr, QFileDialog::DontConfirmOverwrite);
        const QString path = fileToWrite(*host(), m_parentDialog, chosen, QStringLiteral("xml"));
        if (path.isEmpty()) {
            return;
        }
        keepFolder(path);
        const QString version = host()->getVersionText();
        QBuffer content;
        content.open(QIODevice::WriteOnly);
        CustomItemFile::write(content, customs, version);
        QSaveFile file(path);
        file.setDirectWriteFallback(true); // in a folder where only the file itself may be written
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            return;
        }
        const bool isWritten = writeAll(file, content.data());
        const QString reason = file.errorString(); // a commit forgets it, and in the fallback the failure too
        if (!file.commit() || !isWritten) {
            throw DOC_FileException(QStringLiteral("File write failed."), path, 0,
                                    isWritten ? file.errorString() : reason);
        }
    });
}

void JS_Mediator_CustomInfoDialog::load(const QVariantList& targets) {
    guarded([&] {
        const QString path = QFileDialog::getOpenFileName(m_parentDialog, QString(), folder(),
                                                          QStringLiteral("xml (*.xml *.XML)"));
        if (path.isEmpty()) {
            return;
        }
        keepFolder(path);
        if (isPipeOrDevice(path)) {
            throw DOC_ReadFileException(path, QStringLiteral("This is no file."));
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return;
        }
        QString reason;
        const QVariantList items = CustomItemFile::read(file, &reason);
        if (items.isEmpty()) {
            throw DOC_ReadFileException(path, reason);
        }
        restoreCustomData(targets, items);
        host()->setToolsDisabled(true);
    });
}

void JS_Mediator_CustomInfoDialog::deleteCustomData(const QVariantList& targets,
                                                    const QVariantList& customs) {
    change(targets, [&](DOC_Interface& document) {
        for (const QVariant& custom : customs) {
            docAs<DOC_Settings>(&document).removeCustomItem(text(custom.toMap(), "name"));
        }
    });
}

void JS_Mediator_CustomInfoDialog::restoreCustomData(const QVariantList& targets,
                                                     const QVariantList& customs) {
    change(targets, [&](DOC_Interface& document) {
        auto& settings = docAs<DOC_Settings>(&document);
        settings.clearCustomItems();
        for (const QVariant& custom : customs) {
            const QVariantMap map = custom.toMap();
            if (text(map, "name") == kComments) {
                docAs<DOC_Geometry>(&document).setComment(text(map, "value"));
            } else {
                settings.addCustomItem(text(map, "name"), text(map, "value"), text(map, "unit"),
                                       isSelected(map), true);
            }
        }
    });
}

void JS_Mediator_CustomInfoDialog::editCustomData(const QVariantList& targets, const QVariant& custom) {
    const QVariantMap map = custom.toMap();
    change(targets, [&](DOC_Interface& document) {
        auto& settings = docAs<DOC_Settings>(&document);
        const QString oldName = text(map, "oldname");
        const QString name = text(map, "name");
        const Item item = itemCalled(settings, oldName);
        settings.renameCustomItem(oldName, name);
        settings.setCustomItem(name, text(map, "value"), text(map, "unit"), item.display, item.useFileName);
    });
}

void JS_Mediator_CustomInfoDialog::addCustomData(const QVariantList& targets, const QVariant& custom) {
    const QVariantMap map = custom.toMap();
    change(targets, [&](DOC_Interface& document) {
        docAs<DOC_Settings>(&document).addCustomItem(text(map, "name"), text(map, "value"), text(map, "unit"),
                                                     true, true);
    });
}

void JS_Mediator_CustomInfoDialog::enableCustomData(const QVariantList& targets,
                                                    const QVariantList& customs) {
    change(targets, [&](DOC_Interface& document) {
        auto& settings = docAs<DOC_Settings>(&document);
        for (const QVariant& custom : customs) {
            const QVariantMap map = custom.toMap();
            Item item = itemCalled(settings, text(map, "name"));
            (isOverlay() ? item.display : item.useFileName) = isSelected(map);
            settings.setCustomItem(item.name, item.value, item.unit, item.display, item.useFileName);
        }
    });
}
