#include "viewer/cameras/Reason.h"

QString Reason::english() const {
    return text([](const char* english) { return QString::fromUtf8(english); });
}

// One pass, since a value may hold a place's sign itself.
QString Reason::text(QString (*translate)(const char* english)) const {
    if (!m_text) {
        return m_verbatim;
    }
    const QString pattern = translate(m_text);
    QString text;
    for (int i = 0; i < pattern.size(); ++i) {
        const int number = pattern.at(i) == QLatin1Char('%') ? pattern.midRef(i + 1, 1).toInt() : 0;
        if (number >= 1 && number <= int(m_values.size())) {
            text += m_values.at(size_t(number - 1)).text(translate);
            ++i;
        } else {
            text += pattern.at(i);
        }
    }
    return text;
}
