#include "services/PseudoTranslator.h"

#include <QRegularExpression>

#include <cmath>

namespace loom
{

namespace
{

constexpr double growth = 0.4;

QChar accented(QChar letter)
{
    static constexpr QStringView plain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    static constexpr QStringView marked = u"ÀḂÇĐÉḞĜĤÎĴĶĻṀÑÖÞǪŔŠŢÛṼŴẊÝŽåḃçđéḟĝĥîĵķļṁñöþǫŕšţûṽŵẋýž";
    const qsizetype place = plain.indexOf(letter);
    return place < 0 ? letter : marked[place];
}

bool isVowel(QChar letter)
{
    return QStringView(u"AEIOUYaeiouy").contains(letter);
}

} // namespace

QString pseudoText(const QString& text)
{
    static const QRegularExpression kept(QStringLiteral("%(?:L?[0-9]{1,2}|L?n)|<[^<>]*>|&[a-z]+;"));
    const QString inner = text.trimmed();
    if (inner.isEmpty())
        return text;
    const qsizetype lead = text.indexOf(inner);
    // What can grow, and how much it has to.
    const QString words = QString(inner).remove(kept);
    auto missing = static_cast<qsizetype>(std::ceil(static_cast<double>(words.size()) * growth));
    QString grown;
    const auto grow = [&](QStringView part) {
        for (const QChar letter : part) {
            grown += accented(letter);
            if (missing > 0 && isVowel(letter)) {
                grown += accented(letter.toLower());
                --missing;
            }
        }
    };
    qsizetype end = 0;
    for (auto places = kept.globalMatch(inner); places.hasNext();) {
        const QRegularExpressionMatch place = places.next();
        grow(QStringView(inner).mid(end, place.capturedStart() - end));
        grown += place.capturedView();
        end = place.capturedEnd();
    }
    grow(QStringView(inner).mid(end));
    grown += QString(missing, QLatin1Char('~'));
    return text.first(lead) + QLatin1Char('[') + grown + QLatin1Char(']') + text.sliced(lead + inner.size());
}

PseudoTranslator::PseudoTranslator(const QTranslator& english, QObject* parent)
    : QTranslator(parent)
    , m_english(english)
{
}

QString PseudoTranslator::translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const
{
    if (!sourceText || qstrcmp(context, "Loomstreet") != 0)
        return {};
    const QString text = m_english.translate(context, sourceText, disambiguation, n);
    return pseudoText(text.isEmpty() ? QString::fromUtf8(sourceText) : text);
}

} // namespace loom
