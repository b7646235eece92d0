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
    const auto flag = [](const QStringList& names) {
        return QCommandLineOption(names);
    };
    const auto valued = [](const char* name) {
        return QCommandLineOption(QLatin1String(name), QString(), QStringLiteral("VALUE"));
    };
    const QCommandLineOption help = flag({QStringLiteral("help"), QStringLiteral("h")});
    const QCommandLineOption version = flag({QStringLiteral("version"), QStringLiteral("v")});
    const QCommandLineOption newWindow = flag({QStringLiteral("new-window")});
    const QCommandLineOption quit = flag({QStringLiteral("quit")});
    const QCommandLineOption safeMode = flag({QStringLiteral("safe-mode")});
    const QCommandLineOption pseudoLanguage = flag({QStringLiteral("pseudo-language")});
    const QCommandLineOption service = flag({QStringLiteral("service")});
    const QCommandLineOption action = valued("action");
    const QCommandLineOption authority = valued("ca-file");
    const QCommandLineOption startReport = valued("start-report");
    const QCommandLineOption eventLoopReport = valued("event-loop-report");
    const QCommandLineOption screenshot = valued("screenshot");

    QCommandLineParser parser;
    // The libraries' own options begin with one dash: their letters are not ours.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({help, version, newWindow, quit, safeMode, pseudoLanguage, service, action, authority,
                       startReport, eventLoopReport, screenshot});
    const bool isUnderstood = parser.parse(arguments);

    LaunchOptions options{.problem = isUnderstood ? QString() : parser.errorText(),
                          .links = parser.positionalArguments(),
                          .action = parser.isSet(newWindow) ? QStringLiteral("new-window") : parser.value(action),
                          .isService = parser.isSet(service),
                          .isSafeMode = parser.isSet(safeMode),
                          .isPseudoLanguage = parser.isSet(pseudoLanguage),
                          .authorityFile = parser.value(authority),
                          .startReportFile = parser.value(startReport),
                          .eventLoopReportFile = parser.value(eventLoopReport),
                          .screenshotFile = parser.value(screenshot)};
    if (parser.isSet(help))
        options.purpose = LaunchOptions::Purpose::Help;
    else if (parser.isSet(version))
        options.purpose = LaunchOptions::Purpose::Version;
    else if (parser.isSet(quit) || options.action == QLatin1String("quit"))
        options.purpose = LaunchOptions::Purpose::Quit;
    if (options.authorityFile.isEmpty())
        options.authorityFile = qEnvironmentVariable("LOOMSTREET_CA_FILE");
    return options;
}

QString helpText()
{
    return QStringLiteral(R"(Usage: loomstreet [OPTION]... [--] [LINK]...

The shopping client of an online fashion store. Opens the links in the instance
that runs, or starts one.

  --new-window     open a further window
  --action ACTION  do what the desktop entry offers: new-window, search or bag
  --quit           end the instance that runs, if one does
  --safe-mode      start with software rendering, without the windows of last
                   time, and with the built-in configuration
  --pseudo-language
                   write every text that is translated longer, accented and
                   between brackets, to see those that are not
  --ca-file FILE   trust the certificate authorities in FILE as well
  -h, --help       print this help
  -v, --version    print the version
)");
}

QString versionText(const QString& version)
{
    return QStringLiteral("LOOMSTREET %1\n").arg(version);
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
