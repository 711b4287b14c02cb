#include "simulator/settings/SimulatedModel.h"

#include "viewer/cameras/CheckedJson.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <algorithm>

namespace {

constexpr int FirstFunction = static_cast<int>(CameraFunction::ShutterLock);
constexpr int LastFunction = static_cast<int>(CameraFunction::Restart);

int lensTypeOf(const CheckedJson& lens) {
    static const QStringList names = {QStringLiteral("none"), QStringLiteral("EF"), QStringLiteral("MYUTRON"),
                                      QStringLiteral("FOURTHIRDS"), QStringLiteral("EF2")};
    const int type = names.indexOf(lens.text(QStringLiteral("type"), names.first()));
    if (type < 0) {
        lens.fail(QStringLiteral("type"),
                  reason("unknown lens; known are %1", {names.join(QStringLiteral(", "))}));
    }
    return type;
}

// [min, max], or [min, max, step].
LensRange lensRange(const CheckedJson& lens, const QString& key) {
    LensRange range;
    if (!lens.has(key)) {
        return range;
    }
    const QList<int> numbers = lens.integers(key, 0, 100000);
    if (numbers.size() < 2 || numbers.size() > 3 || numbers.at(1) < numbers.at(0)) {
        lens.fail(key, reason("smallest, largest and perhaps a step are expected"));
    }
    range.min = numbers.at(0);
    range.max = numbers.at(1);
    range.tick = std::max(1, numbers.value(2, 1));
    return range;
}

void readLens(const CheckedJson& json, LensModel& lens, LensMotion& motion) {
    json.allowOnly({QStringLiteral("type"), QStringLiteral("name"), QStringLiteral("iris"),
                    QStringLiteral("focus"), QStringLiteral("zoom"), QStringLiteral("focusShift"),
                    QStringLiteral("travelMs"), QStringLiteral("commandMs")});
    lens.type = lensTypeOf(json);
    lens.name = json.text(QStringLiteral("name"), QString());
    lens.iris = lensRange(json, QStringLiteral("iris"));
    lens.focus = lensRange(json, QStringLiteral("focus"));
    lens.zoom = lensRange(json, QStringLiteral("zoom"));
    motion.focusShift = json.integer(QStringLiteral("focusShift"), 0, 100000, 0);
    motion.travelMs = json.number(QStringLiteral("travelMs"), 1, 60000, motion.travelMs);
    motion.commandMs = json.number(QStringLiteral("commandMs"), 0, 60000, motion.commandMs);
}

void readFunctions(const CheckedJson& json, CameraModel& model) {
    const QString key = QStringLiteral("functions");
    for (const QString& name : json.texts(key)) {
        int function = FirstFunction;
        while (function <= LastFunction && functionName(static_cast<CameraFunction>(function)) != name) {
            ++function;
        }
        if (function > LastFunction) {
            json.fail(key, reason("unknown function \"%1\"", {name}));
        }
        model.functions.insert(function);
    }
    if (model.supports(CameraFunction::DualSlopeMode) && !model.supports(CameraFunction::DualSlope)) {
        json.fail(key, reason("\"dualSlopeMode\" needs \"dualSlope\""));
    }
    if (model.supports(CameraFunction::AutoExposure) && model.meter.areaStep.isEmpty()) {
        json.fail(key, reason("\"autoExposure\" needs its group of values"));
    }
    if (model.supports(CameraFunction::ImageTrigger) && model.meter.areaStep.isEmpty()) {
        json.fail(key, reason("\"imageTrigger\" needs the group of values \"autoExposure\""));
    }
}

void readMeter(const CheckedJson& json, CameraModel& model) {
    const QString key = QStringLiteral("autoExposure");
    const CheckedJson exposure = json.object(key);
    exposure.allowOnly({QStringLiteral("areaMin"), QStringLiteral("areaStep"), QStringLiteral("posStep"),
                        QStringLiteral("valueMax"), QStringLiteral("rangeMax"),
                        QStringLiteral("upperLimit")});
    if (!json.has(key)) {
        return;
    }
    model.meter.areaMin = exposure.size(QStringLiteral("areaMin"));
    model.meter.areaStep = exposure.size(QStringLiteral("areaStep"));
    model.meter.posStep = exposure.size(QStringLiteral("posStep"));
    const int full = (1 << model.bitDepth) - 1;
    model.meter.valueMax = quint32(exposure.integer(QStringLiteral("valueMax"), 1, full));
    model.meter.rangeMax = quint32(exposure.integer(QStringLiteral("rangeMax"), 1, full));
    model.meter.upperLimit = quint32(exposure.integer(QStringLiteral("upperLimit"), 1, full, 0));
}

void readGroups(const CheckedJson& json, SimulatedModel& model) {
    const CheckedJson readout = json.object(QStringLiteral("readout"));
    readout.allowOnly(
        {QStringLiteral("frameOverheadUs"), QStringLiteral("rowOverheadUs"), QStringLiteral("columnNs")});
    model.frameOverheadUs =
        readout.number(QStringLiteral("frameOverheadUs"), 0.1, 1e6, model.frameOverheadUs);
    model.rowOverheadUs = readout.number(QStringLiteral("rowOverheadUs"), 0, 1e3, model.rowOverheadUs);
    model.columnNs = readout.number(QStringLiteral("columnNs"), 0, 1e3, model.columnNs);

    readLens(json.object(QStringLiteral("lens")), model.lens, model.lensMotion);

    const CheckedJson slope = json.object(QStringLiteral("dualSlope"));
    slope.allowOnly({QStringLiteral("min"), QStringLiteral("max"), QStringLiteral("rateLimit")});
    model.dualSlopeMin = slope.integer(QStringLiteral("min"), 0, 99, 0);
    model.dualSlopeMax = slope.integer(QStringLiteral("max"), model.dualSlopeMin, 99, model.dualSlopeMin);
    model.dualSlopeRateLimit = quint32(slope.integer(QStringLiteral("rateLimit"), 0, 10000000, 0));

    readMeter(json, model);

    const CheckedJson times = json.object(QStringLiteral("times"));
    times.allowOnly({QStringLiteral("commandMs"), QStringLiteral("bootMs"), QStringLiteral("readyMs")});
    model.commandTimeMs = times.number(QStringLiteral("commandMs"), 0, 60000, model.commandTimeMs);
    model.bootTimeMs = times.number(QStringLiteral("bootMs"), 0, 600000, model.bootTimeMs);
    model.readyTimeMs = times.number(QStringLiteral("readyMs"), 0, 60000, model.readyTimeMs);
}

void readVariable(const CheckedJson& json, CameraModel& model) {
    const CheckedJson variable = json.object(QStringLiteral("variable"));
    variable.allowOnly({QStringLiteral("positionStep"), QStringLiteral("fixed"), QStringLiteral("bands")});
    if (variable.has(QStringLiteral("positionStep"))) {
        model.positionStep = variable.size(QStringLiteral("positionStep"));
    }
    const QString key = QStringLiteral("fixed");
    for (const QString& axis : variable.texts(key)) {
        if (axis != QLatin1String("x") && axis != QLatin1String("y")) {
            variable.fail(key, reason("\"x\" and \"y\" are the axes"));
        }
        (axis == QLatin1String("x") ? model.positionFreeX : model.positionFreeY) = false;
    }
    const QString bandsKey = QStringLiteral("bands");
    const auto bands = variable.has(bandsKey) ? variable.objects(bandsKey) : QList<CheckedJson>();
    for (const CheckedJson& entry : bands) {
        entry.allowOnly({QStringLiteral("from"), QStringLiteral("to"), QStringLiteral("heightStep")});
        RateBand band;
        band.from = quint32(entry.integer(QStringLiteral("from"), 1, 10000000));
        band.to = quint32(entry.integer(QStringLiteral("to"), int(band.from), 10000000));
        band.heightStep = entry.integer(QStringLiteral("heightStep"), 1, model.sensor.height());
        if (band.heightStep % model.sizeStep.height() != 0) {
            entry.fail(QStringLiteral("heightStep"), reason("must be a multiple of the size step"));
        }
        for (const QSize& size :
             qAsConst(model.resolutions)) { // a preset runs at every rate up to its highest
            if (size.height() % band.heightStep != 0) {
                entry.fail(QStringLiteral("heightStep"), reason("a preset is %1 rows high", {size.height()}));
            }
        }
        model.bands << band;
    }
}

QList<quint32> risingList(const CheckedJson& json, const QString& key) {
    QList<quint32> result;
    for (const int value : json.integers(key, 1, 10000000)) {
        if (!result.isEmpty() && quint32(value) <= result.last()) {
            json.fail(key, reason("must rise"));
        }
        result << quint32(value);
    }
    return result;
}

// Longer than any other, so that the two lists make one.
void readLowLight(const CheckedJson& json, CameraModel& model) {
    const QString key = QStringLiteral("lowLight");
    const CheckedJson lowLight = json.object(key);
    lowLight.allowOnly({QStringLiteral("shutters")});
    if (json.has(key)) {
        model.lowLightShutters = risingList(lowLight, QStringLiteral("shutters"));
    }
    if (!model.lowLightShutters.isEmpty() && model.lowLightShutters.last() >= model.shutters.first()) {
        lowLight.fail(QStringLiteral("shutters"), reason("must be longer than the other shutters"));
    }
}

void readSizes(const CheckedJson& json, CameraModel& model) {
    model.sensor = json.size(QStringLiteral("sensor"));
    model.sizeMin = json.size(QStringLiteral("sizeMin"));
    model.sizeStep = json.size(QStringLiteral("sizeStep"));
    const QString key = QStringLiteral("resolutions");
    model.resolutions = json.sizes(key);
    int area = model.sensor.width() * model.sensor.height();
    for (const QSize& size : qAsConst(model.resolutions)) {
        if (size.width() * size.height() > area) {
            json.fail(key, reason("must stand from the largest to the smallest"));
        }
        area = size.width() * size.height();
        const bool fits = size.boundedTo(model.sensor) == size && size.expandedTo(model.sizeMin) == size;
        if (!fits || size.width() % model.sizeStep.width() != 0 ||
            size.height() % model.sizeStep.height() != 0) {
            json.fail(key, reason("%1 x %2 is not on the sensor's grid", {size.width(), size.height()}));
        }
        if (model.maxRate(size) < model.rates.first()) {
            json.fail(key, reason("%1 x %2 can't run the lowest rate", {size.width(), size.height()}));
        }
    }
}

void readTriggerModes(const CheckedJson& json, CameraModel& model) {
    const QString key = QStringLiteral("triggerModes");
    model.triggerModes = json.integers(key, TriggerStart, TriggerRandomLoop);

    const CheckedJson random = json.object(QStringLiteral("random"));
    random.allowOnly({QStringLiteral("offset"), QStringLiteral("count"), QStringLiteral("countAlways")});
    model.randomOffset = random.integer(QStringLiteral("offset"), 0, 1000, model.randomOffset);
    model.randomCountMax = random.integer(QStringLiteral("count"), 1, 10000, model.randomCountMax);
    model.randomCountMaxAlways =
        random.integer(QStringLiteral("countAlways"), 1, 10000, model.randomCountMaxAlways);
}

void readStorage(const CheckedJson& json, SimulatedModel& model) {
    constexpr int LargestCount = 8;
    const CheckedJson storage = json.object(QStringLiteral("storage"));
    storage.allowOnly({QStringLiteral("sd"), QStringLiteral("dockstore"), QStringLiteral("cfast")});
    model.sdSlots = storage.integer(QStringLiteral("sd"), 0, 2, 0);
    model.dockStoreSlots = storage.integer(QStringLiteral("dockstore"), 0, LargestCount, 0);
    model.cFastSlots = storage.integer(QStringLiteral("cfast"), 0, LargestCount, 0);
}

} // namespace

