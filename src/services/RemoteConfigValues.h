#pragma once

#include "base/JsonReader.h"
#include "services/DashboardCard.h"
#include "services/RemotePromo.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

namespace loom
{

/// Whose language the window's own text of something is in.
enum class BuiltInText { English, Translated };

/// What the store says of the application, as it is applied and kept on this machine. Made of nothing, it is what
/// holds while no store has said anything.
struct RemoteConfigValues {
    qint64 revision = 0;
    QMap<QString, bool> features; ///< by their keys, known or not
    std::optional<std::vector<DashboardCard>> dashboard;
    std::optional<RemotePromo> promo;
    QStringList hiddenTools;
    QMap<QString, LanguageTexts> copy; ///< by what they stand for: a localisation key, or the English text

    /// What stands in the place of a text: in the shopper's language, or in English where the window would show
    /// English as well.
    [[nodiscard]] std::optional<QString> copyText(const QString& key, AppLanguage language, BuiltInText builtIn) const;

    bool operator==(const RemoteConfigValues&) const = default;
};

/// No more than that is read of what a server sends.
inline constexpr qsizetype maximumDocumentBytes = 1024 * 1024;

/// What the store's document says. Whatever in it is of the wrong type is as if it were not there; a document that
/// does not tell its revision is of `appliedRevision`. Fails when it is no JSON object or too large. Any thread.
[[nodiscard]] Result<RemoteConfigValues, QString> readRemoteDocument(const QByteArray& document,
                                                                     qint64 appliedRevision);

[[nodiscard]] QJsonObject toJson(const RemoteConfigValues& values);
[[nodiscard]] RemoteConfigValues decodeRemoteConfigValues(const JsonReader& json);

} // namespace loom
