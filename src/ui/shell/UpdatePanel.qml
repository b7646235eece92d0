import QtQuick
import QtQuick.Templates as T
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What there is to say of a new version of the application, below the button that calls for it.
Popover {
    id: panel

    required property AppUpdater updater

    readonly property real room: (parent?.Window.height ?? 600) - 2 * Theme.layoutTopBar - 2 * Theme.space3

    // The keyboard waits at the cross while there is nothing else to press.
    property bool waits: false

    function passFocus(): void {
        if (!opened || !contentItem.activeFocus)
            return
        if (!state.acts && !waits) {
            close.forceActiveFocus(Qt.OtherFocusReason)
            waits = true
        } else if (state.acts && waits) {
            waits = false
            state.takeFocus()
        }
    }

    objectName: "updatePanel"
    name: updater.title
    padding: Theme.space3
    // The button itself closes it with its click.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    contentWidth: Math.min(376 * Theme.textScale, (parent?.Window.width ?? 600) - 2 * (Theme.space3 + Theme.space1))
    contentHeight: Math.min(state.implicitHeight, room)
    onOpened: {
        close.forceActiveFocus(Qt.PopupFocusReason)
        waits = true
        passFocus()
        state.tell()
    }

    contentItem: FocusScope {
        focus: true

        Flickable {
            id: flick

            anchors.fill: parent
            contentHeight: state.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: interactive

            FocusFollower { flickable: flick }

            UpdateState {
                id: state

                width: flick.width
                updater: panel.updater
                titleInset: close.width
                notesHeight: Math.max(96, Math.min(200, panel.room - 240))
                onActsChanged: later.start()
                onSkipped: panel.close()
            }
        }
        IconButton {
            id: close

            objectName: "closeUpdate"
            anchors { right: parent.right; rightMargin: -Theme.space1; top: parent.top; topMargin: 2 }
            iconName: "xmark"
            text: qsTranslate("Loomstreet", "Close")
            shortcut: "Esc"
            showsToolTip: !panel.waits
            onClicked: panel.close()
            onActiveFocusChanged: if (!activeFocus) panel.waits = false
        }
        // By then the button has come, or gone.
        Timer {
            id: later

            interval: 0
            onTriggered: panel.passFocus()
        }
    }
}
