pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The free place beside the compared pieces: kept ones that could stand there.
Column {
    id: add

    property CompareModel compare
    property bool alone: false // there is too little yet to compare
    readonly property var candidates: compare ? compare.candidates : []

    signal wishlistAsked()

    spacing: Theme.space1

    TextLabel {
        width: parent.width
        text: add.alone ? qsTranslate("Loomstreet", "Add pieces to compare") : qsTranslate("Loomstreet", "Add a piece")
        type: Theme.type.section
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    TextLabel {
        width: parent.width
        text: add.candidates.length > 0 ? qsTranslate("Loomstreet", "From your wishlist and what you viewed")
                                        : qsTranslate("Loomstreet", "Save pieces or look at them, and add them here.")
        type: Theme.type.small
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    PushButton {
        anchors.left: parent.left
        visible: add.candidates.length === 0
        size: "small"
        text: qsTranslate("Loomstreet", "Wishlist")
        onClicked: add.wishlistAsked()
    }
    Repeater {
        model: add.candidates.slice(0, 8)

        Pressable {
            id: candidate

            required property var modelData

            objectName: "candidate." + modelData.handle
            width: add.width
            text: modelData.title
            accessibleName: qsTranslate("Loomstreet", "Compare with %1").arg(text)
            onClicked: add.compare.add(modelData.handle)

            contentItem: Item {
                implicitHeight: 64

                Picture {
                    id: thumb

                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    width: 48
                    height: 64
                    address: candidate.modelData.picture
                    backdrop: Theme.paper
                }
                Column {
                    anchors { left: thumb.right; leftMargin: Theme.space1_5; right: plus.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

                    TextLabel {
                        width: parent.width
                        text: candidate.modelData.designer
                        type: Theme.type.overline
                        color: Theme.muted
                        Accessible.ignored: true
                    }
                    TextLabel {
                        width: parent.width
                        text: candidate.modelData.title
                        Accessible.ignored: true
                    }
                }
                Icon {
                    id: plus

                    anchors { right: parent.right; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
                    name: "plus"
                    size: 16
                    color: Theme.muted
                }
            }
            background: Rectangle {
                radius: Theme.radiusControl
                color: candidate.down ? Theme.pressed : candidate.hovered ? Theme.hover : "transparent"

                FocusRing { target: candidate }
            }
        }
    }
}
