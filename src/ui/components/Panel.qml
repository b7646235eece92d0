import QtQuick
import Loomstreet.Theme

// A panel that slides in from the end of the window over a scrim: the bag, footprints, notifications. It covers the
// page where too little would be left of it.
ModalScope {
    id: panel

    property string title
    property alias headerActions: actions.data
    property alias footer: footer.data
    default property alias body: body.data

    readonly property int panelWidth: width - Theme.layoutPanel < 560 ? width : Theme.layoutPanel

    name: title
    firstFocus: close

    Rectangle {
        id: surface

        objectName: "surface"
        anchors { top: parent.top; bottom: parent.bottom; right: parent.right }
        anchors.rightMargin: -Math.round(Theme.distancePanel * (1 - panel.progress))
        width: panel.panelWidth
        color: Theme.surface
        opacity: panel.progress

        Elevation {
            z: -1
            anchors.fill: parent
            anchors.bottomMargin: -blur // it does not end before the window does
            style: Theme.shadowPanel
            radius: 0
        }
        // What is beside the controls of a panel is still the panel.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => { wheel.accepted = true }
        }
        Item {
            id: header

            width: parent.width
            height: Math.max(Theme.layoutTopBar, words.implicitHeight + Theme.space2)

            TextLabel {
                id: words

                objectName: "title"
                anchors { left: parent.left; right: actions.left; verticalCenter: parent.verticalCenter }
                anchors.leftMargin: Theme.space3
                anchors.rightMargin: Theme.space1
                text: panel.title
                type: Theme.type.panel
                Accessible.role: Accessible.Heading
            }
            Row {
                id: actions

                anchors { right: close.left; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
                spacing: Theme.spaceHalf
            }
            IconButton {
                id: close

                objectName: "close"
                anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
                iconName: "xmark"
                text: qsTranslate("Loomstreet", "Close")
                shortcut: "Esc"
                onClicked: panel.closeAsked()
            }
            Hairline {
                anchors.bottom: parent.bottom
                width: parent.width
            }
        }
        Item {
            id: body

            objectName: "body"
            anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: footer.top }
            clip: true
        }
        Item {
            id: footer

            objectName: "footer"
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            height: childrenRect.height
        }
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: footer.top }
            visible: footer.height > 0
        }
    }
}
