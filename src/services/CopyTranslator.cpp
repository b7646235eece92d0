#include "services/CopyTranslator.h"

#include "services/RemoteConfig.h"

#include <QSet>

#include <algorithm>

namespace loom
{

namespace
{

/// The places of a text that something is put into: "%1", "%L2", "%n".
QSet<QString> placesIn(const QString& text)
{
    QSet<QString> places;
    for (qsizetype i = text.indexOf(QLatin1Char('%')); i >= 0; i = text.indexOf(QLatin1Char('%'), i + 1)) {
        qsizetype end = i + 1;
        if (text.mid(end, 1) == QLatin1String("L"))
            ++end;
        if (text.mid(end, 1) == QLatin1String("n")) {
            places.insert(QStringLiteral("n"));
            continue;
        }
        const qsizetype begin = end;
        while (end < text.size() && end < begin + 2 && text[end] >= QLatin1Char('0') && text[end] <= QLatin1Char('9'))
            ++end;
        if (end > begin)
            places.insert(text.mid(begin, end - begin));
    }
    return places;
}

} // namespace

CopyTranslator::CopyTranslator(const RemoteConfig& config, const QTranslator* builtIn, QObject* parent)
    : QTranslator(parent)
    , m_config(config)
    , m_builtIn(builtIn)
{
    connect(&config, &RemoteConfig::copyChanged, this, &CopyTranslator::update);
    update();
}

void CopyTranslator::update()
{
    const QMap<QString, LanguageTexts>& copy = m_config.values().copy;
    const QString language = appLanguageCode(m_config.language());
    const QString english = appLanguageCode(AppLanguage::English);
    const auto textIn = [](const LanguageTexts& texts, const QString& code) {
        const auto text = texts.constFind(code);
        return text == texts.constEnd() ? std::nullopt : std::optional(*text);
    };
    Overrides overrides;
    for (auto texts = copy.cbegin(); texts != copy.cend(); ++texts) {
        const Override found{.own = textIn(*texts, language), .english = textIn(*texts, english)};
        if (found.own || found.english)
            overrides.insert(texts.key().toUtf8(), found);
    }
    {
        const QWriteLocker locker(&m_lock);
        if (overrides == m_overrides)
            return;
        m_overrides = std::move(overrides);
    }
    Q_EMIT changed();
}

std::optional<CopyTranslator::Override> CopyTranslator::find(const char* key) const
{
    const QReadLocker locker(&m_lock);
    const auto found = m_overrides.constFind(QByteArray::fromRawData(key, static_cast<qsizetype>(qstrlen(key))));
    return found == m_overrides.constEnd() ? std::nullopt : std::optional(*found);
}

QString CopyTranslator::translate(const char* context, const char* sourceText, const char* disambiguation, int n) const
{
    if (!sourceText || qstrcmp(context, "Loomstreet") != 0)
        return {};
    const auto found = find(disambiguation && *disambiguation ? disambiguation : sourceText);
    if (!found)
        return {};
    std::optional<QString> text = found->own;
    if (!text && found->english &&
        (!m_builtIn || m_builtIn->translate(context, sourceText, disambiguation, n).isEmpty()))
        text = found->english;
    // A number without its place, a place without what belongs there, or a line where there is room for none, is worse
    // than the window's own words.
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    return text && std::ranges::none_of(*text, isControl) && placesIn(*text) == placesIn(QString::fromUtf8(sourceText))
               ? *text
               : QString();
}

} // namespace loom
