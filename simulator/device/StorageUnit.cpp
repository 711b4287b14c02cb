#include "simulator/device/StorageUnit.h"

#include "simulator/device/SimulatedBody.h"
#include "viewer/cameras/CommandKeys.h"

#include <QDir>
#include <QJsonObject>
#include <QStandardPaths>

#include <utility>

namespace {

constexpr quint64 Megabyte = 1024 * 1024;
constexpr quint64 FrameBytes = 64 * 1024; // that a frame of a record counts on the card
constexpr double FormatTimeMs = 100;

constexpr StorageKind Kinds[] = {StorageKind::SDCard, StorageKind::DockStore, StorageKind::CFast};

quint64 usedBytes(const CardContent& content) {
    quint64 used = 0;
    for (const StorageRecord& record : content.records) {
        used += record.frames * FrameBytes;
    }
    return std::min(used, content.capacity);
}

/// Three numbers of a text as decimal digits, a byte each.
quint32 packed(const QString& text, QChar separator) {
    quint32 word = 0;
    const QStringList parts = text.split(separator);
    for (const QString& part : parts) {
        const uint number = part.toUInt() % 100;
        word = (word << 8U) | (number / 10 * 16 + number % 10);
    }
    return parts.size() == 3 ? word : 0;
}

} // namespace

QString storageName(StorageKind kind) {
    switch (kind) {
    case StorageKind::SDCard:
        return QStringLiteral("sd");
    case StorageKind::DockStore:
        return QStringLiteral("dockstore");
    case StorageKind::CFast:
        break;
    }
    return QStringLiteral("cfast");
}

bool storageKind(const QString& name, StorageKind& kind) {
    for (const StorageKind each : Kinds) {
        if (storageName(each) == name) {
            kind = each;
            return true;
        }
    }
    return false;
}

StorageRecord storageRecord(const QVariantMap& values) {
    StorageRecord record;
    record.name = values.value(QStringLiteral("name")).toString();
    record.frames = quint32(std::clamp(values.value(QStringLiteral("frames")).toDouble(), 0.0, 4294967295.0));
    record.date = packed(values.value(QStringLiteral("date")).toString(), QLatin1Char('/'));
    record.time = packed(values.value(QStringLiteral("time")).toString(), QLatin1Char(':'));
    return record;
}

CardContent cardContent(const QVariantMap& values) {
    const auto number = [&](const char* key, double usual) {
        return std::clamp(values.value(QLatin1String(key), usual).toDouble(), 0.0, 1e9);
    };
    CardContent content;
    content.password = values.value(QStringLiteral("password")).toString();
    content.writeProtected = values.value(QStringLiteral("protected"), false).toBool();
    content.formatted = values.value(QStringLiteral("formatted"), true).toBool();
    content.speedCode = int(number("speed", content.speedCode));
    content.speedClass = int(number("class", content.speedClass));
    content.capacity = quint64(number("capacityMb", 32768)) * Megabyte;
    content.written = quint64(number("writtenMb", 0)) * Megabyte;
    const QVariantList records = values.value(QStringLiteral("records")).toList();
    for (const QVariant& record : records) {
        content.records.push_back(storageRecord(record.toMap()));
    }
    return content;
}

StorageUnit::StorageUnit(SimulatedBody& body, const StorageSlots& count) : m_body(body) {
    cards(StorageKind::SDCard).resize(size_t(count.sdCards));
    cards(StorageKind::DockStore).resize(size_t(count.dockStores));
    cards(StorageKind::CFast).resize(size_t(count.cFasts));
}

void StorageUnit::tell() {
    emit m_body.infoChanged(&m_body);
    emit m_body.head()->changedOutside(m_body.head()); // pages show what is in the slots
}

StorageUnit::Card& StorageUnit::at(StorageKind kind, int slot) {
    if (slot < 0 || slot >= slotCount(kind)) {
        throw CameraError(CameraError::Kind::BadValue, CommandKey::ReadStorage, m_body.name(),
                          reason("there is no slot %1", {slot + 1}));
    }
    return cards(kind)[size_t(slot)];
}

StorageUnit::Card& StorageUnit::present(StorageKind kind, int slot, const QString& function) {
    Card& card = at(kind, slot);
    if (!card.inserted) {
        throw CameraError(CameraError::Kind::Refused, function, m_body.name(),
                          reason("there is no card in slot %1", {slot + 1}));
    }
    return card;
}

void StorageUnit::pullIfDue(StorageKind kind, int slot) {
    if (std::exchange(at(kind, slot).pullDue, false)) {
        pull(kind, slot);
    }
}

QString StorageUnit::folder(StorageKind kind, int slot) const {
    QString owner = m_body.serial().isEmpty() ? m_body.name() : m_body.serial();
    for (QChar& character : owner) {
        if (!character.isLetterOrNumber()) {
            character = QLatin1Char('_');
        }
    }
    return QStringLiteral("%1/cards/%2-%3-%4")
        .arg(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation), owner, storageName(kind))
        .arg(slot + 1);
}

