#include "base/Log.h"

#include <QRegularExpression>
#include <QTime>

#include <array>
#include <cstdio>

namespace loom
{

Q_LOGGING_CATEGORY(logApp, "loomstreet.app")
Q_LOGGING_CATEGORY(logCatalog, "loomstreet.catalog")
Q_LOGGING_CATEGORY(logNet, "loomstreet.net")
Q_LOGGING_CATEGORY(logPlatform, "loomstreet.platform")
Q_LOGGING_CATEGORY(logStorage, "loomstreet.storage")

namespace
{

struct Rule {
    QRegularExpression pattern;
    QString replacement;
};

Rule rule(const QString& pattern, const QString& replacement)
{
    return {QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption), replacement};
}

// Every repetition is bounded or can begin at one place only, so that a huge message takes no longer than it is long.
const std::array<Rule, 9>& rules()
{
    // Between a name and its value: name=…, name: …, "name": …, {\"name\": …}, ("name","…")
    const QString is = QStringLiteral(R"re((?:["'\\]*\s*[:=]|["'\\]+,)\s*)re");
    // A value: within quotation marks, within the escaped ones of a text that holds JSON, or a word. What a decoder
    // expected there is no secret.
    const QString value = QStringLiteral(
        R"re((?!expected )(?:"(?:[^"\\]++|\\.)*+"|\\"(?:[^"\\]++|\\\\(?:\\.|[^\\]))*+\\"|'[^']*'|[^\s,;&}"'\\]+))re");
    // Never destroyed: the libraries still have something to say when statics go.
    static const auto& all = *new std::array<Rule, 9>{
        rule(QStringLiteral(R"re(\b([a-z][a-z0-9+.-]{0,30}://)[^\s/?#"'<>]*@)re"), QStringLiteral("\\1[user]@")),
        rule(QStringLiteral(R"re(\b([a-z][a-z0-9+.-]{0,30}:/{1,2}[^\s?#"'<>]*)[?#][^\s"'<>)]*)re"),
             QStringLiteral("\\1")),
        rule(QStringLiteral(R"re([\p{L}\p{N}._%+-]{1,64}(?:@|%40)[\p{L}\p{N}-]{1,63}(?:\.[\p{L}\p{N}-]{1,63})+)re"),
             QStringLiteral("[e-mail]")),
        rule(QStringLiteral(R"re((\b(?:proxy-)?authorization|\b(?:set-)?cookie))re") + QLatin1Char('(') + is +
                 QStringLiteral(R"re(["'\\]*)[^"'\\\r\n]+)re"),
             QStringLiteral("\\1\\2[secret]")),
        rule(QStringLiteral(R"re(\bbearer\s+[^\s"'\\]+)re"), QStringLiteral("bearer [token]")),
        rule(QStringLiteral("((?:token|secret|password|publicKey|api[_-]?key|verifier|\\b(?:code|key|otp|pin)(?==))") +
                 is + QLatin1Char(')') + value,
             QStringLiteral("\\1[secret]")),
        // The kind of an error and a country have codes as well, which hold no figures.
        rule(QStringLiteral("((?:(?<![a-z])(?:code|key|otp|pin)|(?-i:(?<=[a-z])(?:Code|Key)))") + is +
                 QStringLiteral(R"re()(?=["'\\]*[^\s\d,;&}"'\\]{0,40}\d)(?=["'\\]*[^\s,;&}"'\\]{4}))re") + value,
             QStringLiteral("\\1[secret]")),
        rule(QStringLiteral(R"re((\bcode(?: is)? )\d{4,8}\b)re"), QStringLiteral("\\1[secret]")),
        // Long runs of letters and digits are tokens of some kind; words of that length do not occur.
        rule(QStringLiteral(R"re((?<![a-z0-9_-])(?=[a-z_-]*\d)(?=[0-9_-]*[a-z])[a-z0-9_-]{32,})re"),
             QStringLiteral("[token]")),
    };
    return all;
}

void writeMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    static constexpr std::array levels{"debug", "warning", "critical", "fatal", "info"};
    const QByteArray line = QStringLiteral("%1 %2 %3: %4\n")
                                .arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")),
                                     QLatin1String(levels.at(static_cast<std::size_t>(type))),
                                     QLatin1String(context.category ? context.category : "default"), redacted(message))
                                .toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

} // namespace

QString redacted(const QString& text)
{
    QString result = text;
    for (const auto& [pattern, replacement] : rules())
        result.replace(pattern, replacement);
    return result;
}

void installRedactingLog()
{
    qInstallMessageHandler(writeMessage);
}

} // namespace loom
