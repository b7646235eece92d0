import QtQuick
import Loomstreet.Theme

// An icon on a round tinted ground, as states and notices carry it.
Rectangle {
    id: disc

    property string iconName
    property int iconSize: 20
    property string tone: "plain" // or "success", "warning", "danger", "accent"

    readonly property color ink: ({ success: Theme.success, warning: Theme.warning, danger: Theme.danger,
                                    accent: Theme.accent })[tone] ?? Theme.muted
    readonly property color tint: ({ success: Theme.successTint, warning: Theme.warningTint,
                                     danger: Theme.dangerTint, accent: Theme.accentTint })[tone] ?? Theme.sunken

    implicitWidth: 36
    implicitHeight: implicitWidth
    radius: height / 2
    color: tint

    Icon {
        objectName: "icon"
        anchors.centerIn: parent
        name: disc.iconName
        size: disc.iconSize
        color: disc.ink
    }
}
