#pragma once

#include "base/JsonReader.h"
#include "net/AppLanguage.h"

#include <QJsonObject>

namespace loom
{

/// Why the store recommends a piece, as the backend says it. The words are chosen here, so that they follow the
/// shopper's language without asking again. A value.
struct RecoReason {
    QString templateName; ///< the kind of reason; one that is not known renders as nothing
    std::optional<QString> value;
    bool isNew = false; ///< the piece came to the store a short while ago
    std::optional<QString> label;
    std::optional<QString> labelLanguage; ///< the code of the language that `label` is in

    bool operator==(const RecoReason&) const = default;

    /// The text of it for a window in `language`.
    [[nodiscard]] std::optional<QString> render(AppLanguage language) const;
};

[[nodiscard]] RecoReason decodeRecoReason(const JsonReader& json);
/// As the backend writes it.
[[nodiscard]] QJsonObject toJson(const RecoReason& reason);

/// Whether a language code of the backend, such as "zh-TW" or "pt-BR", means `language`.
[[nodiscard]] bool namesLanguage(const QString& code, AppLanguage language);

/// "New this week", and "Handpicked" for a piece about which nothing is known.
[[nodiscard]] QString plainReason(bool isNew);
/// The reason of a piece that is new as well.
[[nodiscard]] QString newAndReason(const QString& reason);

} // namespace loom
