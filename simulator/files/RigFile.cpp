#include "simulator/files/RigFile.h"

#include "viewer/cameras/CheckedJson.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace {

constexpr int LargestCount = 250;
constexpr int LargestBytes = 8 << 20; // far more than a rig of hundreds of cameras needs

// The four numbers, or nothing. A dummy may have any numbers of three digits.
QList<int> addressParts(const QString& address, bool dummy) {
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})$"));
    const QRegularExpressionMatch match = form.match(address);
    QList<int> parts;
    for (int i = 1; match.hasMatch() && i <= 4; ++i) {
        parts << match.captured(i).toInt();
    }
    for (const int part : qAsConst(parts)) {
        if (!dummy && part > 255) {
            return {};
        }
    }
    return parts;
}

QString addressText(const CheckedJson& json, const QString& key, bool dummy) {
    const QString address = json.text(key);
    if (addressParts(address, dummy).isEmpty()) {
        json.fail(key, reason("four numbers joined by points are expected"));
    }
    return address;
}

QString optionalAddress(const CheckedJson& json, const QString& key, const QString& fallback) {
    return json.has(key) ? addressText(json, key, false) : fallback;
}

// The settings are tried on a camera of the model that nobody sees.
void checkSettings(const CheckedJson& json, const BodyDescription& description) {
    const QString group = QStringLiteral("settings");
    const CheckedJson settings = json.object(group);
    Clock clock(Clock::Mode::Stepped);
    BodyDescription bare = description;
    bare.settings.clear();
    SimulatedBody trial(clock, bare, 0);
    for (auto it = settings.raw().begin(); it != settings.raw().end(); ++it) {
        try {
            trial.head()->changeFromOutside(it.key(), it.value().toVariant());
        } catch (const CameraError& error) {
            settings.fail(it.key(), error.reason());
        }
    }
    // Right one by one, they may not go together: a camera applies them in an order of its own, to all heads.
    try {
        const SimulatedBody whole(clock, description, 0);
    } catch (const CameraError& error) {
        json.fail(group, error.reason());
    }
}

BodyDescription::Card readCard(const CheckedJson& json) {
    const QString kind = QStringLiteral("kind");
    const QString slot = QStringLiteral("slot");
    json.allowOnly({kind, slot, QStringLiteral("password"), QStringLiteral("protected"),
                    QStringLiteral("formatted"), QStringLiteral("speed"), QStringLiteral("class"),
                    QStringLiteral("capacityMb"), QStringLiteral("writtenMb"), QStringLiteral("records")});
    BodyDescription::Card card;
    if (!storageKind(json.text(kind), card.kind)) {
        json.fail(kind, reason("\"sd\", \"dockstore\" or \"cfast\" is expected"));
    }
    card.slot = json.integer(slot, 1, 8, 1) - 1;
    json.integer(QStringLiteral("capacityMb"), 0, 100000000, 0);
    json.integer(QStringLiteral("writtenMb"), 0, 100000000, 0);
    if (json.has(QStringLiteral("records"))) {
        for (const CheckedJson& record : json.objects(QStringLiteral("records"))) {
            record.allowOnly({QStringLiteral("name"), QStringLiteral("frames"), QStringLiteral("date"),
                              QStringLiteral("time")});
            record.number(QStringLiteral("frames"), 1, 4294967295.0);
        }
    }
    card.content = cardContent(json.raw().toVariantMap());
    return card;
}

/// The cards are put into a camera of the model that nobody sees.
void readCards(const CheckedJson& json, BodyDescription& body) {
    const QString key = QStringLiteral("cards");
    if (!json.has(key)) {
        return;
    }
    Clock clock(Clock::Mode::Stepped);
    for (const CheckedJson& entry : json.objects(key)) {
        BodyDescription trial;
        trial.model = body.model;
        trial.cards << readCard(entry);
        try {
            const SimulatedBody camera(clock, trial, 0);
        } catch (const CameraError& error) {
            entry.fail(QStringLiteral("slot"), error.reason());
        }
        body.cards << trial.cards;
    }
}

void readDevice(const CheckedJson& json, double commandTimeMs, BodyDescription& body) {
    const QString model = QStringLiteral("model");
    body.model = json.text(model);
    if (!SimulatedModel::ids().contains(body.model)) {
        json.fail(model, reason("unknown model \"%1\"; known are %2",
                                {body.model, SimulatedModel::ids().join(QStringLiteral(", "))}));
    }
    body.mask = optionalAddress(json, QStringLiteral("mask"), body.mask);
    body.gateway = optionalAddress(json, QStringLiteral("gateway"), body.gateway);
    body.serial = json.text(QStringLiteral("serial"), QString());
    body.firmware = json.text(QStringLiteral("firmware"), body.firmware);
    body.heads = json.texts(QStringLiteral("heads"));
    if (body.heads.size() > 8 ||
        QSet<QString>(body.heads.begin(), body.heads.end()).size() != body.heads.size()) {
        json.fail(QStringLiteral("heads"), reason("at most 8 different names are expected"));
    }
    body.temperature = json.number(QStringLiteral("temperature"), -50, 150, body.temperature);
    body.powered = json.boolean(QStringLiteral("powered"), true);
    body.plugged = json.boolean(QStringLiteral("plugged"), true);
    body.connected = json.boolean(QStringLiteral("connected"), true);
    body.commandTimeMs = json.number(QStringLiteral("commandTimeMs"), 0, 60000, commandTimeMs);
    body.settings = json.object(QStringLiteral("settings")).raw().toVariantMap();
    checkSettings(json, body);
    readCards(json, body);
}

