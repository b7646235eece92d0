import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Calls for a new version of the application, and fills while that is downloaded. The panel below it comes, too, when
// it is asked for and there is nothing to call for: it hangs from the end of the bar then.
Pressable {
    id: button

    required property AppUpdater updater
    required property WindowSession session
    property bool narrow: false

    readonly property bool wanted: session.isUpdateOpen
    readonly property bool downloads: updater.phase === AppUpdater.Downloading
    readonly property bool troubled: updater.phase === AppUpdater.Failed || updater.selfUpdateFailed
    readonly property color ink: troubled ? Theme.warning : Theme.accent
    readonly property color tint: troubled ? Theme.warningTint : Theme.accentTint

    // The panel is gone, and the keyboard is nowhere.
    signal focusLeft()

    function follow(): void {
        if (wanted && panel.status === Loader.Null)
            panel.setSource("UpdatePanel.qml", { parent: button, updater: updater, x: Qt.binding(() => panel.start),
                                                 y: Theme.targetIcon + Theme.spaceHalf })
        if (wanted) {
            panel.below = visible
            panel.made.open()
        } else if (panel.made) {
            panel.made.close()
        }
    }

    objectName: "update"
    visible: updater.isCalling
    text: qsTranslate("Loomstreet", "Update")
    horizontalPadding: narrow ? 0 : Theme.space1_5
    onClicked: session.isUpdateOpen = !session.isUpdateOpen
    onWantedChanged: follow()
    Component.onCompleted: follow()

    contentItem: Item {
        implicitWidth: button.narrow ? Theme.targetIcon : sign.width + Theme.space1 + words.implicitWidth
        implicitHeight: Math.max(sign.height, words.implicitHeight)

        Icon {
            id: sign

            x: button.narrow ? Math.round((parent.width - width) / 2) : button.mirrored ? parent.width - width : 0
            anchors.verticalCenter: parent.verticalCenter
            name: button.troubled ? "warning" : "arrow.down.circle"
            size: button.narrow ? 20 : 16
            color: button.ink
        }
        TextLabel {
            id: words

            anchors { left: sign.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
            visible: !button.narrow
            text: button.text
            type: Theme.type.label
            color: button.ink
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        implicitHeight: Theme.targetIcon
        radius: Theme.radiusControl
        color: button.down ? Theme.pressed : button.wanted || button.hovered ? Theme.hover : button.downloads ? "transparent" : button.tint

        // The whole shape filled, of which what is there already shows.
        Item {
            objectName: "downloaded"
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
            width: parent.width * Math.max(0, Math.min(1, button.updater.progress))
            visible: button.downloads
            clip: true

            Rectangle {
                anchors.left: parent.left
                width: button.width
                height: parent.height
                radius: Theme.radiusControl
                color: Qt.alpha(button.ink, 0.24)
            }
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.radiusControl
            color: "transparent"
            border { width: Theme.strokeHairline; color: button.ink }
        }
        FocusRing { target: button }
    }

    Accessible.description: updater.title

    HoverToolTip {
        control: button
        text: button.wanted ? "" : button.updater.title
    }
    // Made when it is first asked for.
    Loader {
        id: panel

        readonly property var made: item
        property bool below: false // where it came it stays, though the button comes meanwhile

        readonly property real start: {
            const width = made?.width ?? 0
            if (below)
                return button.mirrored ? 0 : button.width - width
            return (button.mirrored ? 0 : (button.parent?.width ?? 0) - width) - button.x
        }
    }
    Connections {
        target: panel.item
        function onAboutToHide(): void { button.session.isUpdateOpen = false }
        function onClosed(): void {
            const holder = button.Window.activeFocusItem
            if (holder === null || holder === button.Window.contentItem)
                button.focusLeft()
        }
    }
}
