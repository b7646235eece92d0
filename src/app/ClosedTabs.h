#pragma once

#include "app/WindowState.h"

#include <QObject>

namespace loom
{

class DataFolder;

/// The tabs that were closed last, for those who want one back, also after a restart. Main thread; owned by the
/// application model.
class ClosedTabs final : public QObject
{
    Q_OBJECT

public:
    /// How many are kept.
    static constexpr std::size_t maximum = 25;

    explicit ClosedTabs(DataFolder& folder, QObject* parent = nullptr);

    [[nodiscard]] bool isEmpty() const { return m_tabs.empty(); }
    /// A tab that shows nothing but the page tabs open with is not kept.
    void add(const TabState& tab);
    /// The tab that was closed last; it is no longer among them.
    [[nodiscard]] std::optional<TabState> take();

Q_SIGNALS:
    void changed();

private:
    void save();

    DataFolder& m_folder;
    std::vector<TabState> m_tabs; ///< the last one closed last
};

} // namespace loom
