import QtQuick
import Loomstreet.Theme

// Something good to know: an icon, a line and a quieter one.
Item {
    id: row

    property string iconName
    property alias title: words.title
    property alias note: words.note
    property bool divided: true

    implicitWidth: 320
    implicitHeight: Math.max(Theme.targetRow, words.implicitHeight + 2 * Theme.space1 + 2)

    Accessible.role: Accessible.StaticText
    Accessible.name: note === "" ? title : title + ", " + note

    Hairline {
        width: parent.width
        visible: row.divided
    }
    Icon {
        id: icon

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        name: row.iconName
    }
    TitleAndNote {
        id: words

        anchors { left: icon.right; right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.space1_5
    }
}
