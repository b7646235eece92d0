#include "platform/SystemLocation.h"

#include <QGeoPositionInfoSource>
#include <QPromise>
#include <qcoro/qcorofuture.h>

#include <chrono>
#include <memory>

namespace loom
{

namespace
{

const QString service = QStringLiteral("geoclue2");
/// The shopper may have to answer the desktop's question first.
constexpr std::chrono::milliseconds patience = std::chrono::seconds(30);

using Answer = Result<Coordinates, LocationFailure>;

LocationFailure failureOf(QGeoPositionInfoSource::Error error)
{
    switch (error) {
    case QGeoPositionInfoSource::AccessError:
        return LocationFailure::Refused;
    case QGeoPositionInfoSource::UpdateTimeoutError:
        return LocationFailure::TimedOut;
    default:
        return LocationFailure::Unavailable;
    }
}

/// One question, which is answered once.
class Question final : public QObject
{
public:
    explicit Question(std::unique_ptr<QGeoPositionInfoSource> source)
        : m_source(std::move(source))
    {
        m_promise.start();
        connect(m_source.get(), &QGeoPositionInfoSource::positionUpdated, this,
                [this](const QGeoPositionInfo& position) {
                    const QGeoCoordinate place = position.coordinate();
                    if (place.isValid())
                        answer(Coordinates{.latitude = place.latitude(), .longitude = place.longitude()});
                    else
                        answer(Unexpected(LocationFailure::Unavailable));
                });
        connect(m_source.get(), &QGeoPositionInfoSource::errorOccurred, this,
                [this](QGeoPositionInfoSource::Error error) { answer(Unexpected(failureOf(error))); });
    }

    [[nodiscard]] QFuture<Answer> ask()
    {
        m_source->requestUpdate(static_cast<int>(patience.count()));
        return m_promise.future();
    }

    void answer(Answer found)
    {
        if (m_isAnswered)
            return;
        m_isAnswered = true;
        m_promise.addResult(std::move(found));
        m_promise.finish();
    }

private:
    std::unique_ptr<QGeoPositionInfoSource> m_source;
    QPromise<Answer> m_promise;
    bool m_isAnswered = false;
};

} // namespace

SystemLocation::SystemLocation(QString desktopID)
    : m_desktopID(std::move(desktopID))
{
}

bool SystemLocation::isAvailable()
{
    if (!m_isAvailable)
        m_isAvailable = QGeoPositionInfoSource::availableSources().contains(service);
    return *m_isAvailable;
}

QCoro::Task<Answer> SystemLocation::locate(std::stop_token stop)
{
    std::unique_ptr<QGeoPositionInfoSource> source(
        QGeoPositionInfoSource::createSource(service, {{QStringLiteral("desktopId"), m_desktopID}}, nullptr));
    if (!source)
        co_return Unexpected(LocationFailure::Unavailable);
    Question question(std::move(source));
    const QFuture<Answer> answer = question.ask();
    const std::stop_callback cancel(stop, [&question] { question.answer(Unexpected(LocationFailure::Cancelled)); });
    co_return co_await answer;
}

} // namespace loom
