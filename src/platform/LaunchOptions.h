#pragma once

#include <QString>
#include <QStringList>

namespace loom
{

/// What the command line asks for.
struct LaunchOptions {
    enum class Purpose { Start, Help, Version, Quit };

    Purpose purpose = Purpose::Start;
    QString problem; ///< what is wrong with the arguments; empty where nothing is
    QStringList links;
    QString action;                ///< an action of the desktop entry; empty for none
    bool isService = false;        ///< the desktop starts the application and will say what for
    bool isSafeMode = false;       ///< with as little as possible of what may keep it from starting
    bool isPseudoLanguage = false; ///< texts as no language has them, for those who make the window
    QString authorityFile;         ///< a further certificate authority in PEM form, trusted for HTTP and web sockets
    QString startReportFile;       ///< where to write how long the first frames took
    QString eventLoopReportFile;   ///< where to write how long the main thread's turns took
    QString screenshotFile;        ///< where to save the first settled page before quitting
};

/// How many arguments stand before "--". What comes after it is data, which nobody may look for options in: neither
/// this application nor the libraries it is made of.
[[nodiscard]] int countOfOptions(int argc, const char* const* argv);

/// Reads the arguments, the program's name first; needs no application object. As long as the libraries have not taken
/// their own options out of them, those are a `problem` too. The certificate authority may also be named by the
/// environment variable LOOMSTREET_CA_FILE.
[[nodiscard]] LaunchOptions readLaunchOptions(const QStringList& arguments);

/// What --help and --version print.
[[nodiscard]] QString helpText();
[[nodiscard]] QString versionText(const QString& version);

/// Trusts the authorities in the file in addition to the system's. False, with the reason in the log, when there is
/// none in it. Any thread.
[[nodiscard]] bool addCertificateAuthority(const QString& file);

} // namespace loom
