#include "ui/theme/Scripts.h"

namespace loom
{

Scripts::Script Scripts::of(const QString& text) const
{
    Script found = Plain;
    for (const QChar letter : text) {
        const char16_t code = letter.unicode();
        if (code < 0x590)
            continue;
        if (code <= 0x8ff || (code >= 0xfb1d && code <= 0xfdff) || (code >= 0xfe70 && code <= 0xfefe))
            return Arabic;
        if ((code >= 0x2e80 && code <= 0x9fff) || (code >= 0xac00 && code <= 0xd7af) ||
            (code >= 0xf900 && code <= 0xfaff) || code >= 0xff00)
            found = Han;
    }
    return found;
}

} // namespace loom
