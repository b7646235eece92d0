import QtQuick
import Loomstreet.Theme

// A line and a quieter one below it, as rows of settings and facts carry them.
Item {
    id: words

    property alias title: titleLabel.text
    property alias note: noteLabel.text

    implicitWidth: Math.max(titleLabel.implicitWidth, noteLabel.visible ? noteLabel.implicitWidth : 0)
    implicitHeight: titleLabel.height + (noteLabel.visible ? noteLabel.height : 0)

    TextLabel {
        id: titleLabel

        objectName: "title"
        width: parent.width
        type: Theme.type.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    TextLabel {
        id: noteLabel

        objectName: "note"
        anchors.top: titleLabel.bottom
        width: parent.width
        visible: text !== ""
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
