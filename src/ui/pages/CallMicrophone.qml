import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The sign that the microphone is open, for as long as it is; struck through while nothing of it is heard.
Item {
    id: sign

    required property MiraVoiceSession call
    property bool worded: false
    property int extent: 20

    readonly property bool open: !call.isMuted
    readonly property string sentence: open ? qsTranslate("Loomstreet", "Microphone is on") : qsTranslate("Loomstreet", "Microphone is muted")

    visible: call.isMicrophoneOpen
    implicitWidth: worded ? words.x + words.implicitWidth : extent
    implicitHeight: Math.max(extent, worded ? words.height : 0)

    Accessible.role: Accessible.StaticText
    Accessible.name: sentence

    Rectangle {
        id: disc

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: sign.extent
        height: width
        radius: width / 2
        color: sign.open ? Theme.accent : Theme.surface
        border { width: sign.open ? 0 : Theme.strokeControl; color: Theme.border }

        Icon {
            anchors.centerIn: parent
            name: sign.open ? "microphone" : "microphone.slash"
            size: sign.extent - 6
            color: sign.open ? Theme.accentInk : Theme.muted
        }
    }
    TextLabel {
        id: words

        objectName: "microphoneWords"
        anchors { left: disc.right; leftMargin: 6; right: parent.right; verticalCenter: parent.verticalCenter }
        visible: sign.worded
        text: sign.sentence
        type: Theme.type.caption
        color: sign.open ? Theme.accent : Theme.muted
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }
}
