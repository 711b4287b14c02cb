// Files of custom items: whatever bytes they hold, reading ends, and what was read can be written and read
// again.

#include "fuzz/Expect.h"
#include "livecontrol/overlays/notes/CustomItemFile.h"

#include <QBuffer>

static QVariantList itemsIn(QByteArray text) {
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return CustomItemFile::read(buffer);
}

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size) {
    const QVariantList items =
        itemsIn(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    for (const QVariant& item : items) {
        expect(item.toMap().size() == 4, "name, value, unit and whether it is selected");
    }
    QByteArray written;
    QBuffer buffer(&written);
    buffer.open(QIODevice::WriteOnly);
    CustomItemFile::write(buffer, items, QStringLiteral("1"));
    const QVariantList again = itemsIn(written);
    expect(again.size() == items.size(), "as many items as were written");
    for (int i = 0; i < items.size(); ++i) {
        expect(again.at(i).toMap().value(QStringLiteral("selected")) ==
                   items.at(i).toMap().value(QStringLiteral("selected")),
               "the same items selected");
    }
    return 0;
}
