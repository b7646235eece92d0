#pragma once

#include "app/WindowState.h"
#include "net/Work.h"

#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;

/// The windows as they were last, for the next start. What changes is written a moment later, so that also a killed
/// application comes back as it was. When the last window is closed it stays written: it is what is opened next. Main
/// thread; owned by the application model.
class SavedWindows
{
public:
    /// `windows` tells what is open now.
    SavedWindows(DataFolder& folder, Clock& clock, std::function<std::vector<WindowState>()> windows);

    /// Those that can be read.
    [[nodiscard]] std::vector<WindowState> load() const;
    /// Something in the windows is not as it was.
    void noteChange();
    /// Writes what is open, if anything is.
    void save();
    /// Writes it for the last time: the windows close because the application ends.
    void saveAndEnd();
    /// What is written stays, whatever happens to the windows.
    void end();
    [[nodiscard]] bool hasEnded() const { return m_hasEnded; }

private:
    [[nodiscard]] QCoro::Task<> saveSoon();

    DataFolder& m_folder;
    Clock& m_clock;
    std::function<std::vector<WindowState>()> m_windows;
    bool m_hasEnded = false;
    Work m_saving;
};

} // namespace loom
