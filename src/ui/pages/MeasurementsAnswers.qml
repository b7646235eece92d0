import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What can be done with measurements; the way to forget them stands below where there is no room beside.
Item {
    id: answers

    property bool kept: false // on this computer

    readonly property bool crowded: kept && buttons.width + Theme.space2 + forget.implicitWidth > width

    signal sendAsked()
    signal cancelAsked()
    signal forgetAsked()

    implicitHeight: buttons.height + (crowded ? Theme.space1 + forget.height : 0)

    Row {
        id: buttons

        anchors.left: parent.left
        spacing: Theme.space1

        PushButton {
            objectName: "sendMeasurements"
            kind: "primary"
            text: qsTranslate("Loomstreet", "Send to Mira")
            onClicked: answers.sendAsked()
        }
        PushButton {
            objectName: "cancelMeasurements"
            kind: "quiet"
            text: qsTranslate("Loomstreet", "Cancel")
            onClicked: answers.cancelAsked()
        }
    }
    LinkButton {
        id: forget

        objectName: "forgetMeasurements"
        anchors { left: answers.crowded ? parent.left : undefined; right: answers.crowded ? undefined : parent.right }
        y: answers.crowded ? parent.height - height : Math.round((parent.height - height) / 2)
        visible: answers.kept
        text: qsTranslate("Loomstreet", "Delete from this computer")
        onClicked: answers.forgetAsked()
    }
}
