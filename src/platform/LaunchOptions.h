#pragma once

#include <QString>
#include <QStringList>

namespace loom
{

/// What the command line asks for.
struct LaunchOptions {
    QStringList links;
    QString action;              ///< an action of the desktop entry; empty for none
    bool isService = false;      ///< the desktop starts the application and will say what for
    QString authorityFile;       ///< a further certificate authority in PEM form, trusted for HTTP and web sockets
    QString startReportFile;     ///< where to write how long the first frames took
    QString eventLoopReportFile; ///< where to write how long the main thread's turns took
    QString screenshotFile;      ///< where to save the first settled page before quitting
};

/// How many arguments stand before "--". What comes after it is data, which nobody may look for options in: neither
/// this application nor the libraries it is made of.
[[nodiscard]] int countOfOptions(int argc, const char* const* argv);

/// Reads the arguments; answers --help and --version, and errors, by ending the process. The certificate authority
/// may also be named by the environment variable LOOMSTREET_CA_FILE.
[[nodiscard]] LaunchOptions readLaunchOptions(const QStringList& arguments);

/// Trusts the authorities in the file in addition to the system's. False, with the reason in the log, when there is
/// none in it. Any thread.
[[nodiscard]] bool addCertificateAuthority(const QString& file);

} // namespace loom
