#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <vector>

namespace loom
{

/// Times every turn of the main thread's event loop, whatever it runs, from waking to going back to sleep.
class EventLoopProbe final : public QObject
{
    Q_OBJECT

public:
    /// One turn, in nanoseconds since the probe began and in nanoseconds.
    struct Turn {
        qint64 begin = 0;
        qint64 duration = 0;
    };

    explicit EventLoopProbe(QObject* parent = nullptr);

    [[nodiscard]] const std::vector<Turn>& turns() const { return m_turns; }

    /// Count, quantiles and the ten longest turns, in words for a reader.
    [[nodiscard]] QString report() const;

private:
    QElapsedTimer m_clock;
    qint64 m_wokenAt = -1;
    std::vector<Turn> m_turns;
};

} // namespace loom
