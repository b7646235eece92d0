import QtQuick
import Loomstreet.Theme

// Marks the chosen picture among several: a line of ink around its parent with a gap between.
Rectangle {
    anchors.fill: parent
    anchors.margins: -2 * Theme.strokeSelected
    radius: Theme.radiusPicture + 2 * Theme.strokeSelected
    color: "transparent"
    border.width: Theme.strokeSelected
    border.color: Theme.ink
}
