#include "services/update/AppUpdater.h"

#include <QCoreApplication>

namespace loom
{

QString AppUpdater::title() const
{
    switch (m_phase) {
    case Phase::Checking:
        return QCoreApplication::translate("Loomstreet", "Checking for updates…");
    case Phase::UpToDate:
        return QCoreApplication::translate("Loomstreet", "You're up to date");
    case Phase::Downloading:
        return QCoreApplication::translate("Loomstreet", "Downloading LOOMSTREET %1").arg(version());
    case Phase::Verifying:
        return QCoreApplication::translate("Loomstreet", "Checking the download…");
    case Phase::Installing:
        return QCoreApplication::translate("Loomstreet", "Installing LOOMSTREET %1").arg(version());
    case Phase::Failed:
        return m_trouble && m_trouble->kind == Trouble::Kind::Check
                   ? QCoreApplication::translate("Loomstreet", "Couldn't check for updates")
                   : QCoreApplication::translate("Loomstreet", "Couldn't download the update");
    case Phase::Ready:
        if (!isInstalledByHand())
            return QCoreApplication::translate("Loomstreet", "Ready to install");
        if (m_isImageOpened)
            return QCoreApplication::translate("Loomstreet", "Install the update");
        break;
    case Phase::Idle:
        break;
    }
    if (m_release)
        return QCoreApplication::translate("Loomstreet", "%1 is ready to install").arg(version());
    return m_selfUpdateFailed ? QCoreApplication::translate("Loomstreet", "LOOMSTREET couldn't update itself")
                              : QString();
}

QString AppUpdater::text() const
{
    switch (m_phase) {
    case Phase::Checking:
    case Phase::Downloading:
    case Phase::Verifying:
        return {};
    case Phase::UpToDate:
        return QCoreApplication::translate("Loomstreet", "LOOMSTREET %1 is the newest version.")
            .arg(m_identity.version);
    case Phase::Installing:
        return QCoreApplication::translate("Loomstreet", "LOOMSTREET closes, and the new version takes its place.");
    case Phase::Failed:
        return m_trouble ? sentence(*m_trouble) : QString();
    case Phase::Ready:
        if (!isInstalledByHand())
            return QCoreApplication::translate(
                "Loomstreet", "Downloaded. Relaunch to finish, or it installs the next time you quit.");
        if (m_isImageOpened)
            return QCoreApplication::translate(
                "Loomstreet", "In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. "
                              "Then open LOOMSTREET again.");
        break;
    case Phase::Idle:
        break;
    }
    if (m_selfUpdateFailed)
        return QCoreApplication::translate(
            "Loomstreet", "LOOMSTREET couldn't replace itself on this Mac. Install the new version from the disk image "
                          "instead. It takes a few seconds.");
    if (m_release && !canUpdate())
        return QCoreApplication::translate("Loomstreet", "This copy of LOOMSTREET can't update itself.");
    return m_offer == UpdateOffer::Mandatory
               ? QCoreApplication::translate("Loomstreet", "The version you have is no longer supported.")
               : QString();
}

QString AppUpdater::settingsText() const
{
    if (m_phase == Phase::Ready && !isInstalledByHand())
        return QCoreApplication::translate(
            "Loomstreet", "The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you "
                          "quit.");
    return m_phase == Phase::Idle && !canUpdate() ? QString() : text(); // that it cannot, the settings say themselves
}

QString AppUpdater::sentence(Trouble trouble)
{
    switch (trouble.kind) {
    case Trouble::Kind::Check:
        return QCoreApplication::translate("Loomstreet",
                                           "Couldn't check for updates. Check your connection and try again.");
    case Trouble::Kind::Http:
        return QCoreApplication::translate("Loomstreet", "The download failed (HTTP %1).").arg(trouble.status);
    case Trouble::Kind::Changed:
        return QCoreApplication::translate("Loomstreet",
                                           "The download was incomplete or changed on the way. Try again.");
    case Trouble::Kind::Unreadable:
        return QCoreApplication::translate("Loomstreet", "The downloaded file couldn't be read.");
    case Trouble::Kind::NotSigned:
        return QCoreApplication::translate("Loomstreet",
                                           "The download isn't signed by LOOMSTREET, so it wasn't opened.");
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
        return QCoreApplication::translate("Loomstreet", "Check for Updates…");
    case Action::Download:
        return m_phase == Phase::Failed ? QCoreApplication::translate("Loomstreet", "Try again")
                                        : QCoreApplication::translate("Loomstreet", "Download and Install");
    case Action::Relaunch:
        return QCoreApplication::translate("Loomstreet", "Relaunch to Update");
    case Action::OpenImage:
        return QCoreApplication::translate("Loomstreet", "Open Disk Image");
    }
    return {};
}

} // namespace loom
