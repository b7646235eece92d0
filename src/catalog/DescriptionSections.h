#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace loom
{

/// A part of a product's description, in plain text.
struct DescriptionSection {
    QString title; ///< empty for text under no heading
    QStringList paragraphs;
    bool isCollapsible = false;

    bool operator==(const DescriptionSection&) const = default;
};

/// Splits the HTML that a merchant wrote into sections, in its order.
///
/// A third-level heading begins a section; a "details" element is one that can be collapsed, under the title of its
/// first "summary". Every paragraph, list item (with a bullet), other heading, table row or line break begins a new
/// line, and every line is a paragraph; no text is lost because it stands in neither. A "details" ends at the first
/// closing tag, also when another one is nested in it, and is none when there is no closing tag. A leading
/// "Final sale:" is left out, for the service class says it.
///
/// The result is text, even where it reads like markup (from "&lt;p&gt;"): show it as plain text. Text without any tag
/// is split at its line breaks. Very long input is cut off, so that no description stalls the window.
[[nodiscard]] QList<DescriptionSection> descriptionSections(const QString& html);

} // namespace loom
