import QtQuick

// Keeps what is looked at in its place while what stands above it in a column comes, goes or grows.
Item {
    id: anchor

    required property Flickable flickable
    required property Column column

    property Item held: null
    property real offset: 0 // of it from the top of the view

    function note(): void {
        held = null
        // At the top it stays at the top.
        for (let i = 0; flickable.contentY > 0 && i < column.children.length; ++i) {
            const child = column.children[i]
            if (!child.visible || column.y + child.y + child.height <= flickable.contentY)
                continue
            held = child
            offset = child.y - flickable.contentY
            return
        }
    }

    visible: false

    Connections {
        target: anchor.flickable
        // Later: in the middle of a change nothing is where it belongs.
        function onContentYChanged(): void { later.start() }
    }
    Connections {
        target: anchor.held
        function onYChanged(): void { anchor.flickable.contentY = anchor.held.y - anchor.offset }
    }
    Timer {
        id: later

        interval: 0
        onTriggered: anchor.note()
    }
}
