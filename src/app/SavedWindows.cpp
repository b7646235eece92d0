#include "app/SavedWindows.h"

#include "base/Clock.h"
#include "storage/DataFolder.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const QString file = QStringLiteral("lst_windows");

/// How long changes are gathered.
constexpr std::chrono::milliseconds gathering{1000};

} // namespace

SavedWindows::SavedWindows(DataFolder& folder, Clock& clock, std::function<std::vector<WindowState>()> windows)
    : m_folder(folder)
    , m_clock(clock)
    , m_windows(std::move(windows))
{
}

std::vector<WindowState> SavedWindows::load() const
{
    return m_folder.loadList(file, decodeWindowState);
}

void SavedWindows::noteChange()
{
    if (!m_hasEnded && !m_saving.isRunning())
        static_cast<void>(saveSoon());
}

QCoro::Task<> SavedWindows::saveSoon()
{
    const Work::Run run = m_saving.begin();
    co_await m_clock.sleep(gathering, run.stop());
    if (!run.isStopped())
        save();
}

void SavedWindows::save()
{
    m_saving.stop();
    const std::vector<WindowState> windows = m_windows();
    if (m_hasEnded || windows.empty())
        return;
    QJsonArray list;
    for (const WindowState& window : windows)
        list.append(toJson(window));
    m_folder.save(file, list);
}

void SavedWindows::saveAndEnd()
{
    save();
    end();
}

void SavedWindows::end()
{
    m_saving.stop();
    m_hasEnded = true;
}

} // namespace loom
