import QtQuick
import Loomstreet.Theme

// A small heading of the window's own words, in the capitals of its language. Names are left to a label: what they are
// in capitals their own language says.
TextLabel {
    property string words

    type: Theme.type.overline
    text: Theme.inCapitals(words)
    Accessible.name: words
}
