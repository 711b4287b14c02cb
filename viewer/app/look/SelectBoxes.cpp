#include "viewer/app/look/SelectBoxes.h"

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/web/GUI_SelectBox.h"
#include "livecontrol/web/JS_Mediator_SelectBox.h"
#include "viewer/cameras/CameraBody.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/DocumentList.h"
#include "viewer/documents/VariableRecords.h"
#include "viewer/messages/Translated.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QScreen>

namespace {

// As the list page lays them out, pixels.
constexpr int kRowHeight = 24;
constexpr int kSeparatorHeight = 7;
constexpr int kFrame = 2;
constexpr int kMaxHeight = 14 * kRowHeight + kFrame;
constexpr int kMinWidth = 230;

QJsonObject row(const QString& value, const QString& text, bool isSelected = false, bool isEmpty = false) {
    return {{QStringLiteral("value"), value},
            {QStringLiteral("text"), text},
            {QStringLiteral("selected"), isSelected},
            {QStringLiteral("empty"), isEmpty}};
}

QJsonObject separated(QJsonObject row) {
    row[QStringLiteral("separated")] = true;
    return row;
}

} // namespace

const QString SelectBoxes::Partition = QStringLiteral("partition");
const QString SelectBoxes::Variable = QStringLiteral("variable");
const QString SelectBoxes::VariableRegist = QStringLiteral("variableRegist");

SelectBoxes::SelectBoxes(HostObject& host, DocumentList& documents, GUI_WebView& page)
    : m_host(host), m_documents(documents), m_page(page) {}

SelectBoxes::~SelectBoxes() = default;

bool SelectBoxes::isKnown(const QString& key) {
    return key == Partition || key == Variable || key == VariableRegist;
}

bool SelectBoxes::isShown() const { return m_box && m_box->isVisible(); }

void SelectBoxes::showPartition(int left, int top, int width, int height) {
    show(Partition, QRect(left, top, width, height));
}

void SelectBoxes::showVariable(int left, int top, int width, int height) {
    show(Variable, QRect(left, top, width, height));
}

void SelectBoxes::showVariableRegist(int left, int top, int width, int height, int channel) {
    m_registChannel = channel;
    show(VariableRegist, QRect(left, top, width, height));
}

void SelectBoxes::show(const QString& key, const QRect& rect) {
    const CameraDocument* const camera = m_documents.currentCamera();
    if (!isKnown(key) || camera == nullptr) {
        return;
    }
    if (!m_box) {
        m_box = std::make_unique<GUI_SelectBox>(&m_host, QUrl(QStringLiteral("qrc:/select_list.html")),
                                                m_page.window());
        connect(&m_box->view(), &QWebView::loadFinished, this, [this](bool ok) {
            if (ok) {
                fill();
                takeKeys(); // the box shows only now
            }
        });
    }
    m_key = key;
    const CameraHead& head = *camera->head();
    m_rows = key == Partition ? partitionRows(head) : key == Variable ? variableRows(head) : registRows(head);
    place(rect); // the list takes the box's height
    if (m_box->isLoaded()) {
        fill();
    }
    m_box->show();
    takeKeys();
}

void SelectBoxes::takeKeys() {
    if (m_box->isVisible()) {
        m_box->activateWindow();
        m_box->setFocus();
    }
}

void SelectBoxes::fill() {
    JS_Mediator_SelectBox& items = m_box->items();
    emit items.update(); // the style may be another one than last time
    if (m_key == Partition) {
        emit items.signalShowPartition(m_rows.toVariantList());
    } else {
        const QString text = QString::fromUtf8(QJsonDocument(m_rows).toJson(QJsonDocument::Compact));
        m_key == Variable ? emit items.signalShowVariable(text) : emit items.signalShowVariableRegist(text);
    }
    emit items.signalSetHeight(m_box->height() - kFrame);
}

int SelectBoxes::rowsHeight() const {
    int height = kFrame + m_rows.size() * kRowHeight;
    for (const QJsonValue row : m_rows) {
        height += row.toObject()[QStringLiteral("separated")].toBool() ? kSeparatorHeight : 0;
    }
    return height;
}

void SelectBoxes::place(const QRect& rect) {
    const QRect screen = m_page.screen()->availableGeometry();
    m_box->resize(qMax(kMinWidth, rect.width()), qMin(rowsHeight(), qMin(kMaxHeight, screen.height() / 2)));
    QPoint corner = m_page.mapToGlobal(rect.bottomLeft() + QPoint(0, 1));
    if (corner.y() + m_box->height() > screen.bottom()) {
        corner.setY(m_page.mapToGlobal(rect.topLeft()).y() - m_box->height()); // no room below: above
    }
    corner.setX(qMax(screen.left(), qMin(corner.x(), screen.right() - m_box->width())));
    m_box->move(corner);
}

void SelectBoxes::hide(const QString& key) {
    if (m_box && (key.isEmpty() || key == m_key)) {
        m_box->hide();
    }
}

void SelectBoxes::hideUnlessAt(const QString& key, const QPoint& point) {
    if (m_box && !m_box->geometry().contains(m_page.mapToGlobal(point))) {
        hide(key);
    }
}

// The last row stands for one partition more than there are: picked, it leads to where their number is set.
QJsonArray SelectBoxes::partitionRows(const CameraHead& head) const {
    QJsonArray rows;
    const int count = head.body()->partitionCount();
    const DisplayFormat format = m_documents.displayFormat();
    for (int number = 1; number <= count; ++number) {
        const Recording recording = head.recording(number);
        const QString what = recording.isEmpty()
                                 ? translated("(empty)")
                                 : QStringLiteral("%1 %2, %3 %4")
                                       .arg(format.frames(recording.frames), translated("frames"),
                                            format.rate(recording.settings.rate), translated("fps"));
        rows.append(row(QString::number(number), QStringLiteral("%1: %2").arg(QString::number(number), what),
                        number == head.body()->partition(), recording.isEmpty()));
    }
    if (m_documents.mode() == HOST_MODE_LIVE) {
        rows.append(separated(row(QString::number(count + 1), translated("Record setting..."))));
    }
    return rows;
}

QJsonArray SelectBoxes::variableRows(const CameraHead& head) const {
    QJsonArray rows{row(QStringLiteral("0"), translated("No channel"), head.settings().channel == 0)};
    for (unsigned channel = 1; channel <= unsigned(LastVariableChannel); ++channel) {
        if (VariableRecords::isStored(head, channel)) {
            rows.append(row(QString::number(channel),
                            VariableRecords::text(head, channel, m_documents.displayFormat()),
                            head.settings().channel == int(channel)));
        }
    }
    rows.append(separated(row(QStringLiteral("go-variable"), translated("Set up channels..."))));
    return rows;
}

QJsonArray SelectBoxes::registRows(const CameraHead& head) const {
    QJsonArray rows;
    for (unsigned channel = 1; channel <= unsigned(LastVariableChannel); ++channel) {
        rows.append(row(QString::number(channel),
                        VariableRecords::text(head, channel, m_documents.displayFormat()),
                        m_registChannel == int(channel), !VariableRecords::isStored(head, channel)));
    }
    return rows;
}
