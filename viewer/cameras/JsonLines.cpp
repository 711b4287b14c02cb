#include "viewer/cameras/JsonLines.h"

#include <algorithm>
#include <cstring>

namespace {

// Walks over a valid text and remembers the longest part of the wanted path that it met.
class Walker {
public:
    Walker(const QByteArray& text, const QByteArray& wanted) : m_text(text), m_wanted(wanted) {}

    int find() {
        skipSpace();
        m_best = m_at;
        value(QByteArray());
        return m_best;
    }

private:
    char current() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }

    void skipSpace() {
        while (m_at < m_text.size() &&
               (current() == ' ' || current() == '\t' || current() == '\n' || current() == '\r')) {
            ++m_at;
        }
    }

    QByteArray text() {
        const int start = ++m_at;
        while (m_at < m_text.size() && current() != '"') {
            m_at += current() == '\\' ? 2 : 1;
        }
        const QByteArray content = m_text.mid(start, m_at - start);
        ++m_at;
        return content;
    }

    void note(const QByteArray& path, int offset) {
        const bool onTheWay = m_wanted == path || m_wanted.startsWith(path + '/');
        if (onTheWay && path.size() > m_depth) {
            m_depth = path.size();
            m_best = offset;
        }
    }

    void value(const QByteArray& path) {
        skipSpace();
        if (current() == '{' || current() == '[') {
            container(path, current() == '{');
        } else if (current() == '"') {
            text();
        } else {
            while (m_at < m_text.size() && !std::strchr(",]} \t\r\n", current())) {
                ++m_at;
            }
        }
        skipSpace();
    }

    void container(const QByteArray& path, bool object) {
        ++m_at;
        skipSpace();
        for (int index = 0; m_at < m_text.size() && current() != '}' && current() != ']'; ++index) {
            const int start = m_at;
            const QByteArray inner = path + '/' + (object ? text() : QByteArray::number(index));
            note(inner, start);
            if (object) {
                skipSpace();
                ++m_at; // the colon
            }
            value(inner);
            if (current() == ',') {
                ++m_at;
            }
            skipSpace();
        }
        ++m_at;
    }

    const QByteArray& m_text;
    QByteArray m_wanted;
    int m_at = 0;
    int m_best = 0;
    int m_depth = 0;
};

} // namespace

int JsonLines::lineOfOffset(const QByteArray& text, int offset) {
    const int end = std::clamp(offset, 0, text.size());
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + end, '\n'));
}

int JsonLines::lineOfPath(const QByteArray& text, const QString& path) {
    return lineOfOffset(text, Walker(text, path.toUtf8()).find());
}
