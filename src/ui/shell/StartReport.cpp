#include "ui/shell/StartReport.h"

#include "base/Log.h"
#include "base/ProcessAge.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QQuickWindow>
#include <QTimer>
#include <QVariant>

#include <chrono>

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds fading{1200};

/// Whether the browser engine is part of this process.
bool isWebEngineMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("WebEngineCore");
}

} // namespace

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
        m_firstFrame = processAge().count();
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
    m_settled = processAge().count();
    if (!m_reportFile.isEmpty()) {
        writeReport(m_reportFile, QStringLiteral("{\"firstFrame\": %1, \"settled\": %2, \"webEngineMapped\": %3}\n")
                                      .arg(m_firstFrame)
                                      .arg(m_settled)
                                      .arg(QLatin1String(isWebEngineMapped() ? "true" : "false")));
    }
    if (m_screenshotFile.isEmpty()) {
        QCoreApplication::quit();
        return;
    }
    // Pictures fade in.
    QTimer::singleShot(fading, this, [this] {
        if (!m_window->grabWindow().save(m_screenshotFile))
            qCWarning(logApp) << "cannot save" << m_screenshotFile;
        QCoreApplication::quit();
    });
}

} // namespace loom
