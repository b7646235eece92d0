#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace loom
{

/// Why a call to the backend or to the Storefront failed. The only error that pages show, each by one fixed sentence.
struct APIError {
    /// A transport failure that is neither a time-out nor a lost connection.
    struct Network {
        QString description;
        bool operator==(const Network&) const = default;
    };
    /// A status outside 200 to 299. `message` is the server's own text, for pages that show it on purpose.
    struct Http {
        int status = 0;
        std::optional<QString> code;
        std::optional<QString> message;
        bool operator==(const Http&) const = default;
    };
    /// The Storefront answered with GraphQL errors.
    struct GraphQL {
        QStringList messages;
        bool operator==(const GraphQL&) const = default;
    };
    /// A 2xx body that is not the expected record.
    struct Decoding {
        QString description;
        bool operator==(const Decoding&) const = default;
    };
    struct NotConfigured {
        bool operator==(const NotConfigured&) const = default;
    };
    struct Offline {
        bool operator==(const Offline&) const = default;
    };
    struct Timeout {
        bool operator==(const Timeout&) const = default;
    };
    /// The answer was no HTTP response.
    struct InvalidResponse {
        bool operator==(const InvalidResponse&) const = default;
    };

    std::variant<Network, Http, GraphQL, Decoding, NotConfigured, Offline, Timeout, InvalidResponse> value;

    template <typename Case>
    [[nodiscard]] const Case* as() const
    {
        return std::get_if<Case>(&value);
    }

    bool operator==(const APIError&) const = default;
};

/// The sentence a shopper reads, in the language of the window. Never contains a server's text.
[[nodiscard]] QString errorDescription(const APIError& error);

/// Every detail, for the log.
[[nodiscard]] QString debugDescription(const APIError& error);

} // namespace loom
