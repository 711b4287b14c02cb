#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// The language of all texts. Changing it sends every widget a LanguageChange.
class Language {
public:
    Language();
    ~Language();

    /// "en" or "ja"; anything else is English.
    void set(const QString& name);
    const QString& name() const { return m_name; }

private:
    QString m_name;
    QTranslator m_own;
    QTranslator m_qt; // the buttons of Qt's own boxes, where its translations are installed
};
