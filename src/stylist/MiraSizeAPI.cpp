#include "stylist/MiraSizeAPI.h"

#include "base/JsonReader.h"
#include "catalog/DisplayText.h"
#include "net/WidgetClient.h"

namespace loom
{

namespace
{

std::optional<QString> decodeSize(const JsonReader& json)
{
    constexpr qsizetype longestSize = 64;
    if (!json.isObject())
        json.fail(QStringLiteral("expected an object"));
    const QString size = displayLine(json.optionalText("recommendedSize").value_or(QString()), longestSize);
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

} // namespace

MiraSizeAPI::MiraSizeAPI(WidgetClient& widget, std::function<CallerIdentity()> identity)
    : m_widget(widget)
    , m_identity(std::move(identity))
{
}

QCoro::Task<ApiResult<std::optional<QString>>> MiraSizeAPI::recommendedSize(QString handle, QString locale,
                                                                            std::stop_token stop)
{
    QJsonObject question{{QStringLiteral("handle"), handle}, {QStringLiteral("locale"), locale}};
    if (const QString email = m_identity().email; !email.isEmpty())
        question.insert(QStringLiteral("email"), email);
    LOOM_CO_TRY(answer, co_await m_widget.post(QStringLiteral("/size-reco"), question, {.timeout = timeout}, stop));
    co_return decodedAnswer(decodeJson(answer, decodeSize));
}

} // namespace loom
