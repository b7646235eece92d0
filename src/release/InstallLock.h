#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace loom
{

/// Keeps one process at a time at a piece of the work on an installation. The kernel gives it up when the process ends,
/// however it ends, and programs started meanwhile do not inherit it. The lock files lie in the working folder and are
/// never removed.
class InstallLock
{
public:
    enum class Work {
        /// One helper program at a time: held from its start until it starts the application again.
        Helping, ///< "install.lock"
        /// Whoever writes or removes the trial file, or exchanges the folders it names. The application holds it while
        /// it is on trial. The helper takes it, after the process it waits for has ended, before it writes the trial
        /// file ("busy" when it cannot), holds it until the result is written, and lets go of it before it starts the
        /// application again.
        Trial, ///< "install-trial.lock"
    };

    /// Never waits: nothing when another process, or another lock of this one, is at the work, or when the working
    /// folder is not there or cannot be written.
    [[nodiscard]] static std::optional<InstallLock> take(const QString& workingFolder, Work work);

    InstallLock(InstallLock&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    InstallLock& operator=(InstallLock&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    InstallLock(const InstallLock&) = delete;
    InstallLock& operator=(const InstallLock&) = delete;
    ~InstallLock();

private:
    explicit InstallLock(int descriptor)
        : m_descriptor(descriptor)
    {
    }

    int m_descriptor;
};

} // namespace loom
