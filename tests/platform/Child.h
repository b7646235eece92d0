#pragma once

#include <QProcess>

namespace loom
{

/// A program that runs beside the tests and is told by its standard input when to end: by the end of it. One that does
/// not end then, or not well, fails the test.
class Child
{
public:
    Child(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    void write(const QByteArray& bytes) { m_process.write(bytes); }
    void closeInput() { m_process.closeWriteChannel(); }
    /// The next line it prints; waits for it.
    [[nodiscard]] QString line();
    /// Reads on until it prints this line.
    void waitForLine(const QString& line);
    /// Its exit code; waits for it.
    [[nodiscard]] int exitCode();
    /// Everything it printed and nobody read yet, once it has ended.
    [[nodiscard]] QString rest();
    /// Ends it without a warning, as a crash would.
    void crash();

private:
    QProcess m_process;
    bool m_isWatched = true; ///< nobody has asked yet how it ended
};

} // namespace loom
