import QtQuick

// The place of a sheet that lies over the whole window it is asked for in, and is made when it first is.
Item {
    id: place

    readonly property var made: loader.item // qmllint disable
    readonly property bool isOpen: loader.item?.open ?? false

    function present(file: string, properties: var): void {
        loader.parent = Window.contentItem
        if (loader.status === Loader.Null)
            loader.setSource(file, properties)
        for (const name in properties)
            loader.item[name] = properties[name]
        loader.item.open = true
    }
    function withdraw(): void {
        if (loader.item)
            loader.item.open = false
    }

    Loader {
        id: loader

        anchors.fill: parent
        z: 1

        Connections {
            target: loader.item
            function onCloseAsked(): void { place.withdraw() }
        }
    }
}
