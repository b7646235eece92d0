#include "Child.h"

namespace loom
{

Child::Child(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
{
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, arguments);
    if (!m_process.waitForStarted())
        ADD_FAILURE() << program.toStdString() << " does not start: " << m_process.errorString().toStdString();
}

Child::~Child()
{
    if (!m_isWatched)
        return;
    try {
        m_process.closeWriteChannel();
        EXPECT_EQ(exitCode(), 0) << m_process.program().toStdString();
    } catch (const std::exception& error) {
        ADD_FAILURE() << m_process.program().toStdString() << ": " << error.what();
        m_process.kill();
        m_process.waitForFinished();
    }
}

QString Child::line()
{
    waitUntil([this] { return m_process.canReadLine() || m_process.state() == QProcess::NotRunning; },
              "a program prints a line");
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

void Child::waitForLine(const QString& expected)
{
    QStringList read;
    while (read.isEmpty() || read.last() != expected) {
        if (m_process.state() == QProcess::NotRunning && !m_process.canReadLine()) {
            ADD_FAILURE() << "not among " << testing::PrintToString(read) << ": " << expected.toStdString();
            return;
        }
        read.append(line());
    }
}

int Child::exitCode()
{
    m_isWatched = false;
    waitUntil([this] { return m_process.state() == QProcess::NotRunning; }, "a program ends");
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString Child::rest()
{
    waitUntil([this] { return m_process.state() == QProcess::NotRunning; }, "a program ends");
    return QString::fromUtf8(m_process.readAllStandardOutput());
}

void Child::crash()
{
    m_isWatched = false;
    m_process.kill();
    waitUntil([this] { return m_process.state() == QProcess::NotRunning; }, "a program is gone");
}

} // namespace loom
