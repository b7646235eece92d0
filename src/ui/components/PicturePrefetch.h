#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <chrono>

namespace loom
{

class PictureFetcher;

/// Fetches ahead what the shopper is about to look at: the first pictures of a piece that the pointer rests on, at the
/// size its page will ask for. It works while no picture on screen is waited for, a few at a time, and drops what it
/// has not done when the shopper goes elsewhere. One per engine; main thread, the work is done on another.
class PicturePrefetch final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// Nothing is loaded before it is looked at where this is off.
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    /// How many pixels wide the first pictures of a piece will be shown; 0 while nobody knows.
    Q_PROPERTY(int pageWidth READ pageWidth WRITE setPageWidth NOTIFY pageWidthChanged)

public:
    /// A pointer that stays this long means the piece it is on.
    static constexpr std::chrono::milliseconds rest{150};
    static constexpr int maximumRunning = 4;
    static constexpr qsizetype maximumExpected = 8;

    explicit PicturePrefetch(QQmlEngine& engine, QObject* parent = nullptr);
    ~PicturePrefetch() override;
    static PicturePrefetch* create(QQmlEngine* engine, QJSEngine*) { return new PicturePrefetch(*engine); }

    [[nodiscard]] bool isEnabled() const { return m_isEnabled; }
    void setEnabled(bool isEnabled);
    [[nodiscard]] int pageWidth() const { return m_pageWidth; }
    void setPageWidth(int pixels);

    /// The piece of these pictures may be opened next.
    Q_INVOKABLE void expect(const QStringList& pictures);
    /// It will not be; nothing happens when another is expected by now.
    Q_INVOKABLE void forget(const QStringList& pictures);
    /// A picture of a page begins to be waited for, or is waited for no longer.
    Q_INVOKABLE void beginWaiting() { ++m_awaited; }
    Q_INVOKABLE void endWaiting();
    /// Something is being fetched, or about to be.
    [[nodiscard]] Q_INVOKABLE bool isBusy() const { return m_rest.isActive() || !m_queue.isEmpty() || m_running > 0; }

Q_SIGNALS:
    void enabledChanged();
    void pageWidthChanged();

private:
    void begin();
    void proceed();
    void drop();

    QQmlEngine& m_engine;
    bool m_isEnabled = true;
    int m_pageWidth = 0;
    int m_awaited = 0; ///< pictures of pages
    int m_running = 0;
    QStringList m_expected;
    QList<QUrl> m_queue;
    QTimer m_rest;
    QThread m_thread;
    PictureFetcher* m_fetcher = nullptr; ///< on the thread, and ends with it
};

} // namespace loom
