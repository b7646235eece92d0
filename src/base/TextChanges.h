#pragma once

#include <QObject>

namespace loom
{

/// Tells that the window's texts read otherwise now, for whoever keeps one that was looked up. One per process; main
/// thread.
class TextChanges final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void changed();
};

} // namespace loom
