pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// An order, or a refund, in the list of them: the whole row opens it.
FocusScope {
    id: row

    required property int index
    required property string orderId
    required property string name
    required property string summary
    required property string date
    required property string status
    required property string tone
    required property string amount
    required property string pieces
    required property var pictures
    required property string latest
    required property bool isRefund
    required property bool isHidden
    property bool narrow: false

    readonly property var facts: [Bidi.isolate(name), date, isRefund ? "" : pieces]
    readonly property var parts: [status, summary, name, date, amount, latest]

    signal opened()
    signal hideAsked()
    signal showAsked()

    implicitHeight: Math.max(96, words.implicitHeight) + 2 * Theme.space2 + Theme.strokeHairline

    Keys.onDeletePressed: if (!isRefund && !isHidden) hideAsked()

    Pressable {
        id: control

        objectName: "order." + row.name
        anchors { fill: parent; topMargin: Theme.spaceHalf; bottomMargin: Theme.spaceHalf }
        focus: true
        locked: row.orderId === ""
        opacity: row.isHidden ? Theme.alphaPictureSoldOut : 1
        accessibleName: row.parts.filter(text => text !== "").join(", ")
        onClicked: row.opened()

        Accessible.role: Accessible.ListItem

        contentItem: Item {
            Picture {
                id: first

                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                width: 72
                height: 96
                address: row.pictures[0] ?? ""
            }
            Column {
                id: words

                anchors { left: first.right; leftMargin: Theme.space2; right: end.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                spacing: 2

                StatusLine {
                    width: parent.width
                    text: row.isHidden ? row.status + "  ·  " + qsTranslate("Loomstreet", "Hidden") : row.status
                    tone: row.tone
                }
                TextLabel {
                    width: parent.width
                    visible: text !== ""
                    text: row.summary
                    font.underline: control.hovered && !control.locked
                    Accessible.ignored: true
                }
                TextLabel {
                    width: parent.width
                    text: Bidi.joined(row.facts)
                    type: Theme.type.small
                    figures: true
                    color: Theme.muted
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    Accessible.ignored: true
                }
                TextLabel {
                    width: parent.width
                    visible: text !== ""
                    text: row.latest
                    type: Theme.type.small
                    color: Theme.muted
                    Accessible.ignored: true
                }
            }
            Row {
                id: end

                anchors { right: parent.right; rightMargin: row.isRefund ? 0 : Theme.targetIcon + Theme.space1; verticalCenter: parent.verticalCenter }
                spacing: Theme.space1

                Repeater {
                    model: row.narrow ? [] : row.pictures.slice(1)

                    Picture {
                        required property string modelData

                        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
                        width: 48
                        height: 64
                        address: modelData
                    }
                }
                TextLabel {
                    objectName: "amount"
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.max(row.narrow ? 0 : 112, implicitWidth)
                    text: row.amount
                    type: Theme.type.price
                    figures: true
                    elide: Text.ElideNone
                    horizontalAlignment: Text.AlignRight
                    Accessible.ignored: true
                }
            }
        }
        background: Item {
            FocusRing {
                target: control
                controlRadius: Theme.radiusSmall
            }
        }
        HoverHandler { cursorShape: control.locked ? undefined : Qt.PointingHandCursor }
    }
    IconButton {
        objectName: "hide"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        visible: !row.isRefund
        iconName: row.isHidden ? "eye" : "eye.slash"
        iconSize: 16
        color: Theme.muted
        text: row.isHidden ? qsTranslate("Loomstreet", "Show order again") : qsTranslate("Loomstreet", "Hide order")
        accessibleName: text + ": " + row.name
        onClicked: row.isHidden ? row.showAsked() : row.hideAsked()
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
