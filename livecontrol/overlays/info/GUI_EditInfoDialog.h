#pragma once

#include "livecontrol/interface/types.h"
#include "livecontrol/overlays/info/DisplayList.h"
#include "livecontrol/overlays/info/InfoSettings.h"
#include "livecontrol/web/GUI_PageDialog.h"

#include <QDateTime>
#include <QList>
#include <array>

class DOC_Interface;

/// Lets the user choose what stands over the image, in which order and how it looks: of the live image (one
/// group, number 0), or of what is saved (groups 1 to 6 around the picture). It is its page's script object
/// `editInfo`. Each change is stored at once; Cancel, Escape and the close button bring back
/// lists, fonts and places; of the saved view, whose separators are those of the live image, not the blank
/// line.
///
/// A getter without a group means group 0, and makes its group the current one; a setter changes the current
/// one, and with `update` the live image follows at once. Failures of the host are shown to the user.
class GUI_EditInfoDialog : public GUI_PageDialog {
    Q_OBJECT

public:
    /// `saveType` is the kind of output, 1 for the live image. A null document means the current one,
    /// partition 0 the document's. `documents` are the further ones of a saved view, `dateTime` is the moment
    /// that a preview shows. None of the pointers is owned. Throws what the host throws.
    GUI_EditInfoDialog(HostObject* host, int saveType, bool saveView, DOC_Interface* document,
                       PARTITIONNUMBER partition, const QList<DOC_Interface*>& documents,
                       const QDateTime& dateTime);
    /// Of the live image of the current document.
    explicit GUI_EditInfoDialog(HostObject* host);
    ~GUI_EditInfoDialog() override;

public slots:
    void populateJavaScriptWindowObject() override;

    /// The list items of a group, as markup for its list.
    QString getInfoSettingsHtml(int offset = 0);
    /// Shows or hides an item of a group.
    void changeDisp(const QString& id, bool check, int offset = 0);
    /// The order of a group: item keys separated by ",", "HR" for a separator.
    void changeOrder(const QString& idList, int offset = 0);
    bool getDisplayBlankLine();
    void setDisplayBlankLine(bool display);
    /// Brings back the host's list. The page has asked.
    void reset();
    void ok();
    void cancel();

    // The font dialog of the page.
    void backupFontSettings(int offset = 0);
    void restoreFontSettings();
    void writeFontOK();
    void writeFontCancel();
    QStringList getFontNameList();
    QStringList getFontSizeList();
    QStringList getToColumnList();
    bool isCollectiveSetting();
    void setCollectiveSetting(bool value, bool update = true);
    QString getFontName(int offset = 0);
    void setFontName(const QString& value, bool update = true);
    QString getFontSize(int offset = 0);
    void setFontSize(const QString& value, bool update = true);
    bool getBold(int offset = 0);
    void setBold(bool value, bool update = true);
    bool getItalic(int offset = 0);
    void setItalic(bool value, bool update = true);
    QString getForegroundColor(int offset = 0);
    void setForegroundColor(const QString& value, bool update = true);
    int getAlignment(int offset = 0);
    void setAlignment(int value, bool update = true);
    int getWidth(int offset = 0);
    void setWidth(int value, bool update = true);
    int getIconSize(int offset = 0);
    void setIconSize(int value, bool update = true);
    bool getUseBackgroundColor(int offset = 0);
    void setUseBackgroundColor(bool value, bool update = true);
    QString getBackgroundColor(int offset = 0);
    void setBackgroundColor(const QString& value, bool update = true);
    bool getToColumn(int offset = 0);
    void setToColumn(bool value, bool update = true);
    QString getColumnNum(int offset = 0);
    void setColumnNum(const QString& value, bool update = true);
    int getColumnSpacing(int offset = 0);
    void setColumnSpacing(int value, bool update = true);
    bool isFixedFontSizeRatio(int offset = 0);
    void setFixedFontSizeRatio(bool value, bool update = true);
    QSize getFixedFontSizeRatioBaseResolution(int offset = 0);
    void setFixedFontSizeRatioBaseResolution(const QSize& value, bool update = true);
    bool getWithinImage(int offset = 0);
    void setWithinImage(bool value, bool update = true);

    // What an item says is edited in dialogs of their own.
    void editComment();
    void editCustom();
    void setLogoPath();
    void execTimeCodeSettingDialog();
    void editShutterDispFormat();
    void editRectimeDispFormat();
    void editRecordRateDispFormat();
    void editFrameDispFormat();

    /// The picture with its information as PNG in base64, in that size (pixels); 0: the size of what is
    /// saved. Empty without a document.
    QString getThumbnail(int width = 0, int height = 0);
    /// Width and height of the last one, -1 without one.
    QList<int> getThumbnailResolution();
    QString getResolutionStr();
    QString getExportLanguage();
    bool confirm(const QString& message);
    /// Whether the page offers what belongs to a conversion.
    bool onConvertParameterEditDialog();

    /// By whatever way: brings back what was there.
    void reject() override;

private:
    static constexpr auto kNoKey = static_cast<DOCKEY>(-1);
    struct Group {
        DisplayList list;
        QString storedList; ///< as it was when the dialog opened
        InfoStyle storedStyle;
    };
    /// What the font dialog may have to bring back.
    struct FontBackup {
        bool collective = false;
        InfoStyle style;
        int iconSize = 0;
    };

    void takeBackup();
    void restoreStyles();
    void setStyle(int offset, const InfoStyle& style);
    void tellFont(int offset, const QString& name);
    void restore();
    /// The live image follows; what is saved has nothing that could.
    void update();
    Group* group(int offset);
    /// Null if it is not open any more.
    DOC_Interface* document();
    QMap<QString, bool> availability();
    QString itemHtml(const QString& key, const QString& state, bool isAvailable);
    void store(Group& group, int offset);
    void chooseLogo();
    QString thumbnail(QSize size);

    template <class Result>
    Result get(Result (InfoSettings::*read)(const InfoSetting&, int) const, const InfoSetting& setting,
               int offset);
    template <class Write, class Value>
    void set(Write write, const InfoSetting& setting, const Value& value, bool isUpdated);
    /// Runs a dialog on what an item says; the image follows.
    template <class Run>
    void edit(Run&& run);

    InfoSettings m_settings;
    int m_saveType;
    DOCKEY m_document;         ///< -1 for none
    QList<DOCKEY> m_documents; ///< further ones
    PARTITIONNUMBER m_partition;
    QDateTime m_dateTime;
    std::array<Group, InfoSettings::Groups> m_groups;
    DisplayList::States m_states;
    int m_current = 0;
    FontBackup m_fontBackup;
    bool m_collective = false; ///< as it was when the dialog opened, like the next two
    bool m_withinImage = false;
    bool m_blankLine = false;
    QSize m_thumbnailSize;
    bool m_isOk = false;
};
