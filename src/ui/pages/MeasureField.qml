import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// One measure of the shopper's: `field` is its name in the model.
FieldInput {
    id: measure

    property MeasurementsModel measurements
    property string field

    readonly property var flawedFields: measurements.flawed

    objectName: field
    flawed: flawedFields.includes(field)
    text: measurements[field]
    maximumLength: 400
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    onEdited: text => { measurements[field] = text }
}
