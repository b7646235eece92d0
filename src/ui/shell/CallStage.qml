import QtQuick
import Loomstreet.Components
import Loomstreet.Pages
import Loomstreet.Theme

// Whom one talks to, and what the call is at.
Item {
    id: stage

    required property CallState about
    property string name
    property bool brief: false

    readonly property bool mirrored: LayoutMirroring.enabled

    implicitHeight: brief ? Math.max(portrait.height, words.height) : portrait.height + words.height

    CallPortrait {
        id: portrait

        x: !stage.brief ? Math.round((stage.width - width) / 2) : stage.mirrored ? stage.width - width : 0
        y: stage.brief ? Math.round((stage.height - height) / 2) : 0
        extent: stage.brief ? 56 : 92
        kind: stage.about.kind
        level: stage.about.level
    }
    Column {
        id: words

        readonly property int align: stage.brief ? Text.AlignLeft : Text.AlignHCenter

        x: stage.brief && !stage.mirrored ? portrait.width + Theme.space2 : 0
        width: stage.brief ? stage.width - portrait.width - Theme.space2 : stage.width
        y: stage.brief ? Math.round((stage.height - height) / 2) : portrait.height

        TextLabel {
            objectName: "guideName"
            width: parent.width
            horizontalAlignment: words.align
            text: stage.name
            type: stage.brief ? Theme.type.panel : Theme.type.heading
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            objectName: "phase"
            width: parent.width
            horizontalAlignment: words.align
            text: stage.about.text
            type: Theme.type.small
            color: stage.about.kind === "ended" || stage.about.kind === "muted" ? Theme.muted : Theme.accent
        }
        CallWave {
            x: !stage.brief ? (parent.width - width) / 2 : stage.mirrored ? parent.width - width : 0
            width: stage.brief ? Math.min(parent.width, 120) : Math.min(parent.width, implicitWidth)
            visible: !stage.brief || kind !== "ended"
            most: stage.brief ? 20 : 40
            height: stage.brief ? most : most + Theme.space1
            pitch: stage.brief ? 5 : 7
            kind: stage.about.kind
            call: stage.about.call
        }
    }
}
