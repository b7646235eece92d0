#pragma once

#include "navigation/StorePages.h"

#include <QObject>
#include <QPointer>
#include <QQuickWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace loom
{

/// Lets the pages of a browser profile load nothing but https on the store's own host. Main thread.
class StoreHostInterceptor final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    explicit StoreHostInterceptor(StorePages storePages)
        : m_storePages(std::move(storePages))
    {
    }

    void interceptRequest(QWebEngineUrlRequestInfo& request) override;

private:
    StorePages m_storePages;
};

/// Guards the profile it is given from the moment it knows the store's address, and until it goes.
class StoreHostGuard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString storeAddress READ storeAddress WRITE setStoreAddress NOTIFY changed)
    Q_PROPERTY(bool isReady READ isReady NOTIFY changed)
    Q_PROPERTY(QObject* profile READ profile WRITE setProfile NOTIFY changed)

public:
    using QObject::QObject;
    ~StoreHostGuard() override;

    /// The address of the store's site, "https://www.example.com".
    [[nodiscard]] const QString& storeAddress() const { return m_storeAddress; }
    void setStoreAddress(const QString& address);
    /// The profile is guarded: now it may load.
    [[nodiscard]] bool isReady() const { return m_interceptor != nullptr; }
    [[nodiscard]] QObject* profile() const { return m_profile; }
    void setProfile(QObject* profile);

Q_SIGNALS:
    void changed();

private:
    void guard();

    QString m_storeAddress;
    QPointer<QQuickWebEngineProfile> m_profile;
    std::unique_ptr<StoreHostInterceptor> m_interceptor;
};

} // namespace loom
