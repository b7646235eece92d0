import QtQuick

// The colours of one appearance, without their values.
QtObject {
    required property color frame
    required property color paper
    required property color surface
    required property color sunken
    required property color hover
    required property color pressed
    required property color ink
    required property color muted
    required property color placeholder
    required property color hairline
    required property color border
    required property color accent
    required property color accentHover
    required property color accentPressed
    required property color accentInk
    required property color accentTint
    required property color primary
    required property color primaryHover
    required property color primaryPressed
    required property color primaryInk
    required property color sale
    required property color success
    required property color successTint
    required property color warning
    required property color warningTint
    required property color danger
    required property color dangerTint
    required property color focus
    required property color scrim
    required property color skeleton
    required property color skeletonSheen
}
