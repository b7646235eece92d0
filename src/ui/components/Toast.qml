import QtQuick
import Loomstreet.Theme

// A banner that drops in over the page and leaves by itself. It never takes the focus; the pointer on it, or the
// keyboard within it, holds it.
Item {
    id: toast

    property bool open: false
    property string title
    property string text
    property string iconName: "info"
    property string tone: "plain" // as of an IconDisc
    property string actionText
    property int duration: 0 // how long it stays; 0 is for ever

    readonly property bool held: hover.hovered || action.activeFocus || close.activeFocus
    property real progress: open ? 1 : 0

    signal activated()
    signal dismissed()

    // Wider with larger text, and never wider than what it lies over.
    implicitWidth: Math.min(460 * Theme.textScale, parent ? parent.width - 2 * Theme.space2 : 460)
    implicitHeight: surface.height
    visible: open || progress > 0
    opacity: progress

    Behavior on progress {
        NumberAnimation {
            duration: Theme.durationBanner
            easing.type: Easing.Bezier
            easing.bezierCurve: toast.open ? Theme.curveEnter : Theme.curveExit
        }
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text === "" ? title : title + ". " + text

    Timer {
        interval: toast.duration
        running: toast.open && toast.duration > 0 && !toast.held
        onTriggered: toast.dismissed()
    }

    FloatingSurface {
        id: surface

        objectName: "surface"
        y: -Math.round(Theme.distanceBanner * (1 - toast.progress))
        width: toast.width
        height: Math.max(disc.height, words.height) + 2 * Theme.space2
        radius: Theme.radiusPanel

        HoverHandler { id: hover }
        MouseArea { anchors.fill: parent }

        IconDisc {
            id: disc

            anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            iconName: toast.iconName
            tone: toast.tone
        }
        Column {
            id: words

            anchors { left: disc.right; right: buttons.left; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: Theme.space1_5
            anchors.rightMargin: Theme.space1_5

            TextLabel {
                objectName: "title"
                width: parent.width
                text: toast.title
                type: Theme.type.bodyStrong
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
            TextLabel {
                objectName: "text"
                width: parent.width
                visible: text !== ""
                text: toast.text
                type: Theme.type.small
                color: Theme.muted
                wrapMode: Text.Wrap
                maximumLineCount: Theme.textScale > 1.3 ? 4 : 2
                Accessible.ignored: true
            }
        }
        Row {
            id: buttons

            anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            spacing: Theme.space1

            PushButton {
                id: action

                objectName: "action"
                focusPolicy: Qt.TabFocus
                visible: text !== ""
                size: "small"
                text: toast.actionText
                onClicked: toast.activated()
            }
            IconButton {
                id: close

                objectName: "close"
                focusPolicy: Qt.TabFocus
                iconName: "xmark"
                text: qsTranslate("Loomstreet", "Close")
                onClicked: toast.dismissed()
            }
        }
    }
}
