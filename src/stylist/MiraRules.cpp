#include "stylist/MiraRules.h"

#include "catalog/DisplayText.h"
#include "net/AppLanguage.h"
#include "stylist/MiraMessage.h"

#include <QSet>
#include <QUrl>

#include <algorithm>

namespace loom
{

namespace
{

constexpr auto caseless = QRegularExpression::CaseInsensitiveOption;

/// Patterns are matched on well-formed texts only: on any other the engine matches nothing at all. The length stays.
QString wellFormed(QString text)
{
    if (text.isValidUtf16())
        return text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = std::as_const(text)[i];
        if (character.isHighSurrogate() && i + 1 < text.size() && std::as_const(text)[i + 1].isLowSurrogate())
            ++i;
        else if (character.isSurrogate())
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

/// The text of a message without the context, line ends as one character.
QString readable(const MiraMessage& message)
{
    QString text = displayCharacters(message.body);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    return message.direction == MiraDirection::Outbound ? MiraRules::withoutContext(text) : text;
}

// No piece has a longer handle, and one that has would spoil the question about the others.
constexpr qsizetype longestHandle = 255;

bool isPathPart(const QString& text)
{
    return std::ranges::none_of(text, [](QChar character) {
        return character == QChar::ReplacementCharacter || character.isSpace() || !character.isPrint() ||
               QStringView(u"/?#").contains(character);
    });
}

/// What follows "/products/" as far as it can be a handle: links stand in the middle of sentences.
QString leadingHandle(QStringView text)
{
    qsizetype size = 0;
    while (size < text.size() && !text[size].isSpace() && !QStringView(u"\"'<>()[]{}|\\,;*`").contains(text[size]))
        ++size;
    while (size > 0 && QStringView(u".:!…。，！").contains(text[size - 1]))
        --size;
    const QString handle = text.first(size).toString();
    // Percent-encoded where whoever wrote the link is strict; what is none, or would part the path, stays as it is.
    const QString decoded = QUrl::fromPercentEncoding(handle.toUtf8());
    const QString& found = isPathPart(decoded) ? decoded : handle;
    return found.size() <= longestHandle ? found : QString();
}

/// Takes out the lines that are only the path of a product, with their ends.
QString withoutPathLines(const QString& text)
{
    static const QRegularExpression pathLine = MiraRules::compiled(
        QStringLiteral(R"(^[ \t]*/products/[^/?#\s]+[ \t]*$)"), QRegularExpression::MultilineOption);
    constexpr qsizetype prefix = QLatin1String("/products/").size();
    QString result;
    result.reserve(text.size());
    qsizetype done = 0;
    qsizetype lines = 0;
    for (auto matches = pathLine.globalMatch(text); matches.hasNext() && lines < MiraRules::maximumLinks; ++lines) {
        const QRegularExpressionMatch match = matches.next();
        if (leadingHandle(match.capturedView().trimmed().mid(prefix)).isEmpty())
            continue; // nothing would show in its place
        result += QStringView(text).mid(done, match.capturedStart() - done);
        done = match.capturedEnd();
        if (done < text.size())
            ++done;
    }
    result += QStringView(text).mid(done);
    return result;
}

} // namespace

QRegularExpression MiraRules::compiled(const QString& pattern, QRegularExpression::PatternOptions options)
{
    QRegularExpression expression(pattern, options);
    if (!expression.isValid())
        expression = QRegularExpression(QStringLiteral("(?!)"));
    expression.optimize();
    return expression;
}

bool MiraRules::isHandle(const QString& text)
{
    return !text.isEmpty() && text.size() <= longestHandle && isPathPart(text);
}

QString MiraRules::stylePrompt(const QString& pieceName)
{
    return QCoreApplication::translate("Loomstreet", "Help me style this: %1").arg(pieceName);
}

QString MiraRules::withoutContext(const QString& body)
{
    static const QRegularExpression context = compiled(QStringLiteral(R"(\n\[(MY WARDROBE|Build the look|Weather:))"));
    const QRegularExpressionMatch match = context.match(wellFormed(body));
    return match.hasMatch() ? body.first(match.capturedStart()) : body;
}

QString MiraRules::shownText(const MiraMessage& message)
{
    static const QRegularExpression blankLines = compiled(QStringLiteral(R"(\n{3,})"));
    QString text = withoutPathLines(readable(message));
    text.replace(blankLines, QStringLiteral("\n\n"));
    return text.trimmed();
}

QStringList MiraRules::productHandles(const MiraMessage& message)
{
    static const QRegularExpression link = compiled(QStringLiteral(R"(/products/([^/?#]+))"));
    const QString text = readable(message);
    QStringList handles;
    QSet<QString> known;
    int links = 0;
    for (auto matches = link.globalMatch(text); matches.hasNext() && links < maximumLinks; ++links) {
        const QString handle = leadingHandle(matches.next().capturedView(1));
        if (handle.isEmpty() || known.contains(handle))
            continue;
        known.insert(handle);
        handles.append(handle);
    }
    return handles;
}

bool MiraRules::asksForMeasurements(const QString& text)
{
    static const QRegularExpression question =
        compiled(QStringLiteral(R"((height|weight|measurements|bust|身高|体重|三围).{0,40}\?)"
                                R"(|share your (height|measurements)|tell me your (height|size))"),
                 caseless);
    return question.match(wellFormed(text)).hasMatch();
}

bool MiraRules::speaksOfMeasurements(const QString& text)
{
    static const QRegularExpression measure = compiled(QStringLiteral("height|weight|身高|体重|measur"), caseless);
    return measure.match(wellFormed(text)).hasMatch();
}

std::optional<double> MiraRules::dollars(const QString& price)
{
    static const QRegularExpression decimal = compiled(QStringLiteral(R"(\A\d{1,12}(?:\.\d{1,20})?\z)"));
    const QString text = price.trimmed();
    return decimal.match(text).hasMatch() ? std::optional(text.toDouble()) : std::nullopt;
}

QString MiraRules::replyLanguage(const QString& preference, const QString& windowLanguage)
{
    return appLanguageFromCode(preference) ? preference : windowLanguage;
}

} // namespace loom
