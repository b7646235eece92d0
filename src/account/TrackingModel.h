#pragma once

#include "account/OrdersAPI.h"
#include "net/Work.h"

#include <QObject>
#include <QVariantList>

namespace loom
{

class DateFormat;
class OrdersStore;

/// Where a package is, by its number or by the name of its order; needs no account. What the customer's orders know of
/// it shows until the carrier's word has come. Main thread.
class TrackingModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::TrackingModel::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(QString number READ number NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)
    Q_PROPERTY(QVariantList packages READ packages NOTIFY packagesChanged)
    Q_PROPERTY(QString orderId READ orderId NOTIFY packagesChanged)
    Q_PROPERTY(QString orderName READ orderName NOTIFY packagesChanged)

public:
    enum class Phase {
        Idle,
        Waiting,
        Found, ///< also after a failure, of which errorText tells
        Missing,
        Failed,
    };
    Q_ENUM(Phase)

    /// The longest number that is asked for.
    static constexpr qsizetype longestNumber = 64;

    /// Begins at once where there is a number.
    TrackingModel(const QString& number, QString carrier, OrdersStore& store, const DateFormat& dates,
                  QObject* parent = nullptr);

    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] const QString& number() const { return m_number; }
    /// Why the last question has no answer; empty when it has, or when nobody knows the number.
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }
    /// As describe() tells of a package each.
    [[nodiscard]] QVariantList packages() const;
    /// Of the order that they are of; empty where nobody says.
    [[nodiscard]] const QString& orderId() const { return m_answer.orderId; }
    [[nodiscard]] const QString& orderName() const { return m_answer.orderName; }

    /// Another number, as it was typed.
    Q_INVOKABLE void search(const QString& number);
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void changed();
    void packagesChanged();

private:
    [[nodiscard]] QCoro::Task<> fetch();
    [[nodiscard]] TrackingAnswer knownAnswer() const;
    [[nodiscard]] bool isMissing() const;
    void show(TrackingAnswer answer);

    QString m_number;
    QString m_carrier;
    OrdersStore& m_store;
    const DateFormat& m_dates;
    TrackingAnswer m_answer;
    bool m_isAnswered = false; ///< the backend knows the number, or has no package of it
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
