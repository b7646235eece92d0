#include "kit/Sandbox.h"

#include "support/Running.h"

#include <QFile>
#include <QJsonDocument>
#include <QNetworkProxy>
#include <QNetworkReply>

#include <stdexcept>

namespace loom
{

Sandbox::Sandbox()
{
    QFile file(qEnvironmentVariable("LOOMSTREET_SANDBOX"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no sandbox store: run this through tests/journeys/in-sandbox");
    const QJsonObject ready = QJsonDocument::fromJson(file.readAll()).object();
    const auto text = [&ready](const char* key) {
        return ready[QLatin1String(key)].toString();
    };
    m_config = {.shopifyDomain = text("shopifyDomain"),
                .storefrontToken = text("storefrontToken"),
                .supportBase = text("supportBase"),
                .supportKey = text("supportKey"),
                .storeWebURL = text("storeWebURL")};
    m_authorityFile = text("caFile");
    m_control = text("control");
    // The control port is not part of the store that the proxy leads to.
    m_access.setProxy(QNetworkProxy::NoProxy);
}

QString Sandbox::fail(const Fault& fault)
{
    QJsonObject match;
    for (const auto& [key, value] :
         {std::pair("operation", fault.operation), std::pair("host", fault.host), std::pair("path", fault.path)}) {
        if (!value.isEmpty())
            match.insert(QLatin1String(key), value);
    }
    QJsonObject wanted{{QStringLiteral("match"), match},
                       {QStringLiteral("kind"), fault.kind},
                       {QStringLiteral("status"), fault.status}};
    if (fault.times > 0)
        wanted.insert(QStringLiteral("times"), fault.times);
    return ask("POST", QStringLiteral("/faults"), QJsonDocument(wanted).toJson())[u"id"].toString();
}

void Sandbox::lift(const QString& fault)
{
    static_cast<void>(ask("DELETE", QStringLiteral("/faults/") + fault));
}

void Sandbox::reset()
{
    static_cast<void>(ask("POST", QStringLiteral("/reset")));
}

void Sandbox::setCheckout(const QJsonObject& settings)
{
    tell(QStringLiteral("/checkout"), settings);
}

void Sandbox::setConfig(const QJsonObject& changes)
{
    tell(QStringLiteral("/config"), changes);
}

void Sandbox::setReco(const QJsonObject& settings)
{
    tell(QStringLiteral("/reco"), settings);
}

void Sandbox::setStylist(const QJsonObject& settings)
{
    tell(QStringLiteral("/stylist"), settings);
}

QJsonArray Sandbox::messages()
{
    return ask("GET", QStringLiteral("/stylist"))[u"received"].toArray();
}

void Sandbox::setVoice(const QJsonObject& settings)
{
    tell(QStringLiteral("/voice"), settings);
}

void Sandbox::stepIn(const QString& what, const QJsonObject& how)
{
    tell(QStringLiteral("/voice/") + what, how);
}

QJsonArray Sandbox::calls()
{
    return ask("GET", QStringLiteral("/voice"))[u"calls"].toArray();
}

void Sandbox::expireCarts()
{
    tell(QStringLiteral("/carts/expire"), {});
}

void Sandbox::completeCarts()
{
    tell(QStringLiteral("/carts/complete"), {});
}

void Sandbox::setStock(const QString& variantID, int stock)
{
    tell(QStringLiteral("/stock"), {{QStringLiteral("variant"), variantID}, {QStringLiteral("stock"), stock}});
}

void Sandbox::setPrice(const QString& handle, double price)
{
    tell(QStringLiteral("/price"), {{QStringLiteral("piece"), handle}, {QStringLiteral("price"), price}});
}

QString Sandbox::code(const QString& email)
{
    return ask("GET", QStringLiteral("/codes"))[email].toString();
}

void Sandbox::setAuth(const QJsonObject& settings)
{
    tell(QStringLiteral("/auth"), settings);
}

QStringList Sandbox::notify(const QJsonObject& notification)
{
    return tell(QStringLiteral("/notifications"), notification)[u"ids"].toVariant().toStringList();
}

QJsonArray Sandbox::notifications(const QString& email)
{
    return ask("GET", QStringLiteral("/notifications?email=") + email)[u"notifications"].toArray();
}

void Sandbox::setSupport(const QJsonObject& settings)
{
    tell(QStringLiteral("/support"), settings);
}

void Sandbox::replyFromSupport(const QJsonObject& message)
{
    tell(QStringLiteral("/support/reply"), message);
}

QJsonArray Sandbox::conversations()
{
    return ask("GET", QStringLiteral("/support"))[u"conversations"].toArray();
}

QUrl Sandbox::redirectOf(const QUrl& page)
{
    QNetworkRequest request(page);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkAccessManager browser; // which goes through the proxy
    const std::unique_ptr<QNetworkReply> reply(browser.get(request));
    waitUntil([&reply] { return reply->isFinished(); }, "the page answers");
    return reply->header(QNetworkRequest::LocationHeader).toUrl();
}

QJsonArray Sandbox::orders()
{
    return ask("GET", QStringLiteral("/orders")).array();
}

QJsonArray Sandbox::carts()
{
    return ask("GET", QStringLiteral("/carts")).array();
}

QJsonArray Sandbox::wishlists()
{
    return ask("GET", QStringLiteral("/wishlist")).array();
}

QJsonArray Sandbox::requests()
{
    return ask("GET", QStringLiteral("/requests")).array();
}

int Sandbox::count(const QString& operation)
{
    const QJsonArray all = requests();
    return static_cast<int>(
        std::ranges::count_if(all, [&](const QJsonValue& request) { return request[u"operation"] == operation; }));
}

QJsonArray Sandbox::unexpected()
{
    return ask("GET", QStringLiteral("/unexpected")).array();
}

QJsonDocument Sandbox::tell(const QString& path, const QJsonObject& body)
{
    return ask("POST", path, QJsonDocument(body).toJson());
}

QJsonDocument Sandbox::ask(const QByteArray& method, const QString& path, const QByteArray& body)
{
    QNetworkRequest request(QUrl(m_control + path));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    const std::unique_ptr<QNetworkReply> reply(m_access.sendCustomRequest(request, method, body));
    waitUntil([&reply] { return reply->isFinished(); }, "the sandbox store does what it is told");
    if (reply->error() != QNetworkReply::NoError)
        throw std::runtime_error("the control port: " + reply->errorString().toStdString());
    return QJsonDocument::fromJson(reply->readAll());
}

} // namespace loom
