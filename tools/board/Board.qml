import QtQuick
import Loomstreet.Theme

// Every component in every state, to be looked at.
Window {
    id: board

    property string appearance: "light"
    property bool rightToLeft: false
    property real textScale: 1
    property int page: 0

    function say(english: string, arabic: string): string { return rightToLeft ? arabic : english }

    width: 1440
    height: 900
    visible: true
    color: Theme.paper
    LayoutMirroring.enabled: rightToLeft
    LayoutMirroring.childrenInherit: true

    Binding { target: Theme; property: "appearance"; value: board.appearance }
    Binding { target: Theme; property: "textScale"; value: board.textScale }
    Binding { target: Theme; property: "arabicScript"; value: board.rightToLeft }

    Loader {
        anchors.fill: parent
        anchors.margins: Theme.space4
        source: ["BoardControls.qml", "BoardCards.qml", "BoardStates.qml", "BoardOverlays.qml", "BoardIcons.qml",
                 "BoardType.qml", "BoardSheet.qml"][board.page]
        onLoaded: item.board = board
    }
}
