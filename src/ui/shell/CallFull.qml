import QtQuick
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The call, large: whom one talks to, what is said, what she shows, and what one can do.
FocusScope {
    id: form

    required property MiraVoiceSession call
    required property CallWindow window

    readonly property int padding: Theme.space4
    // Where there is little room, or much of it goes to the text, she is beside her name.
    readonly property bool brief: height < 480 + 150 * Theme.textScale
    readonly property real room: height - stage.y - stage.height - foot.height - 2 * Theme.space2

    CallState {
        id: now

        call: form.call
    }
    CallHead {
        id: head

        z: 1
        anchors { left: parent.left; right: parent.right; top: parent.top }
        call: form.call
        window: form.window
        kind: now.kind
    }
    CallStage {
        id: stage

        anchors { left: parent.left; right: parent.right; top: head.bottom; leftMargin: form.padding; rightMargin: form.padding; topMargin: form.brief ? 0 : -Theme.space1 }
        about: now
        name: form.call.guideName
        brief: form.brief
    }
    CallCaptions {
        id: captions

        anchors { left: parent.left; right: parent.right; top: stage.bottom; topMargin: Theme.space2; bottom: products.top; bottomMargin: products.visible ? Theme.space1_5 : 0 }
        call: form.call
        kind: now.kind
        padding: form.padding
    }
    CallProducts {
        id: products

        anchors { left: parent.left; right: parent.right; leftMargin: form.padding; rightMargin: form.padding; bottom: foot.top }
        // Something of what was said stays in sight.
        mostHeight: Math.max(rowHeight, form.room - Math.max(84, 60 * Theme.textScale))
        cards: form.call.products
        onOpened: (card, mode) => form.window.openPiece(card, mode)
    }
    Item {
        id: foot

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: note.height + (form.call.isActive ? controls.height : end.height) + Theme.space3

        CallNote {
            id: note

            height: form.call.isActive || text !== "" ? implicitHeight : Theme.space2
            anchors { left: parent.left; right: parent.right; leftMargin: Theme.space2; rightMargin: Theme.space2 }
            text: form.call.toast
            good: form.call.isToastGood
        }
        CallControls {
            id: controls

            anchors { top: note.bottom; horizontalCenter: parent.horizontalCenter }
            width: parent.width
            visible: form.call.isActive
            focus: visible
            call: form.call
        }
        CallEnd {
            id: end

            anchors { left: parent.left; right: parent.right; top: note.bottom; leftMargin: form.padding; rightMargin: form.padding }
            visible: !form.call.isActive
            focus: visible
            call: form.call
        }
    }
}
