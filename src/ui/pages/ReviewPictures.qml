pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The pictures of a review, small; each enlarges.
Row {
    id: row

    property var pictures: []

    signal opened(int index)

    visible: pictures.length > 0
    spacing: Theme.space1

    Repeater {
        model: row.pictures.slice(0, 6)

        Pressable {
            id: one

            required property string modelData
            required property int index

            width: Theme.cardMessageThumb.width
            height: Theme.cardMessageThumb.height
            accessibleName: qsTranslate("Loomstreet", "Enlarge picture %L1").arg(index + 1)
            onClicked: row.opened(index)

            contentItem: Picture { address: one.modelData }
            FocusRing {
                target: one
                controlRadius: Theme.radiusPicture
            }
        }
    }
}
