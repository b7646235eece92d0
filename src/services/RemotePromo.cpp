#include "services/RemotePromo.h"

namespace loom
{

bool RemotePromo::isOpenAt(const QDateTime& now) const
{
    return (!startsAt || *startsAt <= now) && (!endsAt || now < *endsAt);
}

std::optional<QDateTime> RemotePromo::nextBound(const QDateTime& now) const
{
    if (endsAt && *endsAt <= now)
        return std::nullopt;
    return startsAt && now < *startsAt ? startsAt : endsAt;
}

QString textFor(const LanguageTexts& texts, AppLanguage language)
{
    for (const AppLanguage wanted : {language, AppLanguage::English}) {
        if (const auto text = texts.constFind(appLanguageCode(wanted)); text != texts.constEnd())
            return *text;
    }
    return texts.isEmpty() ? QString() : texts.first();
}

} // namespace loom
