#include "account/ProofKey.h"

#include "base/Random.h"

#include <QCryptographicHash>
#include <QUrlQuery>

namespace loom
{

namespace
{

/// As many characters as six bits can name, so that each is as likely as the others.
constexpr QLatin1String alphabet("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_");
static_assert(alphabet.size() == 64);

constexpr qsizetype verifierLength = 64;
constexpr qsizetype stateLength = 24;

QString drawText(Random& random, qsizetype length)
{
    QString text;
    text.reserve(length);
    for (const char byte : random.bytes(length))
        text.append(alphabet.at(static_cast<unsigned char>(byte) % 64));
    return text;
}

} // namespace

ProofKey makeProofKey(Random& random)
{
    QString verifier = drawText(random, verifierLength);
    return {.verifier = std::move(verifier), .state = drawText(random, stateLength)};
}

QString challengeOf(const QString& verifier)
{
    return QString::fromLatin1(QCryptographicHash::hash(verifier.toUtf8(), QCryptographicHash::Sha256)
                                   .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

bool isCallback(const QString& link)
{
    return link.trimmed().startsWith(QString(callbackScheme + QLatin1Char(':')), Qt::CaseInsensitive);
}

QUrl signInAddress(const QString& supportBase, const QString& supportKey, SocialProvider provider, const ProofKey& key)
{
    QUrl address(supportBase + QStringLiteral("/api/support/widget/app-auth/oauth/") + rawValue(provider) +
                 QStringLiteral("/start"));
    // A "+" in a query is read as a blank.
    const QByteArray query = "publicKey=" + QUrl::toPercentEncoding(supportKey) +
                             "&cc=" + challengeOf(key.verifier).toLatin1() + "&as=" + key.state.toLatin1();
    address.setQuery(QString::fromLatin1(query), QUrl::StrictMode);
    return address;
}

Result<QString, QString> readCallback(const QString& link, const QString& state)
{
    const QUrlQuery query(QUrl(link.trimmed()));
    const auto values = [&query](const char* name) {
        return query.allQueryItemValues(QString::fromLatin1(name), QUrl::FullyDecoded);
    };
    if (const QStringList errors = values("error"); !errors.isEmpty())
        return Unexpected(errors.first());
    const QStringList codes = values("code");
    if (values("state") != QStringList{state} || codes.size() != 1 || codes.first().isEmpty())
        return Unexpected(QStringLiteral("state_mismatch"));
    return codes.first();
}

} // namespace loom
