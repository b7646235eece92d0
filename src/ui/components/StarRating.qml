pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// How shoppers rate a piece: five stars, or one in a narrow place, with the words beside them.
Row {
    id: rating

    property real value: 0
    property string note // as "4.7 (212)"
    property bool compact: false
    property int size: 14

    spacing: 6

    Accessible.role: Accessible.StaticText
    Accessible.name: note !== "" ? qsTranslate("Loomstreet", "Rated %L1 of 5, %2").arg(value).arg(note)
                                 : qsTranslate("Loomstreet", "Rated %L1 of 5").arg(value)

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Repeater {
            model: rating.compact ? 1 : 5

            Icon {
                required property int index

                name: !rating.compact && index < Math.round(rating.value) ? "star.fill" : "star"
                size: rating.size
                color: rating.compact ? Theme.muted : Theme.accent
            }
        }
    }
    TextLabel {
        objectName: "note"
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: rating.note
        type: Theme.type.small
        figures: true
        color: Theme.muted
        Accessible.ignored: true
    }
}
