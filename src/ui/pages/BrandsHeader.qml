pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The head of the designers' page: how many there are, a field that narrows them down, and the letters to jump to.
Item {
    id: header

    property var brands: null
    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false
    property string currentLetter

    readonly property int total: brands ? brands.brandCount : 0

    signal jumped(int row)
    signal passedDown() // by the keys, to what stands below
    signal accepted()

    function clear(): void { field.clear() }
    function takeFocus(): void { field.forceActiveFocus(Qt.OtherFocusReason) }

    implicitHeight: column.y + column.height

    Column {
        id: column

        anchors { left: parent.left; right: parent.right; leftMargin: header.padding; rightMargin: header.padding }
        y: Theme.space3
        spacing: Theme.space2

        Item {
            width: parent.width
            height: header.narrow ? field.y + field.height : Math.max(title.height, field.height)

            SectionHeader {
                id: title

                anchors.left: parent.left
                width: header.narrow ? parent.width : parent.width - field.width - Theme.space2
                type: header.narrow ? Theme.type.heading : Theme.type.title
                title: qsTranslate("Loomstreet", "Designers")
                note: header.total === 0 ? "" : qsTranslate("Loomstreet", "%Ln designers", "", header.total)
            }
            FieldInput {
                id: field

                objectName: "filter"
                anchors.right: parent.right
                y: header.narrow ? title.height + Theme.space1 : Math.round((parent.height - height) / 2)
                width: header.narrow ? parent.width : 280 * Theme.textScale
                placeholderText: qsTranslate("Loomstreet", "Find a designer")
                maximumLength: 80
                onEdited: text => { header.brands.filter = text }
                onAccepted: header.accepted()
                // The page may have been away meanwhile.
                Component.onCompleted: text = header.brands?.filter ?? ""

                Keys.onDownPressed: header.passedDown()
                Keys.onEscapePressed: event => {
                    event.accepted = field.text !== ""
                    field.clear()
                    header.brands.filter = ""
                }

                IconButton {
                    anchors { right: parent.right; rightMargin: Theme.spaceHalf }
                    y: (parent.height - height) / 2
                    visible: field.text !== ""
                    iconName: "xmark"
                    iconSize: 16
                    text: qsTranslate("Loomstreet", "Clear")
                    onClicked: {
                        field.clear()
                        header.brands.filter = ""
                        header.takeFocus()
                    }
                }
            }
        }
        Flow {
            id: letters

            objectName: "letters"
            anchors { left: parent.left; right: parent.right; leftMargin: -Theme.space1; rightMargin: -Theme.space1 }
            spacing: Theme.spaceHalf / 2

            Accessible.role: Accessible.ToolBar
            Accessible.name: qsTranslate("Loomstreet", "Letters")

            Repeater {
                id: repeater

                model: header.brands ? header.brands.letters : []

                Pressable {
                    id: letter

                    required property string modelData
                    required property int index
                    readonly property bool current: modelData === header.currentLetter

                    objectName: "letter." + modelData
                    implicitWidth: Theme.targetMinimum
                    implicitHeight: Theme.targetMinimum
                    text: modelData
                    // One stop for the Tab key; the arrow keys go from letter to letter.
                    focusPolicy: current || activeFocus || (header.currentLetter === "" && index === 0) ? Qt.StrongFocus : Qt.ClickFocus
                    accessibleName: modelData === "#" ? qsTranslate("Loomstreet", "Other designers")
                                                      : qsTranslate("Loomstreet", "Designers with %1").arg(modelData)
                    onClicked: header.jumped(index)

                    function go(by: int): void {
                        const next = repeater.itemAt(index + (LayoutMirroring.enabled ? -by : by))
                        if (next)
                            next.forceActiveFocus(Qt.TabFocusReason)
                    }

                    Keys.onLeftPressed: go(-1)
                    Keys.onRightPressed: go(1)
                    Keys.onDownPressed: header.passedDown()

                    contentItem: TextLabel {
                        text: letter.text
                        type: letter.current ? Theme.type.bodyStrong : Theme.type.body
                        color: letter.current ? Theme.accent : Theme.ink
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        Accessible.ignored: true
                    }
                    background: Rectangle {
                        radius: Theme.radiusControl
                        color: letter.down ? Theme.pressed : letter.current ? Theme.accentTint
                                           : letter.hovered ? Theme.hover : Qt.alpha(Theme.hover, 0)

                        FocusRing { target: letter }
                    }
                }
            }
        }
        Hairline { width: parent.width }
    }
}
