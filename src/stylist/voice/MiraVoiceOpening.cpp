#include "stylist/voice/MiraVoiceOpening.h"

#include "catalog/DisplayText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

#include <algorithm>

namespace loom
{

namespace
{

constexpr qsizetype longestTitle = 240;

QJsonArray piecesJson(const std::vector<MiraVoicePiece>& pieces)
{
    QJsonArray json;
    for (const MiraVoicePiece& piece : pieces) {
        const QString title = displayLine(piece.title, longestTitle);
        if (title.isEmpty() && piece.handle.isEmpty())
            continue;
        if (json.size() == qsizetype{MiraVoiceOpening::mostPieces})
            break;
        json.append(QJsonObject{{QStringLiteral("title"), title}, {QStringLiteral("handle"), piece.handle}});
    }
    return json;
}

} // namespace

QJsonObject MiraVoiceOpening::toJson() const
{
    // A text that is not known is there all the same, as an empty one.
    const auto known = [](const QString& text) {
        return text.isNull() ? QStringLiteral("") : text;
    };
    QJsonObject json{{QStringLiteral("guideName"), known(guideName)},
                     {QStringLiteral("visitorId"), known(visitorId)},
                     {QStringLiteral("visitorToken"), known(visitorToken)},
                     {QStringLiteral("appToken"), known(appToken)},
                     {QStringLiteral("lang"), known(language)},
                     {QStringLiteral("sysLang"), known(systemLanguage)},
                     {QStringLiteral("closet"), piecesJson(closet)},
                     {QStringLiteral("wishlist"), piecesJson(wishlist)},
                     {QStringLiteral("cart"), piecesJson(cart)}};
    if (!email.isEmpty())
        json.insert(QStringLiteral("email"), email);
    if (weather) {
        json.insert(QStringLiteral("city"), known(weather->city));
        json.insert(QStringLiteral("weather"), loom::toJson(*weather));
    }
    return json;
}

std::optional<QUrl> MiraVoiceFrames::address(const QString& supportBase)
{
    QUrl url(supportBase, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || url.hasQuery() || url.hasFragment())
        return std::nullopt;
    const QString path = url.path(QUrl::FullyEncoded);
    url.setPath(path.left(path.size() - (path.endsWith(QLatin1Char('/')) ? 1 : 0)) +
                    QStringLiteral("/api/support/widget/voice/rt"),
                QUrl::StrictMode);
    if (url.scheme() == QLatin1String("https"))
        url.setScheme(QStringLiteral("wss"));
    else if (url.scheme() == QLatin1String("http"))
        url.setScheme(QStringLiteral("ws"));
    else
        return std::nullopt;
    return url;
}

QByteArray MiraVoiceFrames::opening(const MiraVoiceOpening& opening)
{
    return QJsonDocument(opening.toJson()).toJson(QJsonDocument::Compact);
}

QByteArray MiraVoiceFrames::audio(std::span<const float> samples)
{
    QByteArray bytes(static_cast<qsizetype>(samples.size_bytes()), Qt::Uninitialized);
    if (!samples.empty())
        qToLittleEndian<float>(samples.data(), static_cast<qsizetype>(samples.size()), bytes.data());
    return R"({"type":"audio","b64":")" + bytes.toBase64() + R"("})";
}

QByteArray MiraVoiceFrames::hangup()
{
    return QByteArrayLiteral(R"({"type":"hangup"})");
}

} // namespace loom
