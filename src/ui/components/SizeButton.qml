import QtQuick
import Loomstreet.Theme

// One size of a piece. A sold-out one can still be reached and asked about.
Choice {
    id: control

    property bool soldOut: false
    // It is the shopper's, as far as that is known; words nearby say so too.
    property bool recommended: false

    horizontalPadding: Theme.space1_5
    accessibleName: {
        const name = soldOut ? qsTranslate("Loomstreet", "%1, sold out").arg(text) : text
        return recommended ? qsTranslate("Loomstreet", "%1, recommended for you").arg(name) : name
    }

    contentItem: TextLabel {
        objectName: "label"
        text: control.text
        type: Theme.type.control
        figures: true
        color: control.soldOut ? Theme.muted : Theme.ink
        font.strikeout: control.soldOut
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        implicitWidth: 48
        implicitHeight: Theme.targetControl
        radius: Theme.radiusControl
        color: control.down ? Theme.pressed
                            : control.soldOut ? Theme.sunken : control.hovered ? Theme.hover : "transparent"
        border.width: control.selected ? Theme.strokeSelected : Theme.strokeControl
        border.color: control.selected ? Theme.ink : control.soldOut ? Theme.hairline : Theme.border

        Rectangle {
            objectName: "recommended"
            anchors { right: parent.right; top: parent.top; margins: 5 }
            visible: control.recommended
            width: 6
            height: 6
            radius: 3
            color: Theme.accent
        }
        FocusRing { target: control }
    }
}
