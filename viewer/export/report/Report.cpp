#include "viewer/export/report/Report.h"

#include "viewer/recordings/UnfinishedFile.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

namespace {

constexpr int kPictureWidth = 640; // pixels, in the document; the picture itself keeps its size
constexpr int kDotsPerInch = 96;

const QString kStyle =
    QStringLiteral("body{font-family:sans-serif;font-size:10pt;color:#222;margin:24px}"
                   "h1{font-size:16pt}h2{font-size:13pt;border-bottom:1px solid #999}"
                   "th{text-align:left;font-weight:normal;color:#555;padding:2px 16px 2px 0}"
                   "td{padding:2px 0}p.note{background:#eee;padding:6px}"
                   "div.caption{color:#555}");

QString escaped(const QString& text) {
    QString result = text.toHtmlEscaped();
    return result.replace(QLatin1Char('\n'), QStringLiteral("<br>"));
}

QString pictureTag(const Report::Picture& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.image.save(&buffer, "PNG");
    return QStringLiteral("<p><img width=\"%1\" alt=\"%2\" src=\"data:image/png;base64,%3\"></p>"
                          "<div class=\"caption\">%2</div>")
        .arg(qMin(kPictureWidth, picture.image.width()))
        .arg(escaped(picture.caption), QString::fromLatin1(bytes.toBase64()));
}

QString sectionHtml(const Report::Section& section) {
    QString html = QStringLiteral("<h2>%1</h2><table>").arg(escaped(section.title));
    for (const auto& [name, value] : section.facts) {
        html += QStringLiteral("<tr><th>%1</th><td>%2</td></tr>").arg(escaped(name), escaped(value));
    }
    html += QStringLiteral("</table>");
    if (!section.comment.isEmpty()) {
        html += QStringLiteral("<p class=\"note\">%1</p>").arg(escaped(section.comment));
    }
    for (const Report::Picture& picture : section.pictures) {
        html += pictureTag(picture);
    }
    return html;
}

void saveBytes(const QByteArray& bytes, const QString& path, bool replaces) {
    UnfinishedFile file(path,
                        replaces ? UnfinishedFile::Existing::Replace : UnfinishedFile::Existing::Refuse);
    file.write(bytes.constData(), bytes.size());
    file.finish();
}

} // namespace

QString Report::html() const {
    QString body = QStringLiteral("<h1>%1</h1>").arg(escaped(title));
    for (const Section& section : sections) {
        body += sectionHtml(section);
    }
    return QStringLiteral(
               "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>%1</title><style>%2</style>"
               "</head><body>%3</body></html>\n")
        .arg(escaped(title), kStyle, body);
}

void Report::saveHtml(const QString& path, bool replaces) const {
    saveBytes(html().toUtf8(), path, replaces);
}

void Report::savePdf(const QString& path, bool replaces) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(kDotsPerInch);
    writer.setTitle(title);
    QTextDocument document;
    document.setPageSize(QSizeF(writer.width(), writer.height()));
    document.setHtml(html());
    document.print(&writer);
    buffer.close();
    saveBytes(bytes, path, replaces);
}
