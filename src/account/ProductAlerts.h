#pragma once

#include "account/Alert.h"

#include <QObject>

namespace loom
{

class AlertsStore;
class ProductModel;

/// What a product's page offers to tell the shopper of, by what is chosen there. Main thread; belongs to the page.
class ProductAlerts final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool offersRestock READ offersRestock NOTIFY changed)
    Q_PROPERTY(bool isRestockSet READ isRestockSet NOTIFY changed)
    Q_PROPERTY(bool offersPrice READ offersPrice NOTIFY changed)
    Q_PROPERTY(bool isPriceSet READ isPriceSet NOTIFY changed)
    Q_PROPERTY(QString email READ email NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)

public:
    ProductAlerts(ProductModel& product, AlertsStore& alerts, QObject* parent = nullptr);

    /// What is chosen is sold out.
    [[nodiscard]] bool offersRestock() const;
    [[nodiscard]] bool isRestockSet() const;
    [[nodiscard]] bool offersPrice() const;
    [[nodiscard]] bool isPriceSet() const;
    /// Where the word goes; empty for a guest.
    [[nodiscard]] QString email() const;
    /// What is in the way; empty when nothing is.
    [[nodiscard]] QString message() const;

    Q_INVOKABLE void toggleRestock();
    Q_INVOKABLE void togglePrice();
    /// Nobody signed in.
    Q_INVOKABLE void dropWish();

Q_SIGNALS:
    void changed();
    /// The wish waits until somebody signs in.
    void signInWanted();

private:
    [[nodiscard]] AlertSubject subject(AlertKind kind) const;
    /// The option that has to be chosen before it is known what is sold out; empty where none has to be.
    [[nodiscard]] QString openOption() const;
    void toggle(AlertKind kind);

    ProductModel& m_product;
    AlertsStore& m_alerts;
    QString m_missingOption; ///< asked for without it
};

} // namespace loom
