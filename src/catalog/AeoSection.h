#pragma once

#include "base/JsonReader.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace loom
{

struct AeoFaq {
    QString question;
    QString answer;

    bool operator==(const AeoFaq&) const = default;
};

/// A part of the long-form answers about a piece.
struct AeoSection {
    QString title;
    QStringList paragraphs;
    QList<AeoFaq> faqs;

    bool operator==(const AeoSection&) const = default;
};

/// Reads {"sections": [{"title", "paragraphs": texts, "faqs": [{"question", "answer"}]}]}, or the bare list. Questions
/// without an answer and sections with nothing to read are left out.
[[nodiscard]] QList<AeoSection> decodeAeoSections(const JsonReader& json);

} // namespace loom
