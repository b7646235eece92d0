#pragma once

#include "stylist/voice/MiraVoiceProduct.h"

#include <QByteArray>

#include <optional>
#include <variant>
#include <vector>

namespace loom
{

/// One event of the service during a call, decoded. A value; any thread.
struct MiraVoiceEvent {
    /// The stylist is on the line.
    struct Ready {
        bool operator==(const Ready&) const = default;
    };
    /// What the service understood of the shopper's speech; never empty.
    struct Recognised {
        QString text;
        bool isFinal = false;
        bool operator==(const Recognised&) const = default;
    };
    /// Mira's speech, in the format of the call.
    struct Speech {
        std::vector<float> samples;
        bool operator==(const Speech&) const = default;
    };
    /// What she says, in words. A final line without any says that the one before it is complete as it stands.
    struct Line {
        QString text;
        bool isFinal = false;
        bool operator==(const Line&) const = default;
    };
    struct Products {
        std::vector<MiraVoiceProduct> products;
        bool operator==(const Products&) const = default;
    };
    /// She puts a variant into the cart.
    struct Cart {
        QString variantID; ///< a Storefront identifier; empty where the service named none that can be added
        QString title;     ///< empty where the service does not say
        bool operator==(const Cart&) const = default;
    };
    /// She opens a page of the application.
    struct Navigation {
        QString kind;
        QString handle;
        QString path;
        bool operator==(const Navigation&) const = default;
    };
    struct Session {
        QString guideName; ///< empty where the service does not say
        bool operator==(const Session&) const = default;
    };
    struct Ended {
        bool operator==(const Ended&) const = default;
    };
    struct Error {
        QString code;
        bool operator==(const Error&) const = default;
    };
    using Content = std::variant<Ready, Recognised, Speech, Line, Products, Cart, Navigation, Session, Ended, Error>;

    // Beyond these nothing of an event is taken over.
    static constexpr qsizetype longestText = 4000; ///< UTF-16 units
    static constexpr std::size_t mostProducts = 24;
    static constexpr std::size_t mostSamples = 24000 * 60; ///< of one event: a minute

    Content content;

    /// Reads a text frame of the service; nothing where it is no event that says something.
    [[nodiscard]] static std::optional<MiraVoiceEvent> read(const QByteArray& json);

    bool operator==(const MiraVoiceEvent&) const = default;
};

} // namespace loom
