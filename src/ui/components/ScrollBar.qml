import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A slim bar beside what scrolls: there when there is more, wider under the pointer.
T.ScrollBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 2
    minimumSize: 0.06
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1

    // Assistive tools scroll by what they look at.
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: bar.pressed || bar.hovered ? Theme.border : Qt.alpha(Theme.border, 0.5)
    }
}
