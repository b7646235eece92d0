#pragma once

#include <QString>

#include <vector>

namespace loom
{

/// A piece of HTML: text as it is written, or a tag, of which only the lower-case name matters here.
struct HtmlToken {
    enum class Kind { Text, Opening, Closing };

    Kind kind = Kind::Text;
    QString content;

    bool operator==(const HtmlToken&) const = default;
};

/// The tokens of `html` in order. Comments, declarations, and scripts, styles and the like with all they hold leave
/// nothing; neither does a tag that never ends. Takes time in proportion to the length, whatever stands there.
[[nodiscard]] std::vector<HtmlToken> scanHtml(QStringView html);

} // namespace loom
