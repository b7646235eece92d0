#include "services/ReportScrubbing.h"

#include "base/Log.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <array>

namespace loom
{

namespace
{

struct Rule {
    QRegularExpression pattern;
    QString replacement;
};

Rule rule(const QString& pattern, const QString& replacement)
{
    return {QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption |
                                            QRegularExpression::UseUnicodePropertiesOption),
            replacement};
}

/// As it stands, as texts that hold JSON may have it, and as addresses do.
const QString slash = QStringLiteral(R"re((?:\\{0,2}/|%(?:25){0,2}2f))re");

/// A file's name may hold blanks: where it ends is known only by what cannot be in one, or hardly ever is.
const QString restOfPath = QStringLiteral(R"re((?:(?!: )[^"\n<>|])*)re");

// Every repetition is bounded or can begin at one place only. What a log may keep of an address, a report may not.
const std::array<Rule, 8>& rules()
{
    static const std::array<Rule, 8> all{
        rule(QStringLiteral(R"re((?:S(?:home|users|media|runSmedia|varShome)S|Sroot\b|~S|\$\{?home\b))re")
                     .replace(QLatin1Char('S'), slash) +
                 restOfPath,
             QStringLiteral("[path]")),
        rule(QStringLiteral(R"re(\b[a-z][a-z0-9+.-]{0,30}(?::|%3a)%1{1,3}[^\s"'<>]*)re").arg(slash),
             QStringLiteral("[address]")),
        rule(QStringLiteral(
                 R"re((?<![\p{L}\p{N}.@-])(?:[\p{L}\p{N}-]{1,63}\.){1,8}\p{L}{2,24}(?::\d{1,5})?%1[^\s"'<>]*)re")
                 .arg(slash),
             QStringLiteral("[address]")),
        rule(QStringLiteral(R"re((?<![\w.])\d{1,3}(?:\.\d{1,3}){3}(?![\w.]))re"), QStringLiteral("[address]")),
        rule(QStringLiteral(R"re((?<![\w:])(?:[0-9a-f]{0,4}:){3,7}[0-9a-f]{0,4}(?![\w:]))re"),
             QStringLiteral("[address]")),
        // A short one; what is in a namespace has no figures, or hardly ever.
        rule(QStringLiteral(R"re((?<![\w:])(?=[a-f:]*+\d)[0-9a-f]{1,4}::[0-9a-f]{1,4}(?![\w:]))re"),
             QStringLiteral("[address]")),
        // Letters may come in parts.
        rule(QStringLiteral(R"re([\w\p{M}.%+-]{1,64}@[\w\p{M}.-]{1,255})re"), QStringLiteral("[e-mail]")),
        // Cards and telephones.
        rule(QStringLiteral(R"re((?<![\w.-])\+?(?:\d[ -]?){12,20}(?![\w.-]))re"), QStringLiteral("[number]")),
    };
    return all;
}

/// Letters of both sizes and figures, mixed: no word is like that, and few paths.
const Rule& token()
{
    static const Rule one{
        QRegularExpression(QStringLiteral(
            R"re((?<![A-Za-z0-9+/=_-])(?=[A-Za-z+/=_-]*+[0-9])(?=[0-9a-z+/=_-]*+[A-Z])(?=[0-9A-Z+/=_-]*+[a-z])[A-Za-z0-9+/=_-]{20,}+)re")),
        QStringLiteral("[token]")};
    return one;
}

/// A secret whose end was cut off lacks the quotation mark by which it is known.
const Rule& unfinishedSecret()
{
    static const Rule one = rule(
        QStringLiteral(
            R"re(((?:token|secret|password|publickey|api[_-]?key|verifier|authorization|cookie|code|otp|pin)["'\\]*\s*[:=,]\s*)\\?["'][^"']*+$)re"),
        QStringLiteral("\\1[secret]"));
    return one;
}

void apply(const Rule& rule, QString& text)
{
    text.replace(rule.pattern, rule.replacement);
}

/// What the eye does not see, or sees elsewhere than it stands, could also part a word so that no rule knows it.
QString visible(const QString& text)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar character : text) {
        const bool isBreak = character == QLatin1Char('\n') || character == QLatin1Char('\t');
        if (!isBreak && character.category() == QChar::Other_Control)
            kept += QLatin1Char(' ');
        else if (character.category() != QChar::Other_Format)
            kept += character;
    }
    return kept;
}

QString shortened(const QString& text)
{
    if (text.size() < maximumReportText)
        return text;
    qsizetype end = maximumReportText - 1;
    while (end > 0 && !text.at(end).isSpace())
        --end;
    return text.left(end);
}

} // namespace

QString scrubbed(const QString& text, const QString& home)
{
    if (text.isEmpty())
        return {}; // as most runs end: the rules need not even be read
    QString result = visible(shortened(text));
    if (home.size() > 1) {
        QStringList parts;
        for (const QString& part : home.split(QLatin1Char('/'))) {
            const auto encoded = QString::fromLatin1(QUrl::toPercentEncoding(part));
            parts.append(
                QStringLiteral("(?:%1|%2)").arg(QRegularExpression::escape(part), QRegularExpression::escape(encoded)));
        }
        // As any home is written. Its paths go later: with the blanks they may hold, they could take along the name by
        // which a secret after them is known.
        const QString pattern = parts.join(slash) + QStringLiteral(R"re((?![\w-]))re");
        result.replace(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption), QStringLiteral("~/"));
    }
    // Before addresses go, which may lie around a secret, and with it the name it is known by.
    apply(unfinishedSecret(), result);
    result = redacted(result);
    for (const Rule& one : rules())
        apply(one, result);
    apply(token(), result);
    return result.trimmed();
}

} // namespace loom
