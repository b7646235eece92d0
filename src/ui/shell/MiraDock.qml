import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The stylist beside the page, or over it where too little of it would be left.
FocusScope {
    id: dock

    required property AppModel app
    required property WindowSession session

    readonly property bool covers: width > Theme.layoutMiraDock

    function close(): void { session.isMiraDocked = false }

    objectName: "miraDock"
    onVisibleChanged: if (visible) chat.takeFocus()
    Keys.onEscapePressed: close()

    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    // What is beside her controls is still she.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => { wheel.accepted = true }
    }
    MiraChat {
        id: chat

        anchors { fill: parent; leftMargin: Theme.strokeHairline }
        focus: true
        app: dock.app
        session: dock.session
        docked: true
        shown: dock.visible
        onDeparted: if (dock.covers) dock.close()

        places: [
            IconButton {
                objectName: "expandMira"
                iconName: "expand"
                text: qsTranslate("Loomstreet", "Open in a Window")
                onClicked: {
                    dock.close()
                    dock.app.showMira()
                }
            },
            IconButton {
                objectName: "closeMira"
                iconName: "xmark"
                text: qsTranslate("Loomstreet", "Close")
                shortcut: "Ctrl Shift M"
                onClicked: dock.close()
            }
        ]
    }
    Hairline {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: Theme.strokeHairline
    }
}
