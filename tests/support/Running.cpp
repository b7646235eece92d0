#include "support/Running.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <stdexcept>

namespace loom
{

void waitUntil(const std::function<bool()>& isMet, const std::string& what)
{
    const QDeadlineTimer deadline(guard);
    QTimer wake; // so that an event loop in which nothing happens comes back
    wake.start(guard);
    while (!isMet()) {
        if (deadline.hasExpired())
            throw std::runtime_error("waited in vain until " + what);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void drainEvents()
{
    bool isIdle = false;
    QTimer idle; // fires once everything that came before it is done
    QObject::connect(&idle, &QTimer::timeout, &idle, [&isIdle] { isIdle = true; });
    idle.start(0);
    waitUntil([&isIdle] { return isIdle; }, "the event loop is idle");
}

} // namespace loom
