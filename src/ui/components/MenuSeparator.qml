import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

T.MenuSeparator {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    verticalPadding: Theme.spaceHalf
    horizontalPadding: Theme.space1_5

    contentItem: Hairline {}

    Accessible.role: Accessible.Separator
}