BodyDescription readCamera(const CheckedJson& json, double commandTimeMs) {
    QStringList keys = {QStringLiteral("name"), QStringLiteral("address"), QStringLiteral("dummy")};
    BodyDescription body;
    body.dummy = json.boolean(QStringLiteral("dummy"), false);
    if (!body.dummy) {
        keys << QStringLiteral("model") << QStringLiteral("mask") << QStringLiteral("gateway")
             << QStringLiteral("serial") << QStringLiteral("firmware") << QStringLiteral("heads")
             << QStringLiteral("temperature") << QStringLiteral("powered") << QStringLiteral("plugged")
             << QStringLiteral("connected") << QStringLiteral("commandTimeMs") << QStringLiteral("settings")
             << QStringLiteral("cards") << QStringLiteral("count");
    }
    json.allowOnly(keys);
    body.name = json.text(QStringLiteral("name"));
    body.address = addressText(json, QStringLiteral("address"), body.dummy);
    if (!body.dummy) {
        readDevice(json, commandTimeMs, body);
    }
    return body;
}

// The cameras of one entry: numbers at the end of name and serial, addresses that count up.
QList<BodyDescription> expand(const CheckedJson& json, const BodyDescription& first) {
    const QString key = QStringLiteral("count");
    const int count = json.integer(key, 1, LargestCount, 1);
    if (count == 1) {
        return {first};
    }
    QList<int> parts = addressParts(first.address, first.dummy);
    if (parts.last() + count - 1 > 254) {
        json.fail(key, reason("the addresses from %1 on don't suffice", {first.address}));
    }
    QList<BodyDescription> result;
    for (int i = 1; i <= count; ++i, ++parts.last()) {
        BodyDescription body = first;
        const QString number = QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        body.name += QLatin1Char(' ') + number;
        body.serial += body.serial.isEmpty() ? QString() : QLatin1Char('-') + number;
        body.address = QStringLiteral("%1.%2.%3.%4").arg(parts[0]).arg(parts[1]).arg(parts[2]).arg(parts[3]);
        result << body;
    }
    return result;
}

} // namespace

RigFile RigFile::read(const QString& path) {
    SimulatedModel::ids(); // so that the built-in files are there
    const QFileInfo info(path);
    if (info.exists() && !info.isFile() && !info.isDir()) { // a pipe would be waited for
        throw RigFileError(path, 0, reason("This is no file."));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RigFileError(path, 0, reason("the rig file can't be read: %1", {file.errorString()}));
    }
    const QByteArray text = file.read(LargestBytes + 1);
    if (text.size() > LargestBytes) {
        throw RigFileError(path, 0, reason("The file is too large."));
    }
    return parse(text, path);
}

RigFile RigFile::parse(const QByteArray& text, const QString& fileName) {
    const CheckedJson json = CheckedJson::parse(text, fileName);
    json.allowOnly({QStringLiteral("title"), QStringLiteral("seed"), QStringLiteral("commandTimeMs"),
                    QStringLiteral("cameras")});
    RigFile rig;
    rig.title = json.text(QStringLiteral("title"), QString());
    rig.seed = quint32(json.integer(QStringLiteral("seed"), 0, 2147483647, 1));
    const double commandTimeMs = json.number(QStringLiteral("commandTimeMs"), 0, 60000, -1);
    QSet<QString> names;
    QSet<QString> addresses;
    const QList<CheckedJson> entries = json.objects(QStringLiteral("cameras"));
    if (entries.isEmpty()) {
        json.fail(QStringLiteral("cameras"), reason("at least one camera is expected"));
    }
    for (const CheckedJson& entry : entries) {
        for (const BodyDescription& body : expand(entry, readCamera(entry, commandTimeMs))) {
            if (names.contains(body.name)) {
                entry.fail(QStringLiteral("name"), reason("another camera is named \"%1\"", {body.name}));
            }
            if (addresses.contains(body.address)) {
                entry.fail(QStringLiteral("address"), reason("another camera has %1", {body.address}));
            }
            names.insert(body.name);
            addresses.insert(body.address);
            rig.cameras << body;
        }
    }
    return rig;
}
