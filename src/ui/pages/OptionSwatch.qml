import Loomstreet.Components

// A value of an option by its picture.
Swatch {
    required property OptionChoice choice

    objectName: "swatch." + text
    label: choice.value.text
    picture: choice.value.picture
    selected: choice.value.isSelected
    soldOut: !choice.value.isAvailable
    onClicked: choice.chosen()
}
