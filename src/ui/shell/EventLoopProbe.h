#pragma once

#include <QElapsedTimer>
#include <QString>

#include <vector>

namespace loom
{

/// Times every turn of the main thread's event loop, whatever it runs: from the return of one wait for events to the
/// beginning of the next. Waiting is where the loop of glib, which Qt's is built on here, calls out of the process.
/// One at a time; main thread.
class EventLoopProbe final
{
public:
    /// In nanoseconds; the beginning counts from the probe's own.
    struct Turn {
        qint64 begin = 0;
        qint64 duration = 0;
    };

    EventLoopProbe();
    EventLoopProbe(const EventLoopProbe&) = delete;
    EventLoopProbe& operator=(const EventLoopProbe&) = delete;
    ~EventLoopProbe();

    [[nodiscard]] const std::vector<Turn>& turns() const { return m_turns; }

    /// Count, quantiles and the ten longest turns, in words for a reader.
    [[nodiscard]] QString report() const;

    /// The wait is about to begin, or has ended. Called by the loop.
    void waitBegins();
    void waitEnded();

private:
    QElapsedTimer m_clock;
    qint64 m_begin = -1;
    std::vector<Turn> m_turns;
};

} // namespace loom
