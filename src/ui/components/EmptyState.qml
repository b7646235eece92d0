pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// Nothing here, said kindly: an icon or a few small pictures, a sentence in serif, one below it, and a way on.
FocusScope {
    id: empty

    property string iconName
    property string tone: "plain"
    property var pictures: [] // addresses; three at most, the middle one larger
    property string title
    property string sentence
    property color backdrop: Theme.paper
    default property alias actions: actions.data

    implicitWidth: 360
    implicitHeight: column.implicitHeight + 2 * Theme.space4

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.max(Theme.space2, Math.round((parent.height - height) / 2))
        width: Math.min(parent.width - 2 * Theme.space3, 400 * Theme.textScale)
        spacing: Theme.space1

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            implicitWidth: empty.pictures.length > 0 ? small.width : disc.width
            implicitHeight: (empty.pictures.length > 0 ? small.height : disc.height) + Theme.space1
            visible: empty.iconName !== "" || empty.pictures.length > 0

            IconDisc {
                id: disc

                anchors.horizontalCenter: parent.horizontalCenter
                implicitWidth: 56
                visible: empty.iconName !== "" && empty.pictures.length === 0
                iconName: empty.iconName
                iconSize: 24
                tone: empty.tone
            }
            Row {
                id: small

                spacing: Theme.space1

                Repeater {
                    model: empty.pictures.slice(0, 3)

                    Picture {
                        required property string modelData
                        required property int index
                        readonly property bool first: empty.pictures.length < 3 || index === 1

                        anchors.verticalCenter: parent.verticalCenter
                        width: first ? 72 : 56
                        height: implicitHeight
                        opacity: first ? 1 : 0.6
                        address: modelData
                        backdrop: empty.backdrop
                    }
                }
            }
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            text: empty.title
            type: Theme.type.section
            wrapMode: Text.Wrap
            maximumLineCount: 4
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            objectName: "sentence"
            visible: text !== ""
            width: parent.width
            text: empty.sentence
            color: Theme.muted
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        Grid {
            id: actions

            // Beside each other while there is room.
            readonly property real natural: {
                let sum = -spacing
                for (let i = 0; i < children.length; ++i)
                    sum += children[i].visible ? children[i].width + spacing : 0
                return sum
            }

            anchors.horizontalCenter: parent.horizontalCenter
            columns: natural <= column.width ? Math.max(1, children.length) : 1
            horizontalItemAlignment: Grid.AlignHCenter
            topPadding: Theme.space1
            spacing: Theme.space1
        }
    }
}
