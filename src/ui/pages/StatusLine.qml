import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Where something is, in words, after a dot in their colour.
Item {
    id: line

    property alias text: label.text
    property string tone: "plain" // or "accent", "success", "danger"
    property TypeStyle type: Theme.type.label

    readonly property color ink: ({ accent: Theme.accent, success: Theme.success, danger: Theme.danger })[tone] ?? Theme.muted

    implicitWidth: label.x + label.implicitWidth
    implicitHeight: label.implicitHeight

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Rectangle {
        id: dot

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: 8
        height: 8
        radius: 4
        color: line.tone === "plain" ? "transparent" : line.ink
        border.width: line.tone === "plain" ? 1.5 : 0
        border.color: line.ink
    }
    TextLabel {
        id: label

        objectName: "status"
        anchors { left: dot.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
        type: line.type
        color: line.ink
        Accessible.ignored: true
    }
}
