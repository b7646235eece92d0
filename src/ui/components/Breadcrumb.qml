pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// Where the shopper is, and the way back up. Each name is a text of its own, so that one in another script turns
// nothing around.
Row {
    id: trail

    property var crumbs: [] // texts, from the root
    property TypeStyle type: Theme.type.label
    // Where there is not enough, the names nearest to the root are left out.
    property real room: Infinity
    property int made: 0 // counts the names, which are new with every trail
    readonly property int first: {
        let width = 0
        for (let index = made < 0 ? 0 : crumbs.length - 1; index > 0; --index) {
            width += (names.itemAt(index)?.natural ?? 0) + spacing
            if (width + (names.itemAt(index - 1)?.natural ?? 0) > room)
                return index
        }
        return 0
    }

    signal activated(int index)

    spacing: 5
    clip: width < implicitWidth

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTranslate("Loomstreet", "You are here")

    Repeater {
        id: names

        model: trail.crumbs
        onItemAdded: ++trail.made

        Row {
            id: crumb

            required property string modelData
            required property int index
            readonly property bool last: index === trail.crumbs.length - 1
            readonly property real natural: (index > 0 ? slash.implicitWidth + spacing : 0) + step.implicitWidth

            spacing: trail.spacing
            visible: index >= trail.first

            TextLabel {
                id: slash

                anchors.verticalCenter: parent.verticalCenter
                visible: crumb.index > 0
                text: "/"
                type: trail.type
                color: Theme.muted
                Accessible.ignored: true
            }
            Pressable {
                id: step

                objectName: "crumb" + crumb.index
                width: crumb.last ? Math.min(implicitWidth, trail.room - (crumb.natural - implicitWidth)) : implicitWidth
                text: crumb.modelData
                enabled: !crumb.last
                opacity: 1
                onClicked: trail.activated(crumb.index)

                contentItem: TextLabel {
                    text: step.text
                    type: trail.type
                    elide: crumb.last ? Text.ElideRight : Text.ElideNone
                    font.underline: step.hovered && step.enabled
                    Accessible.ignored: true
                }
                background: Item {
                    FocusRing {
                        target: step
                        controlRadius: 0
                    }
                }
                Accessible.role: crumb.last ? Accessible.StaticText : Accessible.Link
            }
        }
    }
}
