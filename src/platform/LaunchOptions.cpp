#include "platform/LaunchOptions.h"

#include "base/Log.h"

#include <QCommandLineParser>
#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <algorithm>
#include <span>

namespace loom
{

int countOfOptions(int argc, const char* const* argv)
{
    const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
    return static_cast<int>(std::ranges::find(arguments, QByteArrayView("--")) - arguments.begin());
}

LaunchOptions readLaunchOptions(const QStringList& arguments)
{
    const auto option = [](const char* name, const char* description, const char* value) {
        return QCommandLineOption(QLatin1String(name), QLatin1String(description), QLatin1String(value));
    };
    const QCommandLineOption authority =
        option("ca-file", "Trust the certificate authorities in FILE as well.", "FILE");
    const QCommandLineOption startReport =
        option("start-report", "Write to FILE how long the first frames took.", "FILE");
    const QCommandLineOption eventLoopReport =
        option("event-loop-report", "Write to FILE how long the turns of the main thread took.", "FILE");
    const QCommandLineOption screenshot =
        option("screenshot", "Save the first page to FILE once its pictures are there, then quit.", "FILE");

    const QCommandLineOption action =
        option("action", "Do ACTION, as the desktop entry names them, in the running instance.", "ACTION");
    QCommandLineOption service(QStringLiteral("service"));
    service.setFlags(QCommandLineOption::HiddenFromHelp);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The shopping client of an online fashion store."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({action, service, authority, startReport, eventLoopReport, screenshot});
    parser.addPositionalArgument(QStringLiteral("link"), QStringLiteral("A link to open."), QStringLiteral("[link…]"));
    parser.process(arguments);

    LaunchOptions options{.links = parser.positionalArguments(),
                          .action = parser.value(action),
                          .isService = parser.isSet(service),
                          .authorityFile = parser.value(authority),
                          .startReportFile = parser.value(startReport),
                          .eventLoopReportFile = parser.value(eventLoopReport),
                          .screenshotFile = parser.value(screenshot)};
    if (options.authorityFile.isEmpty())
        options.authorityFile = qEnvironmentVariable("LOOMSTREET_CA_FILE");
    return options;
}

bool addCertificateAuthority(const QString& file)
{
    // Opened here: for a name that is no file's, Qt's own function would search all folders beside it.
    QFile pem(file);
    const QList<QSslCertificate> authorities =
        pem.open(QIODevice::ReadOnly) ? QSslCertificate::fromDevice(&pem, QSsl::Pem) : QList<QSslCertificate>();
    if (authorities.isEmpty()) {
        qCCritical(logPlatform) << "no certificate authority in" << file;
        return false;
    }
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(authorities);
    QSslConfiguration::setDefaultConfiguration(configuration);
    return true;
}

} // namespace loom
