import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A file of a conversation: a picture as one, anything else by its name. A press opens it in the browser.
Pressable {
    id: file

    property var attachment: ({}) // a SupportAttachment
    property int room: 280
    property bool sending: false

    readonly property bool openable: attachment.isOpenable ?? false
    readonly property bool isPicture: openable && (attachment.isPicture ?? false) && !picture.broken
    readonly property string name: (attachment.name ?? "") !== "" ? attachment.name : qsTranslate("Loomstreet", "File")
    // Neither a stripe nor a tower, whatever was sent.
    readonly property real ratio: attachment.width > 0 && attachment.height > 0
                                  ? Math.max(0.6, Math.min(attachment.width / attachment.height, 1.8)) : 0.75

    width: isPicture ? Math.min(room, Math.round(280 * Math.min(1, ratio * 0.95))) : Math.min(room, words.implicitWidth + icon.width + 3 * Theme.space1_5)
    height: isPicture ? Math.round(width / ratio) : Math.max(Theme.targetPrimary, words.implicitHeight + 2 * Theme.space1)
    enabled: openable
    opacity: 1
    accessibleName: isPicture ? qsTranslate("Loomstreet", "Picture: %1").arg(name) : name

    contentItem: Item {
        Picture {
            id: picture

            anchors.fill: parent
            visible: file.isPicture
            address: file.openable && file.attachment.isPicture ? file.attachment.url : ""
            ratio: file.ratio
            backdrop: Theme.surface
        }
        Icon {
            id: icon

            anchors { left: parent.left; leftMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            visible: !file.isPicture
            name: file.attachment.isPicture ? "photo" : "document"
            size: 20
            color: Theme.muted
        }
        TextLabel {
            id: words

            objectName: "name"
            anchors { left: icon.right; leftMargin: Theme.space1; right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            visible: !file.isPicture
            text: file.name
            type: Theme.type.label
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        color: file.isPicture ? Qt.alpha(Theme.hover, 0) : file.down ? Theme.pressed : file.hovered ? Theme.hover : Theme.surface
        radius: file.isPicture ? Theme.radiusPicture : Theme.radiusPanel
        border.width: file.isPicture ? 0 : Theme.strokeHairline
        border.color: Theme.hairline

        FocusRing {
            target: file
            controlRadius: file.isPicture ? Theme.radiusPicture : Theme.radiusPanel
        }
    }

    Accessible.description: openable ? qsTranslate("Loomstreet", "Opens in the browser") : ""

    HoverHandler { cursorShape: Qt.PointingHandCursor }
    HoverToolTip { control: file; text: file.name }
}
