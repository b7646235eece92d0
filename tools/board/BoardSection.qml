import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Column {
    id: section

    property string title
    default property alias content: content.data

    spacing: Theme.space1_5

    TextLabel {
        text: section.title
        type: Theme.type.overline
        color: Theme.muted
    }
    Flow {
        id: content

        width: section.width
        spacing: Theme.space2
    }
}
