#include "viewer/messages/OutputLanguage.h"

// A translator without a file knows no text, and the texts themselves are English.
OutputLanguage::Texts OutputLanguage::chosen(int number) {
    constexpr int kEnglish = 1;
    constexpr int kJapanese = 2;
    if (number != kEnglish && number != kJapanese) {
        return nullptr;
    }
    auto texts = std::make_shared<QTranslator>();
    if (number == kJapanese && !texts->load(QStringLiteral(":/app/zelviewer_ja.qm"))) {
        qWarning("There are no Japanese texts for what is saved.");
    }
    return texts;
}
