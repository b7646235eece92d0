#pragma once

#include <QDateTime>
#include <QString>

namespace loom
{

/// What the run before left behind.
struct LastRun {
    QString words;       ///< why it ended, if it could say so
    QDateTime aliveLast; ///< invalid when that is not known
};

/// A small file that is open while the application runs, into which a dying process writes why: the text of an uncaught
/// exception or of a fatal message, or the name of a signal. When the file changed last is when the run was alive last.
/// One at a time in a process, owned by CrashReporter; main thread.
class LastWords final
{
public:
    static constexpr qsizetype maximumBytes = 4096;

    explicit LastWords(QString folder);
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;
    ~LastWords();

    /// Opens the file for this run, after reading what the one before left in it.
    [[nodiscard]] LastRun begin(const QDateTime& now);
    /// From now on whatever ends the process is written down, and then goes on to whoever listened before.
    void listen();
    /// The run is alive.
    void touch(const QDateTime& now) const;
    /// The run ends as it should: nothing is left of the file.
    void end();

private:
    void close();

    QString m_path;
    int m_file = -1;
    bool m_listens = false;
};

} // namespace loom
