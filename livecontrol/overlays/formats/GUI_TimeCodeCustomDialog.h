#pragma once

#include "livecontrol/interface/records.h"
#include "livecontrol/web/GUI_PageDialog.h"

/// Edits what the current time over the image is: a time, or a value in a unit of the user's that grows with
/// each frame. Nothing reaches the host before ok().
///
/// It is the script object `timecode_custom_mediator` of its page. One frame, start and reset value are texts
/// with four decimals; a text that is no number counts as 0. The reset value counts frames, or with the reset
/// unit index 1 it is a value in the unit. The setters build the sample anew unless `isUpdateSample` is
/// false.
class GUI_TimeCodeCustomDialog : public GUI_PageDialog {
    Q_OBJECT

public:
    /// Begins with the host's setting. Throws what the host throws.
    GUI_TimeCodeCustomDialog(HostObject* host, QWidget* parent);

public slots:
    void populateJavaScriptWindowObject() override;
    void ok();
    void cancel();
    /// Takes the host's setting anew.
    void loadTimeCodeSetting();
    /// Gives the host what is being edited. False only after a failure.
    bool saveTimeCodeSetting();
    /// Begins from scratch; the host keeps what it has.
    void reset();

    int getTimeCodeIndex() { return m_edited.index; }
    QString getTimeCodeDisplayUnit() { return m_edited.unit; }
    QString getTimeCodeOneFrame() { return m_edited.oneFrame; }
    QString getTimeCodeStartValue() { return m_edited.startValue; }
    bool getTimeCodeReset() { return m_edited.reset; }
    QString getTimeCodeResetValue() { return m_edited.resetValue; }
    int getTimeCodeResetUnitIndex() { return m_resetUnitIndex; }
    int getTimeCodeScopeDisplayIndex() { return m_edited.scope; }
    int getTimeCodeDecimalPlaceIndex() { return m_edited.decimalPlace; }
    bool getTimeCodeDecimalDivide() { return m_edited.decimalDivide; }
    bool getTimeCodeUsingRchFileInfo() { return m_edited.usingRchFileInfo; }
    bool getTimeCodeOverWrite() { return m_edited.overwrite; }
    bool getTimeCodeRealTime() { return m_edited.realTime; }
    QString getTimeCodeSample() { return m_sample; }

    void setTimeCodeIndex(int index, bool isUpdateSample = true);
    void setTimeCodeDisplayUnit(const QString& unit, bool isUpdateSample = true);
    void setTimeCodeOneFrame(const QString& value, bool isUpdateSample = true);
    void setTimeCodeStartValue(const QString& value, bool isUpdateSample = true);
    void setTimeCodeReset(bool reset, bool isUpdateSample = true);
    /// Held within 1 to 99999 frames; a value is moved to a whole frame.
    void setTimeCodeResetValue(const QString& value, bool isUpdateSample = true);
    /// Counts the reset value in the other way.
    void setTimeCodeResetUnitIndex(int index, bool isUpdateSample = true);
    void setTimeCodeScopeDisplayIndex(int index, bool isUpdateSample = true);
    void setTimeCodeDecimalPlaceIndex(int index, bool isUpdateSample = true);
    void setTimeCodeDecimalDivide(bool divide, bool isUpdateSample = true);
    void setTimeCodeUsingRchFileInfo(bool use, bool isUpdateSample = true);
    void setTimeCodeOverWrite(bool overwrite, bool isUpdateSample = true);
    void setTimeCodeRealTime(bool realTime, bool isUpdateSample = true);

private:
    /// The setting while it is edited.
    struct Edited {
        int index = 0;
        QString unit = QStringLiteral("deg");
        QString oneFrame = QStringLiteral("0.0000");
        QString startValue = QStringLiteral("0.0000");
        bool reset = false;
        QString resetValue = QStringLiteral("1");
        int scope = 0;
        int decimalPlace = 0;
        bool decimalDivide = false;
        bool usingRchFileInfo = true;
        bool overwrite = false;
        bool realTime = false;
    };

    void load();
    QString heldCount(const QString& value) const;
    QString snappedValue(const QString& value) const;
    TimeCodeSetting record() const;
    void buildSample(bool wanted);

    Edited m_edited;
    QString m_sample;
    int m_resetUnitIndex = 0;
    bool m_negative = false; ///< One frame is below 0.
};
