#include "stylist/MiraTopicTitle.h"

#include "catalog/DisplayText.h"
#include "stylist/MiraRules.h"

namespace loom
{

namespace
{

/// A topic is called by so much of its first words.
constexpr qsizetype longestName = 48;

} // namespace

QString miraTopicTitle(const std::vector<MiraEntry>& entries)
{
    for (const bool isMine : {true, false}) {
        for (const MiraEntry& entry : entries) {
            if (entry.isMine() != isMine)
                continue;
            MiraMessage beginning = entry.message;
            beginning.body.truncate(2000);
            QString line = displayLine(MiraRules::shownText(beginning), longestName + 1);
            if (line.size() <= longestName && !line.isEmpty())
                return line;
            if (line.isEmpty())
                continue;
            const qsizetype blank = line.lastIndexOf(u' ', longestName);
            return displayLine(line.left(blank > longestName / 2 ? blank : longestName), longestName) + u'…';
        }
    }
    return {};
}

} // namespace loom
