#include "viewer/app/look/Language.h"

#include "viewer/app/look/AppResources.h"

#include <QLibraryInfo>
#include <QLocale>

Language::Language() { AppResources::ensure(); }

Language::~Language() {
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
}

void Language::set(const QString& name) {
    const QString wanted = name == QLatin1String("ja") ? name : QStringLiteral("en");
    if (wanted == m_name) {
        return;
    }
    m_name = wanted;
    QCoreApplication::removeTranslator(&m_own);
    QCoreApplication::removeTranslator(&m_qt);
    // Numbers keep the point and the comma that a technician's instruments show, whatever the system's
    // locale.
    QLocale::setDefault(QLocale(m_name == QLatin1String("ja") ? QLocale::Japanese : QLocale::English));
    if (m_own.load(QStringLiteral(":/app/zelviewer_%1.qm").arg(m_name))) {
        QCoreApplication::installTranslator(&m_own);
    }
    if (m_qt.load(QStringLiteral("qtbase_%1").arg(m_name),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&m_qt);
    }
}
