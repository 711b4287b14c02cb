#include "viewer/recordings/RecordingInfo.h"

#include "viewer/recordings/TimeCodeRecord.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace {

QString key(const char* name) { return QLatin1String(name); }

/// Takes entries out of an object: what is left in the end is known to nobody here.
class Entries {
public:
    explicit Entries(const QJsonObject& json) : m_rest(json) {}

    QJsonValue take(const char* name) { return m_rest.take(key(name)); }
    const QJsonObject& rest() const { return m_rest; }

    void visit(const char* name, QString& member) { member = take(name).toString(); }
    void visit(const char* name, bool& member) { member = take(name).toBool(); }
    void visit(const char* name, int& member) { member = take(name).toInt(member); }
    void visit(const char* name, quint32& member) {
        const double value = take(name).toDouble();
        const bool fits = value >= 0 && value <= UINT32_MAX && std::floor(value) == value;
        member = fits ? quint32(value) : 0;
    }
    void visit(const char* name, QDateTime& member) {
        member = QDateTime::fromString(take(name).toString(), Qt::ISODateWithMs).toLocalTime();
    }
    void visit(const char* name, QSize& member) {
        const QJsonArray list = take(name).toArray();
        member = list.size() == 2 ? QSize(list.at(0).toInt(), list.at(1).toInt()) : QSize();
    }
    void visit(const char* name, QRect& member) {
        const QJsonArray list = take(name).toArray();
        member = list.size() == 4
                     ? QRect(list.at(0).toInt(), list.at(1).toInt(), list.at(2).toInt(), list.at(3).toInt())
                     : QRect();
    }

private:
    QJsonObject m_rest;
};

/// Puts members into an object.
class Writer {
public:
    explicit Writer(const QJsonObject& json) : m_json(json) {}
    const QJsonObject& json() const { return m_json; }

    template <class Value>
    void put(const char* name, const Value& value) {
        m_json.insert(key(name), value);
    }
    void visit(const char* name, const QString& member) { put(name, member); }
    void visit(const char* name, bool member) { put(name, member); }
    void visit(const char* name, int member) { put(name, member); }
    void visit(const char* name, quint32 member) { put(name, double(member)); }
    void visit(const char* name, const QDateTime& member) {
        put(name, member.isValid() ? member.toUTC().toString(Qt::ISODateWithMs) : QString());
    }
    void visit(const char* name, const QSize& member) {
        put(name, member.isNull() || !member.isValid() ? QJsonArray()
                                                       : QJsonArray{member.width(), member.height()});
    }
    void visit(const char* name, const QRect& member) {
        put(name, member.isNull() ? QJsonArray()
                                  : QJsonArray{member.left(), member.top(), member.width(), member.height()});
    }

private:
    QJsonObject m_json;
};

/// Each plain member with its name.
template <class Info, class Visitor>
void each(Info& info, Visitor& visitor) {
    visitor.visit("id", info.id);
    visitor.visit("camera", info.camera);
    visitor.visit("device", info.device);
    visitor.visit("headName", info.headName);
    visitor.visit("head", info.head);
    visitor.visit("serial", info.serial);
    visitor.visit("partition", info.partition);
    visitor.visit("triggered", info.triggered);
    visitor.visit("ended", info.ended);
    visitor.visit("rate", info.rate);
    visitor.visit("shutter", info.shutter);
    visitor.visit("size", info.size);
    visitor.visit("area", info.area);
    visitor.visit("bitDepth", info.bitDepth);
    visitor.visit("color", info.color);
    visitor.visit("frames", info.frames);
    visitor.visit("triggerIndex", info.triggerIndex);
    visitor.visit("firstNumber", info.firstNumber);
    visitor.visit("recordedFrames", info.recordedFrames);
    visitor.visit("triggerMode", info.triggerMode);
    visitor.visit("comment", info.comment);
    visitor.visit("logoPath", info.logoPath);
}

constexpr int kFarthest = 1 << 30; // frames

