#pragma once

#include "platform/Activation.h"

class QWindow;

namespace loom
{

/// Brings windows forward in the name of the click that asked for it: without its token a desktop takes a window that
/// comes to the front by itself for one that steals the focus. Main thread.
class WindowActivation
{
public:
    /// The launch in whose name the next window comes forward.
    void follow(const Activation& activation);

    void activate(QWindow& window);

    /// When the shopper asked for the launch, in the X server's time; 0 where the identifier does not say.
    [[nodiscard]] static quint32 timeOf(const QString& startupId);

private:
    QString m_startupId;
};

} // namespace loom
