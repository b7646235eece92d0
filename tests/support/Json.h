#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

namespace loom
{

/// The value that `text` is the JSON of; throws when it is none.
[[nodiscard]] QJsonValue json(const char* text);

/// `value` with what stands at `path`, such as "nodes[0].price", replaced; with an undefined value, without it.
[[nodiscard]] QJsonValue changed(const QJsonValue& value, const QString& path, const QJsonValue& replacement);

[[nodiscard]] QByteArray bytes(const QJsonValue& value);

/// A piece as the Storefront writes it on a card, with nothing left out.
[[nodiscard]] QJsonObject cardJson(const QString& handle);

/// A piece as the Storefront writes it on its page: a dress in two colours and two sizes.
[[nodiscard]] QJsonObject productJson(const QString& handle);

} // namespace loom
