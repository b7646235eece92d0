import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One page of the settings: its title, and below it what can be set.
Column {
    id: page

    property string title

    spacing: Theme.space2

    TextLabel {
        width: parent.width
        text: page.title
        type: Theme.type.heading
        Accessible.role: Accessible.Heading
    }
}
