#include "account/Profile.h"

#include "base/Dates.h"

namespace loom
{

Profile decodeProfile(const JsonReader& json)
{
    const auto newsletters = json.optionalObject("newsletters");
    return {.email = json.text("email"),
            .name = json.optionalText("name").value_or(QString()),
            .phone = json.optionalText("phone").value_or(QString()),
            .birthday = QDate::fromString(json.optionalText("birthday").value_or(QString()), Qt::ISODate),
            .country = json.optionalText("country").value_or(QString()),
            .newsletters = {.email = newsletters && newsletters->optionalBoolean("email").value_or(false),
                            .sms = newsletters && newsletters->optionalBoolean("sms").value_or(false)},
            .memberSince = json.optionalDate("memberSince")};
}

QJsonObject toJson(const Profile& profile)
{
    QJsonObject json{{QStringLiteral("email"), profile.email},
                     {QStringLiteral("name"), profile.name},
                     {QStringLiteral("phone"), profile.phone},
                     {QStringLiteral("birthday"), profile.birthday.toString(Qt::ISODate)},
                     {QStringLiteral("country"), profile.country},
                     {QStringLiteral("newsletters"), toJson(profile.newsletters)}};
    if (profile.memberSince)
        json.insert(QStringLiteral("memberSince"), formatDate(*profile.memberSince));
    return json;
}

QJsonObject toJson(const Newsletters& newsletters)
{
    return {{QStringLiteral("email"), newsletters.email}, {QStringLiteral("sms"), newsletters.sms}};
}

} // namespace loom
