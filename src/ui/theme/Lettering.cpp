#include "ui/theme/Lettering.h"

#include <algorithm>
#include <array>

namespace loom
{

const Lettering& letteringOf(const QString& language)
{
    static constexpr Lettering plain{.language = ""};
    static constexpr std::array others{
        Lettering{.language = "ar", .cases = false, .extraLine = 4, .smallest = 12},
        Lettering{.language = "he", .cases = false, .smallest = 12},
        Lettering{
            .language = "hi", .families = true, .cases = false, .textLine = 1.5, .displayLine = 1.4, .smallest = 12},
        Lettering{
            .language = "ja", .families = true, .cases = false, .textLine = 1.45, .displayLine = 1.3, .smallest = 12},
        Lettering{
            .language = "ko", .families = true, .cases = false, .textLine = 1.45, .displayLine = 1.3, .smallest = 12},
        Lettering{.language = "th", .cases = false, .textLine = 1.5, .displayLine = 1.5, .smallest = 12},
        Lettering{.language = "tr", .ligatures = false},
        // Two marks on a capital.
        Lettering{.language = "vi", .displayLine = 1.15},
        // Its stand-ins are what everybody has who reads another script.
        Lettering{.language = "zh-Hans", .cases = false, .textLine = 1.45, .displayLine = 1.3, .smallest = 12},
        Lettering{.language = "zh-Hant",
                  .families = true,
                  .cases = false,
                  .textLine = 1.45,
                  .displayLine = 1.3,
                  .smallest = 12},
    };
    const auto* const found =
        std::ranges::find_if(others, [&](const Lettering& each) { return language == QLatin1String(each.language); });
    return found == others.end() ? plain : *found;
}

} // namespace loom
