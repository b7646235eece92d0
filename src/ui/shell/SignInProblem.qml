import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Why nobody was signed in, where no field is to blame.
Row {
    id: problem

    property alias text: words.text

    visible: text !== ""
    spacing: Theme.space1

    Icon {
        y: Math.round((words.type.line - height) / 2)
        name: "warning"
        size: 16
        color: Theme.danger
    }
    TextLabel {
        id: words

        objectName: "problem"
        width: problem.width - 16 - problem.spacing
        type: Theme.type.small
        color: Theme.danger
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
