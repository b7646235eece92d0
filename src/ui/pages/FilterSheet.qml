import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The filters over the grid, where there is no room beside it.
Panel {
    id: sheet

    required property ProductListing listing

    title: qsTranslate("Loomstreet", "Filters")

    FilterList {
        anchors.fill: parent
        filters: sheet.listing.filters
        lined: true
    }

    footer: Item {
        width: sheet.panelWidth
        height: actions.height + 2 * Theme.space2

        Row {
            id: actions

            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.space3; rightMargin: Theme.space3 }
            spacing: Theme.space1_5

            PushButton {
                id: clear

                objectName: "clearInPanel"
                enabled: sheet.listing.filters.selectedCount > 0
                size: "primary"
                text: qsTranslate("Loomstreet", "Clear All Filters")
                onClicked: sheet.listing.filters.clear()
            }
            PushButton {
                objectName: "showPieces"
                width: parent.width - clear.width - parent.spacing
                kind: "primary"
                size: "primary"
                busy: sheet.listing.isLoading
                text: {
                    const count = sheet.listing.totalCount
                    return count < 0 ? qsTranslate("Loomstreet", "Show pieces")
                         : count === 1 ? qsTranslate("Loomstreet", "Show 1 piece")
                                       : qsTranslate("Loomstreet", "Show %1 pieces").arg(count)
                }
                onClicked: sheet.closeAsked()
            }
        }
    }
}
