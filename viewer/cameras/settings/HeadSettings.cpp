#include "viewer/cameras/settings/HeadSettings.h"

#include "viewer/cameras/settings/SettingTable.h"

bool HeadSettings::operator==(const HeadSettings& other) const {
    return position == other.position && SettingTable::areEqual(*this, other);
}

QRect HeadSettings::areaOn(const QSize& sensor) const {
    const QSize free = sensor - resolution;
    return {channel > 0 ? position : QPoint(free.width() / 2, free.height() / 2), resolution};
}
