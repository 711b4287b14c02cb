#include "viewer/app/look/MenuKeys.h"

#include <QAction>
#include <QMenu>
#include <QSet>

namespace {

bool isLetter(QChar sign) { return sign.unicode() < 128 && sign.isLetterOrNumber(); }

QString withoutKey(QString text) {
    const int behind = text.lastIndexOf(QLatin1String("(&"));
    if (behind >= 0 && text.mid(behind).size() == 4) { // "(&A)"
        text.truncate(behind);
    }
    return text.replace(QLatin1String("&&"), QStringLiteral("\n"))
        .remove(QLatin1Char('&'))
        .replace(QLatin1Char('\n'), QLatin1String("&&"));
}

QString withKey(const QString& text, QSet<QChar>& taken) {
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i).toUpper();
        if (isLetter(letter) && !taken.contains(letter)) {
            taken.insert(letter);
            return QString(text).insert(i, QLatin1Char('&'));
        }
    }
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (!taken.contains(QLatin1Char(letter))) {
            taken.insert(QLatin1Char(letter));
            return text + QStringLiteral("(&%1)").arg(QLatin1Char(letter));
        }
    }
    return text;
}

} // namespace

void giveMenuKeys(QMenu& menu) {
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
        QSet<QChar> taken;
        const QList<QAction*> entries = menu.actions();
        for (QAction* const entry : entries) {
            if (!entry->isSeparator() && entry->isVisible()) {
                entry->setText(withKey(withoutKey(entry->text()), taken));
            }
        }
    });
}
