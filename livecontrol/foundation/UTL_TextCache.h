#pragma once

#include <QFont>
#include <QFontMetrics>
#include <optional>

/// Font and metrics for text that is drawn in the image. The metrics are made at the first use, since a
/// plug-in may be created before the application has a display.
class UTL_TextCache {
public:
    const QFont& font() const { return m_font; }

    const QFontMetrics& metrics() {
        if (!m_metrics) {
            m_metrics.emplace(m_font);
        }
        return *m_metrics;
    }

    void setFont(const QFont& font) {
        m_font = font;
        m_metrics.reset();
    }

private:
    QFont m_font;
    std::optional<QFontMetrics> m_metrics;
};
