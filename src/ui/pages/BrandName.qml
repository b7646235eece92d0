import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A designer in the index, with the number of their pieces.
Pressable {
    id: control

    property string name
    property int count
    property bool current: false

    objectName: "brand." + name
    implicitHeight: Math.max(Theme.targetRow - Theme.spaceHalf, label.implicitHeight + Theme.space1)
    text: name
    focusPolicy: current || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    accessibleName: qsTranslate("Loomstreet", "%1, %Ln pieces", "", count).arg(name)

    contentItem: Item {
        TextLabel {
            id: label

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: Math.min(implicitWidth, parent.width - number.width - Theme.space1 - Theme.space2)
            text: control.name
            font.underline: control.hovered
            Accessible.ignored: true
        }
        TextLabel {
            id: number

            anchors { left: label.right; leftMargin: Theme.space1; baseline: label.baseline }
            text: control.count
            type: Theme.type.caption
            figures: true
            color: Theme.muted
            Accessible.ignored: true
        }
    }
    background: Item {
        Item {
            x: label.x - Theme.spaceHalf
            y: Theme.spaceHalf / 2
            width: label.width + number.width + Theme.space1 + 2 * Theme.spaceHalf
            height: parent.height - Theme.spaceHalf

            FocusRing {
                target: control
                controlRadius: Theme.radiusSmall
            }
        }
    }
    HoverHandler { cursorShape: Qt.PointingHandCursor }

    Accessible.role: Accessible.Link
}
