pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// How and of what the shopper is told.
SettingsPage {
    id: page

    required property AppModel app

    readonly property NotificationSettings switches: app.notificationSettings

    title: qsTranslate("Loomstreet", "Notifications")

    Column {
        width: page.width

        SwitchRow {
            objectName: "inApp"
            width: parent.width
            text: qsTranslate("Loomstreet", "In the window")
            note: qsTranslate("Loomstreet", "A banner at its top, for a few seconds.")
            checked: page.switches.isInAppOn
            onToggled: page.switches.isInAppOn = checked
        }
        SwitchRow {
            objectName: "desktop"
            width: parent.width
            text: qsTranslate("Loomstreet", "On the desktop")
            note: qsTranslate("Loomstreet", "Where your desktop shows what applications tell, also while no window is open.")
            checked: page.switches.isDesktopOn
            onToggled: page.switches.isDesktopOn = checked
        }
        SwitchRow {
            objectName: "sound"
            width: parent.width
            enabled: page.switches.isDesktopOn
            text: qsTranslate("Loomstreet", "With a sound")
            checked: page.switches.isSoundOn
            onToggled: page.switches.isSoundOn = checked
        }
        SwitchRow {
            objectName: "badge"
            width: parent.width
            text: qsTranslate("Loomstreet", "Count on the application's icon")
            note: qsTranslate("Loomstreet", "How much of it you have not read.")
            checked: page.switches.isBadgeOn
            onToggled: page.switches.isBadgeOn = checked
        }
    }
    PushButton {
        objectName: "preview"
        anchors.left: parent.left
        size: "small"
        iconName: "bell.badge"
        text: qsTranslate("Loomstreet", "Show an example")
        onClicked: page.app.notifier.deliverPreview()
    }
    Column {
        width: page.width

        Overline {
            width: parent.width
            height: Theme.layoutSidebarHeading
            verticalAlignment: Text.AlignVCenter
            words: qsTranslate("Loomstreet", "What about")
            color: Theme.muted
            Accessible.role: Accessible.Heading
        }
        Repeater {
            model: page.switches

            SwitchRow {
                required property int index
                required property string name
                required property string title
                required property string description
                required property bool isOn

                objectName: "category." + name
                width: parent?.width ?? 0
                text: title
                note: description
                checked: isOn
                onToggled: page.switches.setOn(index, checked)
            }
        }
    }
}