CardSlot StorageUnit::slot(StorageKind kind, int slot) const {
    CardSlot state;
    state.enabled = slot >= 0 && slot < slotCount(kind);
    if (!state.enabled) {
        return state;
    }
    const Card& card = cards(kind)[size_t(slot)];
    state.inserted = card.inserted;
    if (!card.inserted) {
        return state;
    }
    state.writeProtected = card.content.writeProtected;
    state.formatted = card.content.formatted;
    state.locked = !card.unlocked && !card.content.password.isEmpty();
    state.speedCode = card.content.speedCode;
    state.speedClass = card.content.speedClass;
    state.capacity = card.content.capacity;
    state.used = usedBytes(card.content);
    state.written = card.content.written;
    state.records = int(card.content.records.size());
    state.folder = folder(kind, slot);
    return state;
}

StorageRecord StorageUnit::record(StorageKind kind, int slot, int index) {
    if (index > 0) { // in the middle of the list
        pullIfDue(kind, slot);
    }
    const auto& records = present(kind, slot, CommandKey::ReadStorage).content.records;
    return index >= 0 && index < int(records.size()) ? records[size_t(index)] : StorageRecord();
}

void StorageUnit::requireReadable(StorageKind kind, int slot) {
    pullIfDue(kind, slot);
    const Card& card = present(kind, slot, CommandKey::ReadStorage);
    if (!card.content.formatted) {
        throw CameraError(CameraError::Kind::Refused, CommandKey::ReadStorage, m_body.name(),
                          reason("the card in slot %1 is not formatted", {slot + 1}));
    }
}

Answer StorageUnit::refresh(StorageKind kind, int slot) {
    return m_body.command(CommandKey::ReadStorage, m_body.name(), [=] {
        at(kind, slot);
        return CommandResult::Ok;
    });
}

Answer StorageUnit::format(StorageKind kind, int slot) {
    const QString& function = CommandKey::FormatStorage;
    const auto empty = [=] {
        m_body.requireIdle(function, m_body.name());
        pullIfDue(kind, slot);
        Card& card = present(kind, slot, function);
        if (card.content.writeProtected) {
            throw CameraError(CameraError::Kind::Refused, function, m_body.name(),
                              reason("the card in slot %1 is write protected", {slot + 1}));
        }
        QDir(folder(kind, slot)).removeRecursively();
        card.content.records.clear();
        card.content.formatted = true;
        tell();
        return CommandResult::Ok;
    };
    return m_body.command(function, m_body.name(), empty, {FormatTimeMs});
}

Answer StorageUnit::rename(StorageKind kind, int slot, int index, const QString& name) {
    const QString& function = CommandKey::NameRecord;
    return m_body.command(function, m_body.name(), [=] {
        auto& records = present(kind, slot, function).content.records;
        if (index < 0 || index >= int(records.size())) {
            throw CameraError(CameraError::Kind::Refused, function, m_body.name(),
                              reason("there is no record %1", {index + 1}));
        }
        records[size_t(index)].name = name;
        tell();
        return CommandResult::Ok;
    });
}

bool StorageUnit::unlock(StorageKind kind, int slot, const QString& password) {
    Card& card = present(kind, slot, CommandKey::ReadStorage);
    card.unlocked = card.content.password == password;
    return card.unlocked;
}

bool StorageUnit::setPassword(StorageKind kind, int slot, const QString& before, const QString& now) {
    Card& card = present(kind, slot, CommandKey::ReadStorage);
    if (card.content.password != before) {
        return false;
    }
    card.content.password = now;
    card.unlocked = true;
    return true;
}

void StorageUnit::insert(StorageKind kind, int slot, const CardContent& content) {
    Card& card = at(kind, slot);
    card = Card();
    card.inserted = true;
    card.content = content;
    tell();
}

void StorageUnit::pull(StorageKind kind, int slot) {
    Card& card = at(kind, slot);
    card.inserted = false;
    card.unlocked = false;
    card.pullDue = false;
    tell();
}

void StorageUnit::putBack(StorageKind kind, int slot) {
    at(kind, slot).inserted = true;
    tell();
}

void StorageUnit::pullDuringNext(StorageKind kind, int slot) { at(kind, slot).pullDue = true; }

void StorageUnit::setProtected(StorageKind kind, int slot, bool on) {
    at(kind, slot).content.writeProtected = on;
    tell();
}

void StorageUnit::fill(StorageKind kind, int slot, const StorageRecord& record, const QString& file) {
    Card& card = present(kind, slot, CommandKey::ReadStorage);
    if (!file.isEmpty()) {
        const QString path = folder(kind, slot) + QLatin1Char('/') + QFileInfo(file).fileName();
        QDir().mkpath(folder(kind, slot));
        if (!QFile::copy(file, path)) {
            throw CameraError(CameraError::Kind::BadValue, CommandKey::ReadStorage, m_body.name(),
                              reason("\"%1\" can't be copied to \"%2\"", {file, path}));
        }
    }
    card.content.records.push_back(record);
    card.content.written += record.frames * FrameBytes;
    tell();
}

QJsonArray StorageUnit::toJson() const {
    QJsonArray all;
    for (const StorageKind kind : Kinds) {
        for (int number = 0; number < slotCount(kind); ++number) {
            const CardSlot state = slot(kind, number);
            all << QJsonObject{{QStringLiteral("kind"), storageName(kind)},
                               {QStringLiteral("slot"), number + 1},
                               {QStringLiteral("inserted"), state.inserted},
                               {QStringLiteral("protected"), state.writeProtected},
                               {QStringLiteral("formatted"), state.formatted},
                               {QStringLiteral("locked"), state.locked},
                               {QStringLiteral("records"), state.records},
                               {QStringLiteral("folder"), state.folder}};
        }
    }
    return all;
}
