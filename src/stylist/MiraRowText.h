#pragma once

#include "stylist/MiraMessage.h"

#include <QStringList>

namespace loom
{

/// What a bubble shows of a message, worked out of its body.
struct MiraRowText {
    QString text;
    QStringList handles;   ///< of the products that the body links to
    QStringList sentences; ///< of the text, for those who listen
    bool asksMeasurements = false;
};

/// Linear in the body. Any thread.
[[nodiscard]] MiraRowText miraRowText(const MiraMessage& message);

/// The sentences of a text by the rules of Unicode (UAX 29); what follows the 200th stays with it.
[[nodiscard]] QStringList sentencesOf(const QString& text);

} // namespace loom
