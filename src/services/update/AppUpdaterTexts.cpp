#include "services/update/AppUpdater.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

QString translated(const char* english)
{
    return QCoreApplication::translate("Loomstreet", english);
}

} // namespace

QString AppUpdater::title() const
{
    switch (m_phase) {
    case Phase::Checking:
        return translated("Checking for updates…");
    case Phase::UpToDate:
        return translated("You're up to date");
    case Phase::Downloading:
        return translated("Downloading LOOMSTREET %1").arg(version());
    case Phase::Verifying:
        return translated("Checking the download…");
    case Phase::Installing:
        return translated("Installing LOOMSTREET %1").arg(version());
    case Phase::Failed:
        return m_trouble && m_trouble->kind == Trouble::Kind::Check ? translated("Couldn't check for updates")
                                                                    : translated("Couldn't download the update");
    case Phase::Ready:
        if (!isInstalledByHand())
            return translated("Ready to install");
        if (m_isImageOpened)
            return translated("Install the update");
        break;
    case Phase::Idle:
        break;
    }
    if (m_release)
        return translated("%1 is ready to install").arg(version());
    return m_selfUpdateFailed ? translated("LOOMSTREET couldn't update itself") : QString();
}

QString AppUpdater::text() const
{
    switch (m_phase) {
    case Phase::Checking:
    case Phase::Downloading:
    case Phase::Verifying:
        return {};
    case Phase::UpToDate:
        return translated("LOOMSTREET %1 is the newest version.").arg(m_identity.version);
    case Phase::Installing:
        return translated("LOOMSTREET closes, and the new version takes its place.");
    case Phase::Failed:
        return m_trouble ? sentence(*m_trouble) : QString();
    case Phase::Ready:
        if (!isInstalledByHand())
            return translated("Downloaded. Relaunch to finish, or it installs the next time you quit.");
        if (m_isImageOpened)
            return translated("In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. "
                              "Then open LOOMSTREET again.");
        break;
    case Phase::Idle:
        break;
    }
    if (m_selfUpdateFailed)
        return translated("LOOMSTREET couldn't replace itself on this Mac. Install the new version from the disk image "
                          "instead. It takes a few seconds.");
    if (m_release && !canUpdate())
        return translated("This copy of LOOMSTREET can't update itself.");
    return m_offer == UpdateOffer::Mandatory ? translated("The version you have is no longer supported.") : QString();
}

QString AppUpdater::settingsText() const
{
    if (m_phase == Phase::Ready && !isInstalledByHand())
        return translated("The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you "
                          "quit.");
    return m_phase == Phase::Idle && !canUpdate() ? QString() : text(); // that it cannot, the settings say themselves
}

QString AppUpdater::sentence(Trouble trouble)
{
    switch (trouble.kind) {
    case Trouble::Kind::Check:
        return translated("Couldn't check for updates. Check your connection and try again.");
    case Trouble::Kind::Http:
        return translated("The download failed (HTTP %1).").arg(trouble.status);
    case Trouble::Kind::Changed:
        return translated("The download was incomplete or changed on the way. Try again.");
    case Trouble::Kind::Unreadable:
        return translated("The downloaded file couldn't be read.");
    case Trouble::Kind::NotSigned:
        return translated("The download isn't signed by LOOMSTREET, so it wasn't opened.");
    case Trouble::Kind::Stopped:
        break;
    }
    return {};
}

QString AppUpdater::version() const
{
    return m_release ? m_release->latest : QString();
}

QString AppUpdater::notes() const
{
    return m_release && m_identity.languageCode ? m_release->notesIn(m_identity.languageCode()) : QString();
}

QString AppUpdater::actionText() const
{
    switch (action()) {
    case Action::None:
        break;
    case Action::Check:
        return translated("Check for Updates…");
    case Action::Download:
        return m_phase == Phase::Failed ? translated("Try again") : translated("Download and Install");
    case Action::Relaunch:
        return translated("Relaunch to Update");
    case Action::OpenImage:
        return translated("Open Disk Image");
    }
    return {};
}

} // namespace loom
