#include "livecontrol/overlays/notes/CustomItemFile.h"

#include <QDebug>
#include <QDomDocument>
#include <QHash>
#include <QTextStream>
#include <QXmlStreamReader>

namespace {

constexpr int kIndent = 2;
constexpr int kLargest = 1 << 20; // bytes of a file: thousands of items
constexpr int kDeepest = 16;      // elements in one another; ours have three
const QString kTrue = QStringLiteral("true");

/// What other tools call an item, and what it is called here.
QString itemName(const QString& name) {
    static const QHash<QString, QString> names{
        {QStringLiteral("Sf_TestCode"), QStringLiteral("TestNo")},
        {QStringLiteral("Cm_TestDate"), QStringLiteral("Date")},
        {QStringLiteral("Cm_ProjectCode"), QStringLiteral("Project")},
        {QStringLiteral("Cm_PlannerName"), QStringLiteral("Engineer")},
        {QStringLiteral("Cm_TestPerson"), QStringLiteral("Technician")},
        {QStringLiteral("Cm_Comment"), QStringLiteral("Comments")}};
    return names.value(name, name);
}

QVariantMap item(const QString& name, const QString& value, const QString& unit, const QString& display) {
    return {{QStringLiteral("name"), itemName(name)},
            {QStringLiteral("value"), value},
            {QStringLiteral("unit"), unit},
            {QStringLiteral("selected"), display == kTrue}};
}

void append(QDomElement& parent, const QString& name, const QString& text) {
    QDomDocument document = parent.ownerDocument();
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
}

void appendItem(QDomElement& parent, const QVariantMap& map) {
    QDomElement element = parent.ownerDocument().createElement(QStringLiteral("customItem"));
    for (const char* const key : {"name", "value", "unit"}) {
        append(element, QLatin1String(key), map.value(QLatin1String(key)).toString());
    }
    append(element, QStringLiteral("display"), map.value(QStringLiteral("selected")).toString());
    append(element, QStringLiteral("usefilename"), kTrue);
    parent.appendChild(element);
}

QVariantList itemsOfJob(const QDomElement& root) {
    QVariantList items;
    for (QDomElement child = root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (!child.text().isEmpty()) {
            items.append(item(child.tagName(), child.text(), child.attribute(QStringLiteral("unit")),
                              child.attribute(QStringLiteral("display"), kTrue)));
        }
    }
    return items;
}

/// Empty if the element names no item.
QVariantMap itemOf(const QDomElement& element) {
    QHash<QString, QString> texts;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        texts.insert(child.tagName().toLower(), child.text());
    }
    if (!texts.contains(QStringLiteral("name"))) {
        return {};
    }
    return item(texts.value(QStringLiteral("name")), texts.value(QStringLiteral("value")),
                texts.value(QStringLiteral("unit")), texts.value(QStringLiteral("display")));
}

QVariantList itemsOf(const QDomElement& root) {
    const QString list = QStringLiteral("customItems");
    const QString entry = QStringLiteral("customItem");
    QVariantList items;
    for (QDomElement outer = root.firstChildElement(list); !outer.isNull();
         outer = outer.nextSiblingElement(list)) {
        for (QDomElement inner = outer.firstChildElement(entry); !inner.isNull();
             inner = inner.nextSiblingElement(entry)) {
            const QVariantMap map = itemOf(inner);
            if (!map.isEmpty()) {
                items.append(map);
            }
        }
    }
    return items;
}

/// The document keeps its elements in one another, and runs out of stack where they nest without end. Empty
/// if it can be read.
QString faultOf(const QByteArray& content) {
    if (content.size() > kLargest) {
        return QStringLiteral("The file is too large.");
    }
    QXmlStreamReader reader(content);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd() && depth <= kDeepest) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
    }
    if (!reader.hasError() && depth <= kDeepest) {
        return QString();
    }
    qWarning().noquote() << "file of items: line" << reader.lineNumber() << reader.errorString();
    return QStringLiteral("The file is no XML file, or it is damaged.");
}

} // namespace

void CustomItemFile::write(QIODevice& device, const QVariantList& items, const QString& version) {
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("custom"));
    document.appendChild(root);
    append(root, QStringLiteral("version"), version);
    QDomElement list = document.createElement(QStringLiteral("customItems"));
    root.appendChild(list);
    for (const QVariant& entry : items) {
        appendItem(list, entry.toMap());
    }
    const QDomProcessingInstruction declaration = document.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"utf-8\" standalone=\"no\""));
    document.insertBefore(declaration, document.firstChild());
    QTextStream stream(&device);
    document.save(stream, kIndent);
}

QVariantList CustomItemFile::read(QIODevice& device, QString* reason) {
    const QByteArray content = device.read(kLargest + 1);
    const QString fault = faultOf(content);
    QDomDocument document;
    QVariantList items;
    if (fault.isEmpty() && document.setContent(content)) {
        const QDomElement root = document.documentElement();
        items = root.tagName().toLower() == QLatin1String("job") ? itemsOfJob(root) : itemsOf(root);
    }
    if (reason && items.isEmpty()) {
        *reason = fault.isEmpty() ? QStringLiteral("The file holds no items.") : fault;
    }
    return items;
}
