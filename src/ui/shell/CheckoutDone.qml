pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The order was placed: its number, what was bought, and the way back to the shop.
FocusScope {
    id: done

    required property CheckoutModel checkout

    signal closeAsked()

    objectName: "done"

    Component.onCompleted: button.forceActiveFocus(Qt.OtherFocusReason)
    Keys.onEscapePressed: closeAsked()

    Accessible.role: Accessible.Dialog
    Accessible.name: done.checkout.completionText

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => { wheel.accepted = true }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.paper
        opacity: 0.85
    }
    FloatingSurface {
        anchors.centerIn: parent
        width: Math.min(480 * Theme.textScale, parent.width - 2 * Theme.space2)
        height: column.implicitHeight + 2 * Theme.space4
        radius: Theme.radiusPanel

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Theme.space4 }
            spacing: Theme.space2

            IconDisc {
                anchors.horizontalCenter: parent.horizontalCenter
                implicitWidth: 56
                iconName: "checkmark"
                iconSize: 24
                tone: "success"
            }
            TextLabel {
                objectName: "completion"
                width: parent.width
                text: done.checkout.completionText
                type: Theme.type.section
                wrapMode: Text.Wrap
                maximumLineCount: 4
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
            }
            Column {
                width: parent.width

                TextLabel {
                    objectName: "summary"
                    width: parent.width
                    text: done.checkout.summaryText
                    color: Theme.muted
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
                TextLabel {
                    width: parent.width
                    text: qsTranslate("Loomstreet", "Track it any time under Orders.")
                    color: Theme.muted
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Theme.space1
                visible: done.checkout.pictures.length > 0

                Repeater {
                    model: done.checkout.pictures

                    Picture {
                        required property string modelData
                        width: 56
                        height: implicitHeight
                        address: modelData
                        backdrop: Theme.surface
                    }
                }
            }
            PushButton {
                id: button

                objectName: "doneButton"
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.max(200, implicitWidth)
                kind: "primary"
                size: "primary"
                focus: true
                text: qsTranslate("Loomstreet", "Done")
                onClicked: done.closeAsked()
            }
        }
    }
}
