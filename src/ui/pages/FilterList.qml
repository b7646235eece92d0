pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// All filters of a list below each other.
Flickable {
    id: list

    required property FilterModel filters
    property int startPadding: Theme.space3
    property int endPadding: Theme.space3
    // Whether a line stands above already.
    property bool lined: false

    contentWidth: width
    contentHeight: groups.height + Theme.space3
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    ScrollBar.vertical: ScrollBar {}

    FocusFollower { flickable: list }

    Column {
        id: groups

        y: list.lined ? -Theme.strokeHairline : 0
        anchors { left: parent.left; leftMargin: list.startPadding; right: parent.right; rightMargin: list.endPadding }

        Repeater {
            model: list.filters

            Loader {
                required property string filterID
                required property string label
                required property bool isPrice
                required property FilterValuesModel values
                required property string lowest
                required property string highest

                width: groups.width
                Component.onCompleted: {
                    if (isPrice)
                        setSource("FilterPrice.qml", { filters: list.filters, label: Qt.binding(() => label),
                                                       lowest: Qt.binding(() => lowest), highest: Qt.binding(() => highest) })
                    else
                        setSource("FilterGroup.qml", { filters: list.filters, filterID: filterID,
                                                       label: Qt.binding(() => label), values: values })
                }
            }
        }
    }
}
