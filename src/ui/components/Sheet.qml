import QtQuick
import Loomstreet.Theme

// A sheet in the middle of the window over a deeper scrim: signing in, and other things that want all attention.
ModalScope {
    id: sheet

    property size extent: Theme.layoutSignInSheet
    default property alias body: body.data

    duration: Theme.durationSheet
    scrimOpacity: Theme.alphaScrimSheet
    firstFocus: close

    Rectangle {
        id: surface

        objectName: "surface"
        anchors.centerIn: parent
        anchors.verticalCenterOffset: Math.round(Theme.distanceSheet * (1 - sheet.progress))
        width: Math.min(sheet.extent.width, parent.width - 2 * Theme.space4)
        height: Math.min(sheet.extent.height, parent.height - 2 * Theme.space4)
        radius: Theme.radiusPanel
        color: Theme.surface
        opacity: sheet.progress

        Elevation {
            z: -1
            anchors.fill: parent
            style: Theme.shadowWindow
            radius: surface.radius
        }
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => { wheel.accepted = true }
        }
        Item {
            id: body

            objectName: "body"
            anchors.fill: parent
        }
        IconButton {
            id: close

            objectName: "close"
            anchors { right: parent.right; top: parent.top; margins: Theme.space2 }
            iconName: "xmark"
            text: qsTranslate("Loomstreet", "Close")
            shortcut: "Esc"
            onClicked: sheet.closeAsked()
        }
    }
}
