#pragma once

#include <QSize>
#include <QString>

class HostApplication;

/// How one group of information looks.
struct InfoStyle {
    QString fontName;
    QString fontSize; ///< points, as a number
    bool bold = false;
    bool italic = false;
    bool fixedRatio = false;
    QSize ratioBase;   ///< pixels; the image size at which the font has its size
    int alignment = 0; ///< 0 left, 1 center, 2 right
    int width = 0;     ///< pixels
    bool toColumn = false;
    QString columnCount;
    QString foreground;
    bool useBackground = false;
    QString background;
    int columnSpacing = 0; ///< pixels
};

/// A preference of a group, by the end of its key.
struct InfoSetting {
    enum Family { Both, LiveOnly, SavedOnly };

    const char* name;
    Family family = Both;
    bool isNumberText = true; ///< a number is stored as a text
};

namespace info {

constexpr InfoSetting Display{"display"};
constexpr InfoSetting FontName{"FontName"};
constexpr InfoSetting FontSize{"FontSize"};
constexpr InfoSetting Bold{"Bold"};
constexpr InfoSetting Italic{"Italic"};
constexpr InfoSetting ForegroundColor{"ForegroundColor"};
constexpr InfoSetting Alignment{"Alignment"};
constexpr InfoSetting Width{"Width"};
constexpr InfoSetting IconSize{"IconSize", InfoSetting::LiveOnly};
constexpr InfoSetting UseBackgroundColor{"UseBackgroundColor", InfoSetting::SavedOnly};
constexpr InfoSetting BackgroundColor{"BackgroundColor", InfoSetting::SavedOnly};
constexpr InfoSetting ToColumn{"ToColumn", InfoSetting::SavedOnly};
constexpr InfoSetting ColumnNum{"ColumnNum", InfoSetting::SavedOnly};
constexpr InfoSetting ColumnSpacing{"ColumnSpacing", InfoSetting::SavedOnly, false};
constexpr InfoSetting FixedFontSizeRatio{"FixedFontSizeRatio", InfoSetting::SavedOnly};
constexpr InfoSetting FixedFontSizeRatioBaseResolution{"FixedFontSizeRatioBaseResolution",
                                                       InfoSetting::SavedOnly};

} // namespace info

/// The preferences of the information over the image ("live") or of what is saved ("saved view"), whose
/// groups are numbered. What only a saved view has is empty, false, 0 or -1 x -1 in the live family, and
/// setting it does nothing. Every operation throws what the host throws.
class InfoSettings {
public:
    static constexpr int Groups = 7;

    InfoSettings(HostApplication* host, bool savedView) : m_host(host), m_savedView(savedView) {}

    bool isSavedView() const { return m_savedView; }

    QString text(const InfoSetting& setting, int group) const;
    void setText(const InfoSetting& setting, int group, const QString& value);
    bool flag(const InfoSetting& setting, int group) const;
    void setFlag(const InfoSetting& setting, int group, bool value);
    int number(const InfoSetting& setting, int group) const;
    void setNumber(const InfoSetting& setting, int group, int value);
    QSize size(const InfoSetting& setting, int group) const;
    void setSize(const InfoSetting& setting, int group, const QSize& value);
    void remove(const InfoSetting& setting, int group);

    InfoStyle style(int group) const;
    void setStyle(int group, const InfoStyle& style);

    bool isCollective() const;
    void setCollective(bool value);
    bool isWithinImage() const;
    void setWithinImage(bool value);
    bool hasBlankLine() const;
    void setBlankLine(bool value);
    QString logoPath() const;
    void setLogoPath(const QString& path);

private:
    QString key(const InfoSetting& setting, int group) const;
    QString plainKey(const char* name) const;
    QVariant read(const QString& key) const;

    HostApplication* m_host; ///< Not owned.
    bool m_savedView;
};
