#include "base/Log.h"
#include "updater/Helper.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdio>

using namespace loom;

int main(int argc, char** argv)
{
    installRedactingLog();
    // The desktop may have let go of whatever started us; a full disk is told by the call that meets it.
    for (const int signal : {SIGHUP, SIGPIPE, SIGXFSZ})
        std::signal(signal, SIG_IGN);
    const QString workingFolder = argc == 2 ? QFile::decodeName(argv[1]) : QString();
    if (!QDir::isAbsolutePath(workingFolder)) {
        std::fputs("usage: loomstreet-updater WORKINGFOLDER\n", stderr);
        return static_cast<int>(HelperEnd::Usage);
    }
    return static_cast<int>(help(workingFolder));
}
