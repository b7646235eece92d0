import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// Leads what the shopper and the desktop want of the look into the theme.
Item {
    id: inputs

    property AppSettings settings: null
    required property SystemAppearance system

    visible: false

    Binding { target: Theme; property: "appearance"; value: inputs.settings ? inputs.settings.appearance : "system" }
    Binding { target: Theme; property: "systemDark"; value: inputs.system.isDark }
    Binding { target: Theme; property: "reducedMotion"; value: inputs.system.reducesMotion }
    Binding { target: Theme; property: "textScale"; value: inputs.system.textScale }
}