/// What no recording can have counts as missing: others do sums with these.
void dropOutOfRange(RecordingInfo& info) {
    constexpr int kMostBits = 16;
    const RecordingInfo missing;
    if (info.bitDepth < 1 || info.bitDepth > kMostBits) {
        info.bitDepth = missing.bitDepth;
    }
    for (int RecordingInfo::*const count : {&RecordingInfo::frames, &RecordingInfo::recordedFrames}) {
        if (info.*count < 0) {
            info.*count = missing.*count;
        }
    }
    // The trigger of a part may lie before it, or behind it.
    if (info.triggerIndex < -kFarthest || info.triggerIndex > kFarthest) {
        info.triggerIndex = missing.triggerIndex;
    }
}

QVector<int> marksOf(const QJsonArray& list) {
    QVector<int> marks;
    for (const QJsonValue value : list) {
        if (value.toInt(-1) >= 0) {
            marks.append(value.toInt());
        }
    }
    std::sort(marks.begin(), marks.end());
    marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
    return marks;
}

QJsonArray toJson(const QVector<RecordedShot>& shots) {
    QJsonArray list;
    for (const RecordedShot& shot : shots) {
        Writer writer{QJsonObject()};
        writer.visit("first", shot.first);
        writer.visit("triggerIndex", shot.triggerIndex);
        writer.visit("triggered", shot.triggered);
        list.append(writer.json());
    }
    return list;
}

QVector<RecordedShot> shotsOf(const QJsonArray& list) {
    QVector<RecordedShot> shots;
    for (const QJsonValue value : list) {
        Entries entries(value.toObject());
        RecordedShot shot{-1, -1, QDateTime()};
        entries.visit("first", shot.first);
        entries.visit("triggerIndex", shot.triggerIndex);
        entries.visit("triggered", shot.triggered);
        const int least = shots.isEmpty() ? 0 : shots.last().first + 1;
        if (shot.first >= least && qAbs(qint64(shot.triggerIndex)) <= kFarthest) {
            shots.append(shot);
        }
    }
    return shots;
}

} // namespace

const RecordedShot* RecordedShot::of(const QVector<RecordedShot>& shots, int frame) {
    const auto next = std::find_if(shots.begin(), shots.end(),
                                   [frame](const RecordedShot& shot) { return shot.first > frame; });
    return next == shots.begin() ? nullptr : &*(next - 1);
}

QJsonObject RecordingInfo::toJson() const {
    Writer writer(others);
    each(*this, writer);
    writer.put("items", QJsonArray::fromVariantList(items.toList()));
    if (timeCode) {
        writer.put("timeCode", QJsonObject::fromVariantMap(TimeCodeRecord::toMap(*timeCode)));
    }
    QJsonArray list;
    for (const int mark : marks) {
        list.append(mark);
    }
    writer.put("marks", list);
    if (!shots.isEmpty()) {
        writer.put("shots", ::toJson(shots));
    }
    return writer.json();
}

RecordingInfo RecordingInfo::fromJson(const QJsonObject& json) {
    RecordingInfo info;
    Entries entries(json);
    each(info, entries);
    dropOutOfRange(info);
    info.items.setList(entries.take("items").toArray().toVariantList());
    const QJsonValue code = entries.take("timeCode");
    if (code.isObject()) {
        info.timeCode = TimeCodeRecord::fromMap(code.toObject().toVariantMap());
    }
    info.marks = marksOf(entries.take("marks").toArray());
    info.shots = shotsOf(entries.take("shots").toArray());
    info.others = entries.rest();
    return info;
}

RecordingInfo RecordingInfo::part(int first, int count) const {
    RecordingInfo result = *this;
    result.frames = count;
    result.recordedFrames = std::max(recordedFrames, frames);
    result.triggerIndex = triggerIndex - first;
    result.marks.clear();
    for (const int mark : marks) {
        if (mark >= first && mark < first + count) {
            result.marks.append(mark - first);
        }
    }
    result.shots.clear();
    for (RecordedShot shot : shots) {
        shot.first = std::max(0, shot.first - first);
        shot.triggerIndex -= first;
        if (!result.shots.isEmpty() && result.shots.last().first == shot.first) {
            result.shots.removeLast(); // it ends before the part
        }
        if (shot.first < count) {
            result.shots.append(shot);
        }
    }
    return result;
}
