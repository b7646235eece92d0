pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The sizes of a piece; those that are sold out are struck through.
Flow {
    id: sizes

    property var piece

    spacing: Theme.spaceHalf

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Sizes of %1").arg(piece?.title ?? "")

    Repeater {
        model: sizes.piece?.sizes ?? []

        Rectangle {
            id: size

            required property var modelData

            implicitWidth: Math.max(40, label.implicitWidth + 2 * Theme.space1)
            implicitHeight: Theme.targetMinimum
            radius: Theme.radiusControl
            color: modelData.isAvailable ? "transparent" : Theme.sunken
            border { width: Theme.strokeHairline; color: modelData.isAvailable ? Theme.border : Theme.hairline }

            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.isAvailable ? modelData.text : qsTranslate("Loomstreet", "%1, sold out").arg(modelData.text)

            TextLabel {
                id: label

                anchors.centerIn: parent
                text: size.modelData.text
                type: Theme.type.label
                figures: true
                color: size.modelData.isAvailable ? Theme.ink : Theme.muted
                font.strikeout: !size.modelData.isAvailable
                Accessible.ignored: true
            }
        }
    }
}
