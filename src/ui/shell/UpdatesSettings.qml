import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Which version runs, and how newer ones come.
SettingsPage {
    id: page

    required property AppModel app

    readonly property AppUpdater updater: app.updater
    readonly property bool automatic: app.remoteConfig.updatesAutomatically
    readonly property bool checked: !isNaN(updater.lastChecked.getTime())
    readonly property bool busy: updater.phase === AppUpdater.Downloading || updater.phase === AppUpdater.Verifying || updater.phase === AppUpdater.Installing

    title: qsTranslate("Loomstreet", "Updates")

    Column {
        width: page.width

        FactRow {
            objectName: "running"
            width: parent.width
            divided: false
            iconName: "info"
            title: qsTranslate("Loomstreet", "LOOMSTREET %1").arg(page.app.version)
            note: page.checked ? qsTranslate("Loomstreet", "Last checked: %1").arg(page.app.moment(page.updater.lastChecked))
                               : qsTranslate("Loomstreet", "Not checked yet")
        }
        FactRow {
            objectName: "automatic"
            width: parent.width
            iconName: page.updater.canUpdate && page.automatic ? "clock" : "pause.circle"
            title: !page.updater.canUpdate ? qsTranslate("Loomstreet", "This copy of LOOMSTREET can't update itself.")
                 : page.automatic ? qsTranslate("Loomstreet", "LOOMSTREET looks for new versions by itself.")
                                  : qsTranslate("Loomstreet", "LOOMSTREET does not look for new versions by itself for now.")
            note: !page.updater.canUpdate ? qsTranslate("Loomstreet", "New versions come from where you have it from. You can still check here.")
                : page.automatic ? qsTranslate("Loomstreet", "When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.")
                                 : qsTranslate("Loomstreet", "The store has paused it. You can still check here.")
        }
        Hairline { width: parent.width }
    }
    UpdateState {
        objectName: "updateState"
        width: page.width
        visible: page.updater.title !== ""
        updater: page.updater
        roomy: true
        onSkipped: check.forceActiveFocus(Qt.OtherFocusReason)
        onFocusLost: check.forceActiveFocus(Qt.OtherFocusReason)
    }
    PushButton {
        id: check

        objectName: "checkForUpdates"
        anchors.left: parent.left
        // It keeps the keyboard meanwhile.
        locked: busy || page.busy
        opacity: page.busy ? Theme.alphaDisabled : 1
        busy: page.updater.phase === AppUpdater.Checking
        text: qsTranslate("Loomstreet", "Check for Updates…")
        onClicked: page.updater.checkByHand()
    }
}
