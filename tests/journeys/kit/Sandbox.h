#pragma once

#include "app/AppConfig.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>

namespace loom
{

/// A failure to ask the sandbox store for. What is left empty matches every request.
struct Fault {
    QString kind; ///< as the store's README names them
    QString operation;
    QString host;
    QString path;
    int status = 500;
    int times = 0; ///< 0 until it is lifted
};

/// The sandbox store that this process was started with, by way of its control port.
class Sandbox
{
public:
    /// Reads the file that the environment variable LOOMSTREET_SANDBOX names.
    Sandbox();

    /// What the application would find in its resources.
    [[nodiscard]] const AppConfig& config() const { return m_config; }
    [[nodiscard]] const QString& authorityFile() const { return m_authorityFile; }

    /// Begins to fail, and returns by which name to lift the failure.
    QString fail(const Fault& fault);
    void lift(const QString& fault);
    /// Forgets what was asked, every failure, carts, orders and how checkout was to behave.
    void reset();

    /// Has checkout behave in another way, by the settings that the store's README names.
    void setCheckout(const QJsonObject& settings);
    /// Every cart is given up, as after a long time.
    void expireCarts();
    /// Every cart is paid for, somewhere else.
    void completeCarts();
    void setStock(const QString& variantID, int stock);
    /// What a piece costs from now on, in US dollars.
    void setPrice(const QString& handle, double price);
    /// The code that an address was last sent.
    [[nodiscard]] QString code(const QString& email);
    /// Has signing in behave in another way, by the settings that the store's README names.
    void setAuth(const QJsonObject& settings);
    /// Changes what the store says of the application, and how recommending behaves, by the settings that its README
    /// names.
    void setConfig(const QJsonObject& changes);
    void setReco(const QJsonObject& settings);
    /// Has the stylist behave in another way, by the settings that the store's README names.
    void setStylist(const QJsonObject& settings);
    /// What was written to her, oldest first, as it came.
    [[nodiscard]] QJsonArray messages();
    /// Has her voice line behave in another way, by the settings that the store's README names.
    void setVoice(const QJsonObject& settings);
    /// Has something happen in the call under way: what the README names below "/voice/".
    void stepIn(const QString& what, const QJsonObject& how);
    /// What she knows of the last calls, the latest last.
    [[nodiscard]] QJsonArray calls();
    /// Tells a customer something, by the members that the store's README names. Returns under which identifiers.
    QStringList notify(const QJsonObject& notification);
    /// What a customer was told, the newest first.
    [[nodiscard]] QJsonArray notifications(const QString& email);
    /// Has customer service behave in another way, and writes in its name.
    void setSupport(const QJsonObject& settings);
    void replyFromSupport(const QJsonObject& message);
    /// What was said in each conversation with it.
    [[nodiscard]] QJsonArray conversations();
    /// Where a page of the store sends a browser on to.
    [[nodiscard]] QUrl redirectOf(const QUrl& page);
    [[nodiscard]] QJsonArray orders();
    [[nodiscard]] QJsonArray carts();
    /// The summaries of the wishlist that it was told, oldest first.
    [[nodiscard]] QJsonArray wishlists();

    /// What was asked since the last reset, oldest first.
    [[nodiscard]] QJsonArray requests();
    /// How often an operation of the Storefront was asked for.
    [[nodiscard]] int count(const QString& operation);
    /// What the store has no answer for.
    [[nodiscard]] QJsonArray unexpected();

private:
    [[nodiscard]] QJsonDocument ask(const QByteArray& method, const QString& path, const QByteArray& body = {});
    QJsonDocument tell(const QString& path, const QJsonObject& body);

    AppConfig m_config;
    QString m_authorityFile;
    QString m_control;
    QNetworkAccessManager m_access;
};

} // namespace loom
