import QtQuick
import Loomstreet.Components

// One bound of the price: sent by Enter or by leaving the field, and taken back with Esc.
FieldInput {
    id: field

    // What holds now.
    property string bound

    signal sent()

    function send(): void {
        sent()
        text = bound // what bounds nothing does not stay
    }

    inputMethodHints: Qt.ImhFormattedNumbersOnly
    maximumLength: 9
    validator: RegularExpressionValidator { regularExpression: /[0-9]*([.,][0-9]{0,2})?/ }
    onBoundChanged: text = bound
    Component.onCompleted: text = bound
    onAccepted: send()
    onActiveFocusChanged: {
        if (activeFocus)
            selectAll()
        else if (text !== bound)
            send()
    }

    Keys.onEscapePressed: event => {
        event.accepted = text !== bound
        text = bound
    }
}
