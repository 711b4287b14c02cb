#include "livecontrol/storage/DataName.h"

#include "livecontrol/interface/HostObject.h"

namespace {
constexpr int kDigits = 6;
}

QString composeDataName(HostObject* host, const QString& name, int sequence) {
    if (!host->getPrefBool(QStringLiteral("convert/fd/datanameaddnumber"), QVariant())) {
        return name;
    }
    const QString number = QStringLiteral("%1").arg(sequence, kDigits, 10, QLatin1Char('0'));
    return name + QLatin1Char('_') + number;
}
