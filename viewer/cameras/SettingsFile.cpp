#include "viewer/cameras/CameraBody.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/cameras/SettingsRecord.h"

#include <QJsonDocument>

namespace {

const QString Format = QStringLiteral("zcsx");
constexpr int Most = 10'000'000; // of a number
constexpr int MostPixels = 1 << 16;

quint32 rate(const CheckedJson& json, const char* key, quint32 fallback = 0) {
    return quint32(json.integer(QLatin1String(key), 0, Most, int(fallback)));
}

QRect rect(const CheckedJson& json) {
    const QString key = QStringLiteral("area");
    if (!json.has(key))
        return {};
    const QList<int> numbers = json.integers(key, 0, MostPixels);
    if (numbers.size() != 4)
        json.fail(key, QStringLiteral("[x, y, width, height] is expected"));
    return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

void readJudge(const CheckedJson& json, AreaJudge& judge) {
    judge.area = rect(json);
    judge.value = rate(json, "value");
    judge.range = rate(json, "range");
}

HeadSettings readSettings(const CheckedJson& json) {
    const CheckedJson from = json.object(QStringLiteral("settings"));
    const auto whole = [&from](const char* key, int min, int fallback) {
        return from.integer(QLatin1String(key), min, Most, fallback);
    };
    const auto truth = [&from](const char* key) { return from.boolean(QLatin1String(key), false); };
    HeadSettings s;
    s.resolution = from.size(QStringLiteral("resolution"));
    s.rate = quint32(from.integer(QStringLiteral("rate"), 1, Most));
    s.shutter = quint32(from.integer(QStringLiteral("shutter"), 1, Most));
    s.shutterWish = quint32(json.integer(QStringLiteral("shutterWish"), 1, Most, int(s.shutter)));
    s.shutterLock = truth("shutterLock");
    s.resolutionLock = truth("resolutionLock");
    s.dualSlope = from.integer(QStringLiteral("dualSlope"), 0, 100, 0);
    s.dualSlopeMode = truth("dualSlopeMode");
    s.triggerMode = from.integer(QStringLiteral("triggerMode"), 0, TriggerRandomLoop, 0);
    s.afterFrames = whole("afterFrames", 1, 1);
    s.randomFrames = whole("randomFrames", 1, 1);
    s.randomCount = whole("randomCount", 1, 1);
    s.randomTimes = truth("randomTimes");
    s.channel = from.integer(QStringLiteral("channel"), 0, LastVariableChannel, 0);
    s.lowLight.type = from.integer(QStringLiteral("lowLightType"), LowLight::WholeSensor,
                                   LowLight::Resolution, LowLight::Resolution);
    s.led = truth("led");
    s.laser = truth("laser");
    const CheckedJson exposure = json.object(QStringLiteral("exposureControl"));
    readJudge(exposure, s.exposure);
    s.exposure.maxTime = rate(exposure, "maxTime");
    s.exposure.on = truth("autoExposure");
    readJudge(json.object(QStringLiteral("imageTriggerControl")), s.imageTrigger);
    s.imageTrigger.on = truth("imageTrigger");
    return s;
}

HeadRecord readHead(const CheckedJson& json) {
    HeadRecord record;
    record.settings = readSettings(json);
    const QString key = QStringLiteral("lens");
    record.hasLens = json.has(key);
    if (record.hasLens) {
        const QList<int> places = json.integers(key, 0, Most);
        if (places.size() != int(record.lens.size()))
            json.fail(key, QStringLiteral("[iris, focus, zoom] is expected"));
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
        channel.rate = quint32(entry.integer(QStringLiteral("rate"), 1, Most));
        channel.size = entry.size(QStringLiteral("size"));
        channel.position = QPoint(entry.integer(QStringLiteral("x"), 0, MostPixels, 0),
                                  entry.integer(QStringLiteral("y"), 0, MostPixels, 0));
        record.channels.insert(number, channel);
    }
    for (const CheckedJson& head : json.objects(QStringLiteral("heads")))
        record.heads << readHead(head);
    if (record.heads.isEmpty())
        json.fail(QStringLiteral("heads"), QStringLiteral("at least one is expected"));
    return record;
}

QJsonObject bodyText(const BodyRecord& record) {
    QJsonArray channels;
    for (auto it = record.channels.begin(); it != record.channels.end(); ++it)
        channels << QJsonObject{{QStringLiteral("number"), it.key()},
                                {QStringLiteral("rate"), double(it->rate)},
                                {QStringLiteral("size"), QJsonArray{it->size.width(), it->size.height()}},
                                {QStringLiteral("x"), it->position.x()},
                                {QStringLiteral("y"), it->position.y()}};
    QJsonArray heads;
    for (const HeadRecord& head : record.heads)
        heads << SettingsRecord::stateOf(head);
    return {{QStringLiteral("name"), record.name},     {QStringLiteral("model"), record.model},
            {QStringLiteral("serial"), record.serial}, {QStringLiteral("partition"), record.partition},
            {QStringLiteral("fan"), record.fanRuns},   {QStringLiteral("channels"), channels},
            {QStringLiteral("heads"), heads}};
}

} // namespace

QByteArray SettingsFile::write(const QList<BodyRecord>& records) {
    QJsonArray cameras;
    for (const BodyRecord& record : records)
        cameras << bodyText(record);
    return QJsonDocument(QJsonObject{{QStringLiteral("format"), Format},
                                     {QStringLiteral("version"), Version},
                                     {QStringLiteral("cameras"), cameras}})
        .toJson();
}

QList<BodyRecord> SettingsFile::read(const QByteArray& text, const QString& fileName) {
    const CheckedJson json = CheckedJson::parse(text, fileName);
    if (json.text(QStringLiteral("format"), QString()) != Format)
        json.fail(QString(), QStringLiteral("this is no camera settings file"));
    const int version = json.integer(QStringLiteral("version"), 1, Most);
    if (version != Version)
        json.fail(QStringLiteral("version"),
                  QStringLiteral("the file has version %1, and this program reads version %2")
                      .arg(version)
                      .arg(Version));
    QList<BodyRecord> records;
    for (const CheckedJson& camera : json.objects(QStringLiteral("cameras")))
        records << readBody(camera);
    return records;
}
