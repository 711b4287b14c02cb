#pragma once

#include "livecontrol/interface/types.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWebView>
#include <utility>

class DOC_Interface;
class HostObject;

/// Base of every object that a page script can call. A page sees nothing of the application but the slots and
/// signals of its mediators, and a mediator keeps nothing that the host knows.
///
/// No slot lets an exception escape into the web engine: a failure goes to the host's `handleError` and the
/// slot returns its neutral result (false, 0, an empty text, an empty list). GUI thread only.
///
/// A host that doesn't link the plug-in's classes uses of it: QObject, `scriptName()`, `setView()`, and the
/// signals `open` and `close`, which it emits by `QMetaObject::invokeMethod(mediator, "open")`.
class JS_Mediator : public QObject {
    Q_OBJECT

public:
    /// `host` is not owned and outlives the mediator; `name` is the global name under which the page sees it.
    JS_Mediator(HostObject* host, const QString& name);

    HostObject* host() const { return m_host; }
    const QString& scriptName() const { return m_name; }
    /// The view that shows the page; null until the host attached the mediator.
    QWebView* view() const { return m_view; }

    /// Frames as a text, grouped as the user wants; the unit is "frames" and isn't translated.
    QString formatFrames(uint value, bool withUnit);
    /// A frame rate as a text, grouped as the user wants; empty for 0. The unit is the translated "fps".
    QString formatRecordRate(uint value, bool withUnit);

signals:
    void open();          ///< The page was loaded and its plug-in or dialog starts.
    void update();        ///< State changed; the page reads anew what it shows.
    void close();         ///< The plug-in or dialog closes.
    void enterQtWidget(); ///< The pointer entered a native widget over the page.

public slots:
    virtual void setSkipMode(int /*mode*/) {}
    virtual void setSkipValue(double /*value*/) {}
    virtual int getSkipMode() { return 0; }
    virtual void setSkipFrames(double /*val*/) {}
    virtual double getSkipFrames() { return 1.0; }
    virtual bool isFileMode();
    /// Adds this mediator to the page a second time, as "prefs".
    virtual void addPrefsJSObject();
    /// One compact JSON text a document; with `isMinilist` unconnected ones may be left out, as the user
    /// wants.
    virtual QVariantList getDeviceInfoList(bool isMinilist);
    /// Whether the document (null: the current one) is a 3D file.
    virtual bool is3DFile(DOC_Interface* pDoc = nullptr);

    double getSkipMinFrames() { return m_skipMinFrames; }
    double getSkipMaxFrames() { return m_skipMaxFrames; }

    // Modes and states.
    bool isReady();
    bool isLiveMode();
    bool isMemoryMode();
    bool isPlaying();
    bool isConnected();
    bool isUpdateIgnore();
    bool isTracking();
    bool isStepTracking();
    bool isQmonRunning();
    int countMdiWindow(bool visible = true);
    bool isWaveDataAcquisition();
    bool isShownDropBox();
    /// The flags by which a page switches its controls: one JSON object of booleans; empty after a failure.
    QString getControlStatus(DOC_Interface* pDoc = nullptr);
    QVariantList getSelectedDockey();
    void setSelectDoc(const QString& docKey);
    void selectAllDocs();
    void copySelectAreaToClipboard();
    /// Units of length with their translated names, as a JSON array.
    QString getCalibrationUnits();
    /// Largest image value: 255, or that of the camera's own bit depth if the user wants it.
    int getRangeMax();
    /// "0" no flip, "1" flip A, "2" flip B, "3" both.
    QString getFlip();
    /// Whole degrees.
    QString getRotate();
    void setStyle(const QString& style);
    QString getStyle();
    void openPlugin(const QString& name);
    void closePlugin();
    void closePlugin(const QString& name);
    /// A text resource; empty, and a warning in the log, if it is missing.
    QString load(const QString& fileName);
    /// Runs the preferences dialog on a page; gives its result, 0 after a failure.
    int openPrefsDialog(const QString& page = QString());
    void openPrefsEthernetSettings();
    void openAbouZelDialog();
    /// Leads the user through the export of a ZIP file for a support desk.
    void openExportSupportFileDialog();
    void setDisableAllQuickTool();
    void checkRestoredPrefs();
    void setConnectedCameraShowing(bool check);
    bool getConnectedCameraShowing();

    // Messages, texts, log.
    void info(const QString& message);
    void warn(const QString& message);
    void warn(const QString& message, const QStringList& messages);
    void alert(const QString& message);
    void alert(const QString& message, const QStringList& messages);
    bool confirm(const QString& message);
    QString translate(const QString& string);
    /// Both texts translated; `arg` fills the first %1 of `string`.
    QString translate(const QString& string, const QString& arg);
    void errorHandler(std::exception& e);
    void infoLog(const QString& msg);
    void errorLog(const QString& msg);
    void log(const QString& /*msg*/) {}
    void debugLog(const QString& /*msg*/) {}
    void userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                 const QString& id, const QString& className, const QVariant& value);
    void userOperationErrorLog(const QString& message);

    // Updates.
    void updateUI();
    void deterUpdateUI(bool deter);

    // Preferences. A setter with `update` is traced and followed by an update of all that shows state.
    int getPrefInt(const QString& name, const QVariant& defaultValue = QVariant());
    bool getPrefBool(const QString& name, const QVariant& defaultValue = QVariant());
    float getPrefFloat(const QString& name, const QVariant& defaultValue = QVariant());
    QString getPrefString(const QString& name, const QVariant& defaultValue = QVariant());
    void setPrefInt(const QString& name, int value, bool update = true);
    void setPrefBool(const QString& name, bool value, bool update = true);
    void setPrefFloat(const QString& name, float value, bool update = true);
    void setPrefString(const QString& name, const QString& value, bool update = true);
    void setPrefDQString(const QString& name, const QString& value, bool update = true);

    // The host's native list box over the page, page pixels.
    void showDropDownBox(const QString& key, int x, int y, int width, int height);
    void hideDropDownBox(const QString& key);
    void hideDropDownBox(const QString& key, int x, int y);
    void hideSelectBox();

public:
    virtual void setView(QWebView* view) { m_view = view; }

protected:
    /// Runs the host calls of a slot; a failure goes to the host and gives `neutral`. The one place that
    /// catches.
    template <class Calls, class Result>
    Result guarded(Calls&& calls, Result neutral) {
        try {
            return std::forward<Calls>(calls)();
        } catch (std::exception& error) {
            errorHandler(error);
            return neutral;
        }
    }
    template <class Calls>
    void guarded(Calls&& calls) {
        try {
            std::forward<Calls>(calls)();
        } catch (std::exception& error) {
            errorHandler(error);
        }
    }

    double m_skipMinFrames = 1.0;
    double m_skipMaxFrames = 1.0;
    uint m_skipRate = 0; ///< Frames per second that all rates in hand are multiples of; 0 for none.
    QList<double> m_skipValues;

private:
    QString statusText(DOC_Interface* document);
    template <class Store>
    void storePref(const char* operation, bool update, Store&& store);

    HostObject* m_host;
    QPointer<QWebView> m_view;
    QString m_name;
    int m_rangeMax = 0; ///< Last result of getRangeMax().
    int m_updateFlags = 63;
};
