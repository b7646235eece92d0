import QtQuick
import Loomstreet.Theme

// Separates, and never carries meaning.
Rectangle {
    implicitWidth: Theme.strokeHairline
    implicitHeight: Theme.strokeHairline
    color: Theme.hairline
}
