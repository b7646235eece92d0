#pragma once

#include "stylist/MiraWeather.h"

#include <QByteArray>
#include <QJsonObject>
#include <QUrl>

#include <optional>
#include <span>
#include <vector>

namespace loom
{

/// A piece of the shopper's that the stylist may speak of.
struct MiraVoicePiece {
    QString title;
    QString handle;

    bool operator==(const MiraVoicePiece&) const = default;
};

/// Who calls, and what the stylist should know: the first message on an open line. Pure; any thread.
struct MiraVoiceOpening {
    /// Of each list no more than this travels.
    static constexpr std::size_t mostPieces = 60;

    QString guideName;
    QString visitorId;
    QString visitorToken;   ///< empty before the service gave one
    QString appToken;       ///< of the signed-in customer; empty without one
    QString language;       ///< the code of the language to reply in
    QString systemLanguage; ///< the code of the desktop's
    QString email;          ///< empty when nobody is signed in
    std::optional<MiraWeather> weather;
    std::vector<MiraVoicePiece> closet;
    std::vector<MiraVoicePiece> wishlist;
    std::vector<MiraVoicePiece> cart;

    [[nodiscard]] QJsonObject toJson() const;

    bool operator==(const MiraVoiceOpening&) const = default;
};

/// The frames that a call sends, and where to.
struct MiraVoiceFrames {
    /// A web-socket address; nothing where the base is no plain or secure web address.
    [[nodiscard]] static std::optional<QUrl> address(const QString& supportBase);
    [[nodiscard]] static QByteArray opening(const MiraVoiceOpening& opening);
    /// Little-endian samples in base64 (RFC 4648).
    [[nodiscard]] static QByteArray audio(std::span<const float> samples);
    [[nodiscard]] static QByteArray hangup();
};

} // namespace loom
