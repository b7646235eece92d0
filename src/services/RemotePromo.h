#pragma once

#include "net/AppLanguage.h"

#include <QDateTime>
#include <QMap>

#include <optional>

namespace loom
{

/// A text in the languages it was written in, by the codes of AppLanguage.
using LanguageTexts = QMap<QString, QString>;

/// What the store promotes on the home page, in every language and with the time in which it does.
struct RemotePromo {
    QString id;
    std::optional<QString> image; ///< its address
    LanguageTexts title;
    std::optional<LanguageTexts> subtitle;
    QString link;
    std::optional<QDateTime> startsAt; ///< none: already
    std::optional<QDateTime> endsAt;   ///< none: for good; the first moment at which it is over

    [[nodiscard]] bool isOpenAt(const QDateTime& now) const;
    /// When isOpenAt() may next change; none when it will not.
    [[nodiscard]] std::optional<QDateTime> nextBound(const QDateTime& now) const;

    bool operator==(const RemotePromo&) const = default;
};

/// The text for a shopper of that language: in it, else in English, else in the first language there is.
[[nodiscard]] QString textFor(const LanguageTexts& texts, AppLanguage language);

} // namespace loom
