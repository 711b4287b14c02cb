#pragma once

#include <QJsonArray>
#include <QObject>
#include <QRect>
#include <QString>

#include <memory>

class CameraHead;
class DocumentList;
class GUI_SelectBox;
class GUI_WebView;
class HostObject;

/// The drop-down lists over the side panel's page: partitions of the memory, variable channels to choose
/// from, and variable channels to write. One native box serves all three, made when the first is asked for.
/// As the script object `main` it lets pages open them; rectangles are page pixels, of the control that the
/// list belongs to.
class SelectBoxes : public QObject {
    Q_OBJECT

public:
    /// Keys of the lists, as `showDropDownBox` takes them.
    static const QString Partition;
    static const QString Variable;
    static const QString VariableRegist;

    /// None is owned; all outlive the boxes.
    SelectBoxes(HostObject& host, DocumentList& documents, GUI_WebView& page);
    ~SelectBoxes() override;

    static bool isKnown(const QString& key);
    /// Fills the list and shows it below the rectangle, or above if there is no room. Nothing without a
    /// camera.
    void show(const QString& key, const QRect& rect);
    /// Hides the list if it is the one that shows; an empty key hides any.
    void hide(const QString& key = QString());
    /// The same unless the point, in page pixels, lies in the list.
    void hideUnlessAt(const QString& key, const QPoint& point);
    bool isShown() const;

public slots:
    void showPartition(int left, int top, int width, int height);
    void showVariable(int left, int top, int width, int height);
    /// `channel`: the one that the page would write at present.
    void showVariableRegist(int left, int top, int width, int height, int channel);

private:
    void fill();
    /// Makes the box the window that gets the user's keys. Only one that shows can be.
    void takeKeys();
    void place(const QRect& rect);
    int rowsHeight() const;
    QJsonArray partitionRows(const CameraHead& head) const;
    QJsonArray variableRows(const CameraHead& head) const;
    QJsonArray registRows(const CameraHead& head) const;

    HostObject& m_host;
    DocumentList& m_documents;
    GUI_WebView& m_page;
    std::unique_ptr<GUI_SelectBox> m_box;
    QString m_key; // of the list that the box holds
    QJsonArray m_rows;
    int m_registChannel = 1;
};
