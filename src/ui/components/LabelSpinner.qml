import QtQuick

// The spinner of a row, in the row's colour.
Spinner {
    required property LabelRow row

    objectName: "spinner"
    color: row.color
}
