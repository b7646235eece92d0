pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper tells the stylist of their body, in the unit they measure in.
Sheet {
    id: sheet

    required property AppModel app

    readonly property MeasurementsModel measurements: app.measurements
    readonly property bool metric: measurements.isMetric
    readonly property string lengthUnit: metric ? qsTranslate("Loomstreet", "cm") : qsTranslate("Loomstreet", "in", "unit.inch")
    readonly property var fits: measurements.fits
    property bool sending: false

    function send(): void {
        // Another window may show the same sheet.
        sending = true
        measurements.save()
        sending = false
        const fields = { height: height_, feet: feet, inches: inches, weight: weight, bust: bust, waist: waist, hip: hip }
        if (measurements.flawed.length > 0)
            fields[measurements.flawed[0]].forceActiveFocus(Qt.OtherFocusReason)
    }

    objectName: "measurementsSheet"
    name: heading.text
    extent: Qt.size(520, column.height + 2 * Theme.space4)
    firstFocus: metric ? height_ : feet

    Connections {
        target: sheet.measurements
        enabled: sheet.sending
        function onMessageReady(text: string): void {
            sheet.closeAsked()
            sheet.app.mira.sendText(text)
        }
    }
    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.space4
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: column

            x: Theme.space4
            y: Theme.space4
            width: flick.width - 2 * Theme.space4
            spacing: Theme.space3

            readonly property bool roomy: width >= 380 * Theme.textScale
            readonly property real half: roomy ? (width - Theme.space2) / 2 : width
            readonly property real third: roomy ? (width - 2 * Theme.space2) / 3 : width

            Column {
                width: parent.width
                spacing: Theme.spaceHalf

                TextLabel {
                    id: heading

                    anchors { left: parent.left; right: parent.right; rightMargin: Theme.space5 }
                    text: qsTranslate("Loomstreet", "Your measurements")
                    type: Theme.type.heading
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
                TextLabel {
                    width: parent.width
                    text: qsTranslate("Loomstreet", "Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.")
                    type: Theme.type.small
                    color: Theme.muted
                    wrapMode: Text.Wrap
                }
            }
            SegmentedControl {
                objectName: "units"
                anchors.left: parent.left
                name: qsTranslate("Loomstreet", "Unit")
                segments: [qsTranslate("Loomstreet", "Metric"), qsTranslate("Loomstreet", "Imperial")]
                currentIndex: sheet.metric ? 0 : 1
                onActivated: index => sheet.measurements.isMetric = index === 0
            }
            Flow {
                width: parent.width
                spacing: Theme.space2

                MeasureField {
                    id: height_

                    measurements: sheet.measurements
                    field: "height"
                    width: column.half
                    visible: sheet.metric
                    label: qsTranslate("Loomstreet", "Height (%1)").arg(qsTranslate("Loomstreet", "cm"))
                    onAccepted: sheet.send()
                }
                Row {
                    visible: !sheet.metric
                    spacing: Theme.space1

                    MeasureField {
                        id: feet

                        measurements: sheet.measurements
                        field: "feet"
                        width: (column.half - Theme.space1) / 2
                        label: qsTranslate("Loomstreet", "Height (%1)").arg(qsTranslate("Loomstreet", "ft"))
                        onAccepted: sheet.send()
                    }
                    MeasureField {
                        id: inches

                        measurements: sheet.measurements
                        field: "inches"
                        width: feet.width
                        label: qsTranslate("Loomstreet", "Height (%1)").arg(qsTranslate("Loomstreet", "in", "unit.inch"))
                        onAccepted: sheet.send()
                    }
                }
                MeasureField {
                    id: weight

                    measurements: sheet.measurements
                    field: "weight"
                    width: column.half
                    label: qsTranslate("Loomstreet", "Weight (%1)").arg(sheet.metric ? qsTranslate("Loomstreet", "kg") : qsTranslate("Loomstreet", "lb"))
                    onAccepted: sheet.send()
                }
            }
            Column {
                width: parent.width
                spacing: Theme.space1

                Flow {
                    width: parent.width
                    spacing: Theme.space2

                    MeasureField {
                        id: bust

                        measurements: sheet.measurements
                        field: "bust"
                        width: column.third
                        label: qsTranslate("Loomstreet", "Bust (%1)").arg(sheet.lengthUnit)
                        onAccepted: sheet.send()
                    }
                    MeasureField {
                        id: waist

                        measurements: sheet.measurements
                        field: "waist"
                        width: column.third
                        label: qsTranslate("Loomstreet", "Waist (%1)").arg(sheet.lengthUnit)
                        onAccepted: sheet.send()
                    }
                    MeasureField {
                        id: hip

                        measurements: sheet.measurements
                        field: "hip"
                        width: column.third
                        label: qsTranslate("Loomstreet", "Hip (%1)").arg(sheet.lengthUnit)
                        onAccepted: sheet.send()
                    }
                }
                // What is wrong takes the hint's place, so that nothing moves.
                Item {
                    width: parent.width
                    height: Math.max(2 * Theme.type.small.line, note.height)

                    Icon {
                        y: Math.round((note.type.line - height) / 2)
                        anchors.left: parent.left
                        visible: note.failed
                        name: "warning"
                        size: 16
                        color: note.color
                    }
                    TextLabel {
                        id: note

                        readonly property bool failed: sheet.measurements.failure !== ""

                        objectName: "measurementsNote"
                        anchors { left: parent.left; leftMargin: failed ? 22 : 0; right: parent.right }
                        text: failed ? sheet.measurements.failure : qsTranslate("Loomstreet", "Leave these empty if you don't know them.")
                        type: failed ? Theme.type.small : Theme.type.caption
                        color: failed ? Theme.danger : Theme.muted
                        wrapMode: Text.Wrap
                        Accessible.role: failed ? Accessible.AlertMessage : Accessible.StaticText
                    }
                }
            }
            Column {
                width: parent.width
                spacing: 6

                TextLabel {
                    id: fitLabel

                    text: qsTranslate("Loomstreet", "Preferred fit")
                    anchors.left: parent.left
                    type: Theme.type.label
                    Accessible.ignored: true
                }
                SegmentedControl {
                    objectName: "fit"
                    anchors.left: parent.left
                    name: fitLabel.text
                    segments: sheet.fits.map(fit => sheet.measurements.fitText(fit))
                    currentIndex: sheet.fits.indexOf(sheet.measurements.fit)
                    onActivated: index => sheet.measurements.fit = sheet.fits[index]
                }
            }
            MeasurementsAnswers {
                width: parent.width
                kept: sheet.measurements.isKept
                onSendAsked: sheet.send()
                onCancelAsked: sheet.closeAsked()
                onForgetAsked: sheet.measurements.forget()
            }
        }
    }
}
