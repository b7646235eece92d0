pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Pieces that could take the place of one in a look.
Popover {
    id: popover

    required property LookCell cell

    readonly property var choices: cell.alternatives
    readonly property bool waits: cell.isSeeking && choices.length === 0

    objectName: "lookSwap"
    name: qsTranslate("Loomstreet", "Instead of %1").arg(cell.title)
    padding: Theme.space1_5
    onOpened: list.takeFocus()

    contentItem: FocusScope {
        implicitWidth: 320
        implicitHeight: heading.height + Theme.space1 + (note.visible ? note.height + (retry.visible ? retry.height : 0) : list.height)

        TextLabel {
            id: heading

            width: parent.width
            text: popover.name
            type: Theme.type.label
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            id: note

            objectName: "swapNote"
            anchors { left: parent.left; right: parent.right; top: heading.bottom; topMargin: Theme.space1 }
            visible: popover.choices.length === 0 && !popover.waits
            text: popover.cell.seekErrorText !== "" ? popover.cell.seekErrorText
                                                    : qsTranslate("Loomstreet", "Nothing like it at the moment.")
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
        LinkButton {
            id: retry

            anchors { left: parent.left; top: note.bottom }
            visible: note.visible && popover.cell.seekErrorText !== ""
            focus: visible
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: popover.cell.look.seekAlternatives(popover.cell.index)
        }
        Flickable {
            id: list

            function takeFocus(): void {
                if (rows.count > 0)
                    rows.itemAt(0).forceActiveFocus(Qt.PopupFocusReason)
            }

            anchors { left: parent.left; right: parent.right; top: heading.bottom; topMargin: Theme.space1 }
            height: Math.min(contentHeight, 344)
            visible: !note.visible
            contentHeight: column.height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            ScrollBar.vertical: ScrollBar {}

            FocusFollower { flickable: list }

            Column {
                id: column

                width: list.width

                Repeater {
                    model: popover.waits ? 3 : 0

                    Item {
                        width: column.width
                        height: 80

                        Skeleton { y: 8; width: 48; height: 64 }
                        Skeleton { x: 64; y: 16; width: 96; height: 12 }
                        Skeleton { x: 64; y: 38; width: 180; height: 16 }
                    }
                }
                Repeater {
                    id: rows

                    model: popover.choices
                    onCountChanged: if (popover.opened && count > 0 && list.activeFocus === false) list.takeFocus()

                    Pressable {
                        id: choice

                        required property var modelData

                        objectName: "swap." + modelData.handle
                        width: column.width
                        text: modelData.title
                        accessibleName: [modelData.designer, text, modelData.price, whose.text].filter(words => words !== "").join(", ")
                        onClicked: {
                            const handle = modelData.handle
                            popover.close()
                            popover.cell.look.swap(popover.cell.index, handle)
                        }
                        Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                        Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)

                        contentItem: Item {
                            implicitHeight: 80

                            Picture {
                                id: thumb

                                anchors { left: parent.left; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
                                width: 48
                                height: 64
                                address: choice.modelData.picture
                                backdrop: Theme.surface
                            }
                            Column {
                                anchors { left: thumb.right; leftMargin: Theme.space1_5; right: parent.right; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

                                TextLabel {
                                    width: parent.width
                                    text: choice.modelData.designer
                                    type: Theme.type.overline
                                    color: Theme.muted
                                    Accessible.ignored: true
                                }
                                TextLabel {
                                    width: parent.width
                                    text: choice.modelData.title
                                    Accessible.ignored: true
                                }
                                Item {
                                    width: parent.width
                                    height: price.height

                                    TextLabel {
                                        id: price

                                        anchors.left: parent.left
                                        text: choice.modelData.price
                                        type: Theme.type.price
                                        figures: true
                                        Accessible.ignored: true
                                    }
                                    TextLabel {
                                        id: whose

                                        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                                        text: choice.modelData.isOriginal ? qsTranslate("Loomstreet", "Mira's choice") : ""
                                        type: Theme.type.caption
                                        color: Theme.accent
                                        Accessible.ignored: true
                                    }
                                }
                            }
                        }
                        background: Rectangle {
                            radius: Theme.radiusControl
                            color: choice.down ? Theme.pressed : choice.hovered ? Theme.hover : "transparent"

                            FocusRing {
                                target: choice
                                anchors.margins: 2
                            }
                        }
                    }
                }
            }
        }
    }
}
