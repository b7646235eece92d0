#pragma once

#include "net/AppLanguage.h"

#include <QReadWriteLock>
#include <QTranslator>

#include <memory>

namespace loom
{

/// The window's own texts in one language at a time, out of what the program brings along, and the toolkit's, where
/// they are installed. A number's form that a language lacks is the English one. Switched on the main thread; texts are
/// looked up on any.
class WindowTranslator final : public QTranslator
{
    Q_OBJECT

public:
    explicit WindowTranslator(QObject* parent = nullptr);
    ~WindowTranslator() override;

    /// False, and English, where the program has no texts in that language.
    bool setLanguage(AppLanguage language);

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                                    int n = -1) const override;
    /// Never: Qt would not ask, and another language may come at any time.
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    QTranslator m_english; ///< what depends on a number; all else stands in the sources
    mutable QReadWriteLock m_lock;
    std::unique_ptr<QTranslator> m_texts;   ///< null for English
    std::unique_ptr<QTranslator> m_toolkit; ///< likewise
};

} // namespace loom
