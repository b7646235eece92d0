import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A setting that is picked from a long list: what it is now, and the picker below it.
Pressable {
    id: row

    required property AppModel app
    property string value
    property bool picksLanguage: false

    verticalPadding: Theme.space1
    accessibleName: text + ": " + value
    onClicked: picker.toggle()

    contentItem: Item {
        implicitHeight: words.implicitHeight

        TextLabel {
            id: words

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: Math.min(implicitWidth, parent.width / 2)
            text: row.text
            type: Theme.type.label
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        TextLabel {
            anchors { left: words.right; leftMargin: Theme.space2; right: chevron.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            horizontalAlignment: Text.AlignRight
            text: row.value
            type: Theme.type.small
            color: Theme.muted
            Accessible.ignored: true
        }
        Icon {
            id: chevron

            anchors { right: parent.right; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
            name: "chevron.down"
            size: 16
            color: Theme.muted
        }
    }
    background: Rectangle {
        implicitHeight: Theme.targetRow
        radius: Theme.radiusControl
        color: row.hovered || row.down ? Theme.hover : "transparent"

        Hairline { anchors { left: parent.left; right: parent.right; bottom: parent.bottom } }
        FocusRing { target: row }
    }

    Loader {
        id: picker

        readonly property var made: item

        function toggle(): void {
            if (status === Loader.Null)
                setSource("MarketPicker.qml", { app: row.app, onlyLanguages: row.picksLanguage, onlyCountries: !row.picksLanguage })
            if (made.visible)
                made.close()
            else
                made.open()
        }

        x: row.mirrored || !made ? 0 : row.width - made.width
        y: row.height + Theme.spaceHalf
    }
}
