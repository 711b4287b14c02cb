#pragma once

#include <QTranslator>

#include <memory>

/// The language of what is saved, which need not be that of the program.
namespace OutputLanguage {

using Texts = std::shared_ptr<const QTranslator>;

/// Those of the preference "display/outputLanguage": 0 none of its own, 1 English, 2 Japanese. Needs the
/// program's resources.
Texts chosen(int number);

/// While it lives, translated() gives this thread those texts; nothing changes without any. A number in a
/// text stays as it is written. No scope in another.
class Scope {
public:
    explicit Scope(const Texts& texts) : m_texts(texts) { s_texts = m_texts.get(); }
    ~Scope() { s_texts = nullptr; }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

    /// Null without a scope.
    static const QTranslator* texts() { return s_texts; }

private:
    Texts m_texts;
    inline static thread_local const QTranslator* s_texts = nullptr;
};

} // namespace OutputLanguage
