#include "viewer/export/writers/TiffDescription.h"

#include "viewer/export/PictureNote.h"

#include <QStringList>

QString tiffDescription(const SinkPlan& plan, int pages) {
    const int top = (1 << plan.bitDepth) - 1;
    QStringList lines{QStringLiteral("ImageJ=1.53t"), QStringLiteral("images=%1").arg(pages)};
    if (pages > 1) {
        lines.append(QStringLiteral("frames=%1").arg(pages));
    }
    if (plan.rate > 0) {
        lines.append(QStringLiteral("unit=pixel"));
        lines.append(QStringLiteral("finterval=%1").arg(1.0 / plan.rate, 0, 'g', 12));
        lines.append(QStringLiteral("fps=%1").arg(plan.rate));
    }
    lines.append(QStringLiteral("min=0.0"));
    lines.append(QStringLiteral("max=%1.0").arg(top));
    lines.append(PictureNote::text(plan.info));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
