#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/settings/SettingTable.h"
#include "viewer/cameras/settings/SettingsRecord.h"

#include <QJsonDocument>

namespace {

const QString Format = QStringLiteral("zcsx");
using SettingTable::kLargestNumber;
using SettingTable::kLargestSide;

HeadRecord readHead(const CheckedJson& json) {
    HeadRecord record;
    record.settings = SettingTable::read(json);
    const QString key = QStringLiteral("lens");
    record.hasLens = json.has(key);
    if (record.hasLens) {
        const QList<int> places = json.integers(key, 0, kLargestNumber);
        if (places.size() != int(record.lens.size())) {
            json.fail(key, reason("[iris, focus, zoom] is expected"));
        }
        std::copy(places.begin(), places.end(), record.lens.begin());
    }
    return record;
}

BodyRecord readBody(const CheckedJson& json) {
    BodyRecord record;
    record.name = json.text(QStringLiteral("name"));
    record.model = json.text(QStringLiteral("model"), QString());
    record.serial = json.text(QStringLiteral("serial"), QString());
    record.partition = json.integer(QStringLiteral("partition"), 1, 1000, 1);
    record.fanRuns = json.boolean(QStringLiteral("fan"), true);
    const QString key = QStringLiteral("channels");
    const auto channels = json.has(key) ? json.objects(key) : QList<CheckedJson>();
    for (const CheckedJson& entry : channels) {
        const int number = entry.integer(QStringLiteral("number"), 1, LastVariableChannel);
        VariableChannel channel;
        channel.rate = quint32(entry.integer(QStringLiteral("rate"), 1, kLargestNumber));
        channel.size = entry.size(QStringLiteral("size"));
        channel.position = QPoint(entry.integer(QStringLiteral("x"), 0, kLargestSide, 0),
                                  entry.integer(QStringLiteral("y"), 0, kLargestSide, 0));
        record.channels.insert(number, channel);
    }
    for (const CheckedJson& head : json.objects(QStringLiteral("heads"))) {
        record.heads << readHead(head);
    }
    if (record.heads.isEmpty()) {
        json.fail(QStringLiteral("heads"), reason("at least one is expected"));
    }
    return record;
}

QJsonObject bodyText(const BodyRecord& record) {
    QJsonArray channels;
    for (auto it = record.channels.begin(); it != record.channels.end(); ++it) {
        channels << QJsonObject{{QStringLiteral("number"), it.key()},
                                {QStringLiteral("rate"), double(it->rate)},
                                {QStringLiteral("size"), QJsonArray{it->size.width(), it->size.height()}},
                                {QStringLiteral("x"), it->position.x()},
                                {QStringLiteral("y"), it->position.y()}};
    }
    QJsonArray heads;
    for (const HeadRecord& head : record.heads) {
        heads << SettingsRecord::stateOf(head);
    }
    return {{QStringLiteral("name"), record.name},     {QStringLiteral("model"), record.model},
            {QStringLiteral("serial"), record.serial}, {QStringLiteral("partition"), record.partition},
            {QStringLiteral("fan"), record.fanRuns},   {QStringLiteral("channels"), channels},
            {QStringLiteral("heads"), heads}};
}

} // namespace

QByteArray SettingsFile::write(const QList<BodyRecord>& records) {
    QJsonArray cameras;
    for (const BodyRecord& record : records) {
        cameras << bodyText(record);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("format"), Format},
                                     {QStringLiteral("version"), Version},
                                     {QStringLiteral("cameras"), cameras}})
        .toJson();
}

QList<BodyRecord> SettingsFile::read(const QByteArray& text, const QString& fileName) {
    const CheckedJson json = CheckedJson::parse(text, fileName);
    if (json.text(QStringLiteral("format"), QString()) != Format) {
        json.fail(QString(), reason("this is no camera settings file"));
    }
    const int version = json.integer(QStringLiteral("version"), 1, kLargestNumber);
    if (version != Version) {
        json.fail(QStringLiteral("version"),
                  reason("the file has version %1, and this program reads version %2", {version, Version}));
    }
    QList<BodyRecord> records;
    for (const CheckedJson& camera : json.objects(QStringLiteral("cameras"))) {
        records << readBody(camera);
    }
    return records;
}