// A resource in a static library is dropped unless something asks for it by name, outside any namespace.
static void needResources() { Q_INIT_RESOURCE(models); }

quint32 SimulatedModel::maxRate(const QSize& size) const {
    if (size.isEmpty()) {
        return 0;
    }
    const double rowUs = rowOverheadUs + size.width() * columnNs / 1000;
    return std::min(rateLimit, static_cast<quint32>(1e6 / (frameOverheadUs + size.height() * rowUs)));
}

std::shared_ptr<const SimulatedModel> SimulatedModel::parse(const QByteArray& text, const QString& fileName) {
    const CheckedJson json = CheckedJson::parse(text, fileName);
    json.allowOnly({QStringLiteral("title"),
                    QStringLiteral("sensor"),
                    QStringLiteral("sizeMin"),
                    QStringLiteral("sizeStep"),
                    QStringLiteral("colour"),
                    QStringLiteral("bitDepth"),
                    QStringLiteral("readout"),
                    QStringLiteral("rateLimit"),
                    QStringLiteral("resolutions"),
                    QStringLiteral("rates"),
                    QStringLiteral("shutters"),
                    QStringLiteral("dualSlope"),
                    QStringLiteral("autoExposure"),
                    QStringLiteral("triggerModes"),
                    QStringLiteral("random"),
                    QStringLiteral("memoryMb"),
                    QStringLiteral("partitions"),
                    QStringLiteral("functions"),
                    QStringLiteral("lens"),
                    QStringLiteral("storage"),
                    QStringLiteral("presets"),
                    QStringLiteral("times"),
                    QStringLiteral("variable"),
                    QStringLiteral("lowLight"),
                    QStringLiteral("presetsNeedReboot")});
    auto model = std::make_shared<SimulatedModel>();
    model->id = QFileInfo(fileName).completeBaseName();
    model->title = json.text(QStringLiteral("title"));
    model->color = json.boolean(QStringLiteral("colour"), false);
    model->bitDepth = json.integer(QStringLiteral("bitDepth"), 8, model->color ? 8 : 16, 8);
    model->rateLimit = quint32(json.integer(QStringLiteral("rateLimit"), 1, 10000000, int(model->rateLimit)));
    readGroups(json, *model);
    model->rates = risingList(json, QStringLiteral("rates"));
    model->shutters = risingList(json, QStringLiteral("shutters"));
    readLowLight(json, *model);
    readSizes(json, *model);
    readVariable(json, *model);
    readTriggerModes(json, *model);
    model->memoryMb = json.integer(QStringLiteral("memoryMb"), 1, 1048576, model->memoryMb);
    model->partitions = json.integer(QStringLiteral("partitions"), 1, 64, 1);
    readStorage(json, *model);
    model->presets = json.integer(QStringLiteral("presets"), 0, 64, 0);
    model->presetsNeedReboot = json.boolean(QStringLiteral("presetsNeedReboot"), false);
    readFunctions(json, *model);
    return model;
}

QStringList SimulatedModel::ids() {
    needResources();
    QStringList result;
    for (const QFileInfo& file : QDir(QStringLiteral(":/models")).entryInfoList({QStringLiteral("*.json")})) {
        result << file.completeBaseName();
    }
    return result;
}

std::shared_ptr<const SimulatedModel> SimulatedModel::find(const QString& id) {
    static QMap<QString, std::shared_ptr<const SimulatedModel>> known;
    needResources();
    if (!known.contains(id)) {
        QFile file(QStringLiteral(":/models/%1.json").arg(id));
        if (!ids().contains(id) || !file.open(QIODevice::ReadOnly)) {
            return nullptr;
        }
        known.insert(id, parse(file.readAll(), file.fileName()));
    }
    return known.value(id);
}

std::shared_ptr<const SimulatedModel> SimulatedModel::dummy() {
    static const auto model = [] {
        auto empty = std::make_shared<SimulatedModel>();
        empty->id = QStringLiteral("dummy");
        empty->title = QStringLiteral("Dummy");
        empty->memoryMb = 0;
        return empty;
    }();
    return model;
}
