import Loomstreet.Components

// A value of an option by its name.
SizeButton {
    required property OptionChoice choice

    objectName: "size." + text
    text: choice.value.text
    selected: choice.value.isSelected
    soldOut: !choice.value.isAvailable
    recommended: choice.recommended
    onClicked: choice.chosen()
}
