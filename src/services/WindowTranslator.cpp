#include "services/WindowTranslator.h"

#include "base/Log.h"

#include <QFile>
#include <QLibraryInfo>

#include <algorithm>

namespace loom
{

namespace
{

bool loadTexts(QTranslator& translator, AppLanguage language)
{
    const QString file = QStringLiteral(":/i18n/loomstreet_%1.qm").arg(appLanguageCode(language));
    // Whatever follows the last dot or underscore would be left out in search of a file that is there.
    const bool isThere = QFile::exists(file) && translator.load(file);
    if (!isThere)
        qCWarning(logApp) << "no texts in" << appLanguageCode(language);
    return isThere;
}

bool isRightToLeft(QChar letter)
{
    return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL;
}

/// With what is put in apart from the sentence around it: a price, a brand's name or an address keeps its own order.
QString isolated(const QString& text)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popDirectionalIsolate(0x2069);
    QString whole;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype number = text.mid(i, 2) == QLatin1String("%L") ? i + 2 : i + 1;
        const bool isPlace = text[i] == u'%' && number < text.size() && text[number].isDigit();
        if (!isPlace) {
            whole += text[i];
            continue;
        }
        whole += firstStrongIsolate + text.sliced(i, number + 1 - i) + popDirectionalIsolate;
        i = number;
    }
    return whole;
}

/// A line runs the way of its first letter: one of a name that such a text begins with, or that is put there, would
/// turn the sentence around it.
QString keptRightToLeft(const QString& text)
{
    if (!std::ranges::any_of(text, isRightToLeft))
        return text;
    constexpr QChar rightToLeftMark(0x200f);
    return isRightToLeft(text.front()) ? isolated(text) : rightToLeftMark + isolated(text);
}

} // namespace

WindowTranslator::WindowTranslator(QObject* parent)
    : QTranslator(parent)
{
    loadTexts(m_english, AppLanguage::English);
}

WindowTranslator::~WindowTranslator() = default;

bool WindowTranslator::setLanguage(AppLanguage language)
{
    std::unique_ptr<QTranslator> texts;
    std::unique_ptr<QTranslator> toolkit;
    bool isThere = true;
    if (language != AppLanguage::English) {
        texts = std::make_unique<QTranslator>();
        isThere = loadTexts(*texts, language);
        if (!isThere)
            texts.reset();
        // Of the dialogs that the desktop has none of its own for.
        toolkit = std::make_unique<QTranslator>();
        static_cast<void>(toolkit->load(appLocale(language), QStringLiteral("qt"), QStringLiteral("_"),
                                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    }
    const QWriteLocker locker(&m_lock);
    m_texts.swap(texts);
    m_toolkit.swap(toolkit);
    return isThere;
}

QString WindowTranslator::translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const
{
    const QReadLocker locker(&m_lock);
    if (qstrcmp(context, "Loomstreet") != 0)
        return m_toolkit ? m_toolkit->translate(context, sourceText, disambiguation, n) : QString();
    QString text = m_texts ? keptRightToLeft(m_texts->translate(context, sourceText, disambiguation, n)) : QString();
    return text.isEmpty() && n >= 0 ? m_english.translate(context, sourceText, disambiguation, n) : text;
}

} // namespace loom
