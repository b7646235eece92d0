#include "ui/shell/StartReport.h"

#include "base/Log.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QQuickWindow>
#include <QVariant>

#include <ctime>
#include <unistd.h>

namespace loom
{

qint64 millisecondsSinceStart()
{
    // The kernel counts a process's start in clock ticks since boot: field 22 of /proc/self/stat, see proc(5). The
    // second field may hold blanks, and ends with the last parenthesis.
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const qint64 started = fields.value(19).toLongLong() * 1000 / sysconf(_SC_CLK_TCK);
    return now.tv_sec * 1000 + now.tv_nsec / 1000000 - started;
}

void writeReport(const QString& name, const QString& text)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qCWarning(logApp) << "cannot write" << name << file.errorString();
}

StartReport::StartReport(QString reportFile, QString screenshotFile, QObject* parent)
    : QObject(parent)
    , m_reportFile(std::move(reportFile))
    , m_screenshotFile(std::move(screenshotFile))
{
}

void StartReport::watch(QQuickWindow* window)
{
    if (!window || (m_reportFile.isEmpty() && m_screenshotFile.isEmpty()))
        return;
    m_window = window;
    connect(window, &QQuickWindow::frameSwapped, this, &StartReport::look);
}

void StartReport::look()
{
    if (m_firstFrame < 0)
        m_firstFrame = millisecondsSinceStart();
    if (m_settled >= 0 || !m_window->property("settled").toBool()) {
        m_window->update();
        return;
    }
    // What has just settled is on the screen with the next frame.
    m_settled = 0;
    disconnect(m_window, &QQuickWindow::frameSwapped, this, &StartReport::look);
    connect(m_window, &QQuickWindow::frameSwapped, this, &StartReport::finish);
    m_window->update();
}

void StartReport::finish()
{
    disconnect(m_window, &QQuickWindow::frameSwapped, this, &StartReport::finish);
    m_settled = millisecondsSinceStart();
    if (!m_reportFile.isEmpty()) {
        writeReport(m_reportFile,
                    QStringLiteral("{\"firstFrame\": %1, \"settled\": %2}\n").arg(m_firstFrame).arg(m_settled));
    }
    if (!m_screenshotFile.isEmpty() && !m_window->grabWindow().save(m_screenshotFile))
        qCWarning(logApp) << "cannot save" << m_screenshotFile;
    QCoreApplication::quit();
}

} // namespace loom
