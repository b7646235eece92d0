import QtQuick
import Loomstreet.Theme

// Every component in every state, to be looked at.
Window {
    id: board

    property string appearance: "light"
    property string language: "en"
    property real textScale: 1
    property int page: 0

    readonly property bool rightToLeft: language === "ar" || language === "he"

    function say(english: string, arabic: string): string { return rightToLeft ? arabic : english }

    width: 1440
    height: page === 7 ? 1360 * textScale : 900 // the page of type is long
    visible: true
    color: Theme.paper
    LayoutMirroring.enabled: rightToLeft
    LayoutMirroring.childrenInherit: true

    Binding { target: Theme; property: "appearance"; value: board.appearance }
    Binding { target: Theme; property: "textScale"; value: board.textScale }
    Binding { target: Theme; property: "language"; value: board.language }

    Loader {
        anchors.fill: parent
        anchors.margins: Theme.space4
        source: ["BoardControls.qml", "BoardCards.qml", "BoardStates.qml", "BoardOverlays.qml", "BoardIcons.qml",
                 "BoardType.qml", "BoardSheet.qml", "BoardLanguage.qml"][board.page]
        onLoaded: item.board = board
    }
}
