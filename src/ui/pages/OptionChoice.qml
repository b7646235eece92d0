import QtQuick

// One value of an option, as a swatch or a button.
Loader {
    id: choice

    property var value: ({ text: "", picture: "", isSelected: false, isAvailable: true })
    property bool isSwatch: false
    property bool recommended: false

    signal chosen()

    function make(): void { setSource(isSwatch ? "OptionSwatch.qml" : "OptionButton.qml", { choice: choice }) }

    onIsSwatchChanged: if (status !== Loader.Null) make()
    Component.onCompleted: make()
}
