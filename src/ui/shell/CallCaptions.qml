pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What is said, as it is said, the latest at the lower edge. Whoever reads further up stays there.
Item {
    id: captions

    required property MiraVoiceSession call
    property string kind // as of a CallState
    property int padding: Theme.space4

    readonly property MiraVoiceTranscript transcript: call.transcript

    ListView {
        id: list

        property bool follows: true
        property bool settling: false
        readonly property real lowest: Math.max(originY, originY + contentHeight - height)

        function keep(): void {
            if (!follows || moving || bar.pressed)
                return
            settling = true
            positionViewAtEnd()
            settling = false
        }
        function scrollBy(distance: real): void {
            contentY = Math.max(originY, Math.min(contentY + distance, lowest))
        }

        objectName: "captions"
        anchors.fill: parent
        visible: count > 0
        model: captions.transcript
        spacing: Theme.space1
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        currentIndex: -1
        keyNavigationEnabled: false
        cacheBuffer: 400
        clip: true
        activeFocusOnTab: interactive

        // Room for less or more of it is no wish of the reader's, either.
        onContentYChanged: if (!settling && (moving || bar.pressed || activeFocus)) follows = lowest - contentY < Theme.space3
        onHeightChanged: later.restart()
        onContentHeightChanged: later.restart()
        Component.onCompleted: later.restart()

        Keys.onPressed: event => {
            const steps = { [Qt.Key_Up]: -Theme.space6, [Qt.Key_Down]: Theme.space6, [Qt.Key_PageUp]: -0.9 * height,
                            [Qt.Key_PageDown]: 0.9 * height, [Qt.Key_Home]: -contentHeight, [Qt.Key_End]: contentHeight }
            const step = steps[event.key]
            event.accepted = step !== undefined && event.modifiers === Qt.NoModifier
            if (event.accepted)
                scrollBy(step)
        }

        ScrollBar.vertical: ScrollBar { id: bar }

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "What is said")

        delegate: CallCaption {
            required property int index

            x: captions.padding
            width: list.width - 2 * captions.padding
            latest: index === list.count - 1
            guideName: captions.call.guideName
        }

        FocusRing {
            target: list
            anchors.margins: Theme.spaceHalf
        }
        Connections {
            target: captions.transcript
            function onModelReset(): void { list.follows = true }
        }
        // It tells of its height in the middle of laying itself out, which is no time to move it.
        Timer {
            id: later

            interval: 0
            onTriggered: list.keep()
        }
    }
    // What goes out of sight above does so softly.
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Theme.space2; rightMargin: Theme.space2 }
        visible: list.contentY - list.originY > 1
        height: Math.min(Theme.space3, parent.height / 4)
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.surface }
            GradientStop { position: 1; color: Qt.alpha(Theme.surface, 0) }
        }
    }
    // Nobody has said anything yet.
    TextLabel {
        objectName: "invitation"
        anchors { left: parent.left; right: parent.right; leftMargin: captions.padding; rightMargin: captions.padding; top: parent.top }
        visible: list.count === 0 && captions.call.isConnected
        text: qsTranslate("Loomstreet", "Say what you are looking for, or what it is for.")
        type: Theme.type.spokenBefore
        color: Theme.muted
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Announcer {
        id: announcer
    }
    Connections {
        target: captions.transcript
        function onFinished(text: string, isMine: bool): void {
            if (!isMine)
                announcer.say([text])
        }
    }
}
