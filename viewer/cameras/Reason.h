#pragma once

#include <QString>

#include <initializer_list>
#include <vector>

/// Why something failed: a text with places for values, so that a log can say it in English and a box in the
/// user's language. Made by reason(), or of a text from outside, which stays as it is.
class Reason {
public:
    Reason() = default;
    Reason(const QString& verbatim) : m_verbatim(verbatim) {}            // NOLINT(*-explicit-*)
    Reason(int number) : m_verbatim(QString::number(number)) {}          // NOLINT(*-explicit-*)
    Reason(unsigned int number) : m_verbatim(QString::number(number)) {} // NOLINT(*-explicit-*)
    Reason(const char* text, std::vector<Reason> values) : m_text(text), m_values(std::move(values)) {}

    bool isEmpty() const { return !m_text && m_verbatim.isEmpty(); }
    QString english() const;
    /// In the language of `translate`, which is asked for the text and for those of the values that are none
    /// from outside.
    QString text(QString (*translate)(const char* english)) const;

private:
    const char* m_text = nullptr; // a literal
    QString m_verbatim;
    std::vector<Reason> m_values; // of "%1", "%2" and so on
};

/// A reason of our own: a literal, which stands in the program's translations, and what its places hold.
inline Reason reason(const char* text, std::initializer_list<Reason> values = {}) { return {text, values}; }
