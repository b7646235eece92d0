import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Over a conversation whose latest message is out of sight: the way down to it.
FloatingSurface {
    id: jump

    property int count: 0 // of messages that arrived there

    signal clicked()

    implicitWidth: button.implicitWidth + Theme.space1
    implicitHeight: button.implicitHeight + Theme.space1
    radius: Theme.radiusPanel

    PushButton {
        id: button

        objectName: "jumpToLatest"
        anchors.centerIn: parent
        kind: "quiet"
        size: "small"
        iconName: "arrow.down"
        text: jump.count === 0 ? qsTranslate("Loomstreet", "Jump to latest")
                               : qsTranslate("Loomstreet", "%Ln new messages", "", jump.count)
        accessibleName: jump.count === 0 ? text : text + ", " + qsTranslate("Loomstreet", "Jump to latest")
        onClicked: jump.clicked()
    }
}
