#include "app/AppConfig.h"

#include "navigation/StorePages.h"

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QUrl>
#include <QVariant>
#include <QXmlStreamReader>

namespace loom
{

namespace
{

const QString defaultStoreWebURL = QStringLiteral("https://www.loomstreet.example");

/// A property list whose root is a dictionary of texts; nothing for any other.
std::optional<QMap<QString, QString>> parseTexts(const QByteArray& propertyList)
{
    QXmlStreamReader xml(propertyList);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("plist") || !xml.readNextStartElement() ||
        xml.name() != QLatin1String("dict"))
        return std::nullopt;
    QMap<QString, QString> texts;
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("key"))
            return std::nullopt;
        const QString key = xml.readElementText();
        if (!xml.readNextStartElement() || xml.name() != QLatin1String("string"))
            return std::nullopt;
        texts.insert(key, xml.readElementText());
    }
    // A file that was cut off, or goes on after its end, is not one of ours.
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        return std::nullopt;
    return texts;
}

QString withoutLastSlash(const QString& text)
{
    return text.endsWith(QLatin1Char('/')) ? text.chopped(1) : text;
}

bool isAddress(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() && !url.host().isEmpty();
}

QString bareHost(QString domain)
{
    domain.remove(QStringLiteral("https://")).remove(QStringLiteral("http://"));
    while (domain.startsWith(QLatin1Char('/')))
        domain.remove(0, 1);
    while (domain.endsWith(QLatin1Char('/')))
        domain.chop(1);
    return domain;
}

} // namespace

std::optional<AppConfig> AppConfig::load()
{
    QFile file(QStringLiteral(":/loomstreet/Secrets.plist"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return parse(file.readAll());
}

std::optional<AppConfig> AppConfig::parse(const QByteArray& propertyList)
{
    const auto texts = parseTexts(propertyList);
    if (!texts)
        return std::nullopt;
    const auto value = [&texts](const char* key) {
        return texts->value(QLatin1String(key)).trimmed();
    };
    AppConfig config{.shopifyDomain = bareHost(value("ShopifyDomain")),
                     .storefrontToken = value("ShopifyStorefrontToken"),
                     .supportBase = withoutLastSlash(value("SupportBase")),
                     .supportKey = value("SupportKey"),
                     .storeWebURL = withoutLastSlash(value("StoreWebURL")),
                     .updateKey = value("UpdatePublicKey")};
    if (config.shopifyDomain.isEmpty() || config.storefrontToken.isEmpty() || config.supportKey.isEmpty() ||
        !isAddress(config.supportBase))
        return std::nullopt;
    // What the store's own pages could not be loaded from is no address of theirs.
    if (!isAddress(config.storeWebURL) || !StorePages(config.storeWebURL).mayLoad(QUrl(config.storeWebURL)))
        config.storeWebURL = defaultStoreWebURL;
    return config;
}

QString AppConfig::bundleIdentifier()
{
    // The name of the desktop entry is what a Linux desktop knows an application by.
    const QString name =
        QCoreApplication::instance() ? QCoreApplication::instance()->property("desktopFileName").toString() : QString();
    return name.isEmpty() ? QStringLiteral("com.loomstreet.mac") : name;
}

QString AppConfig::appVersion()
{
    const QString version = QCoreApplication::applicationVersion();
    return version.isEmpty() ? QStringLiteral("1.0.0") : version;
}

} // namespace loom
