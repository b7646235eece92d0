#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QQuickWindow;

namespace loom
{

/// Times the start of the process up to its first frame and to its first settled page, and saves a picture of that
/// page, for those who asked on the command line. Main thread.
class StartReport final : public QObject
{
    Q_OBJECT

public:
    /// An empty file name asks for nothing.
    StartReport(QString reportFile, QString screenshotFile, QObject* parent = nullptr);

    void watch(QQuickWindow* window);

private:
    Q_SLOT void look();
    void finish();

    QString m_reportFile;
    QString m_screenshotFile;
    QQuickWindow* m_window = nullptr;
    qint64 m_firstFrame = -1;
    qint64 m_settled = -1;
};

void writeReport(const QString& file, const QString& text);

} // namespace loom
