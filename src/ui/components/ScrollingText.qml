import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A longer text in a bounded place. What does not fit is scrolled to, by the keys too. Plain, whatever stands in it.
Item {
    id: place

    property alias text: words.text
    property alias type: words.type
    property alias color: words.color
    property string name // for assistive tools: what this text is
    property int maximumHeight: 200

    readonly property bool scrolls: flick.contentHeight > height

    function scrollBy(distance: real): void {
        flick.contentY = Math.max(0, Math.min(flick.contentY + distance, flick.contentHeight - height))
    }

    implicitWidth: 320
    implicitHeight: Math.min(maximumHeight, words.implicitHeight)
    activeFocusOnTab: scrolls

    onTextChanged: flick.contentY = 0

    Keys.onPressed: event => {
        const page = height - type.line
        const distance = ({ [Qt.Key_Up]: -type.line, [Qt.Key_Down]: type.line, [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page,
                            [Qt.Key_Home]: -flick.contentHeight, [Qt.Key_End]: flick.contentHeight })[event.key]
        event.accepted = scrolls && distance !== undefined
        if (event.accepted)
            scrollBy(distance)
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: name
    Accessible.description: text
    Accessible.focusable: scrolls

    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: words.implicitHeight
        clip: true
        interactive: place.scrolls
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollBar {}

        TextLabel {
            id: words

            objectName: "words"
            x: flick.LayoutMirroring.enabled ? flick.width - width : 0
            width: flick.width - Theme.space1_5 // beside the bar
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            Accessible.ignored: true
        }
    }
    FocusRing {
        target: place
        controlRadius: Theme.radiusSmall
    }
}
