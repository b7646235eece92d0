pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// Where the shopper is, and the way back up. Each name is a text of its own, so that one in another script turns
// nothing around.
Row {
    id: trail

    property var crumbs: [] // texts, from the root
    property TypeStyle type: Theme.type.label

    signal activated(int index)

    spacing: 5
    clip: width < implicitWidth

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTranslate("Loomstreet", "You are here")

    Repeater {
        model: trail.crumbs

        Row {
            id: crumb

            required property string modelData
            required property int index
            readonly property bool last: index === trail.crumbs.length - 1

            spacing: trail.spacing

            TextLabel {
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
                text: crumb.modelData
                enabled: !crumb.last
                opacity: 1
                onClicked: trail.activated(crumb.index)

                contentItem: TextLabel {
                    text: step.text
                    type: trail.type
                    elide: Text.ElideNone
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
