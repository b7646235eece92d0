import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper can change about themselves. What was typed stays in the profile until it is saved or given up;
// what is wrong about it is said once a field is left.
FocusScope {
    id: form

    property ProfileStore profile

    readonly property bool beside: width >= 480
    readonly property real half: beside ? (width - Theme.space2) / 2 : width

    // What is known and cannot be changed here.
    component Fact: Column {
        id: fact

        property string title
        property string value
        property string note

        spacing: 2

        Accessible.role: Accessible.StaticText
        Accessible.name: title + ": " + value + (note === "" ? "" : ", " + note)

        TextLabel {
            width: parent.width
            text: fact.title
            type: Theme.type.label
            Accessible.ignored: true
        }
        TextLabel {
            width: parent.width
            text: fact.value
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        TextLabel {
            width: parent.width
            visible: text !== ""
            text: fact.note
            type: Theme.type.caption
            color: Theme.muted
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    implicitHeight: column.height

    function save(): void {
        const wrong = profile.nameError !== "" ? name : profile.phoneError !== "" ? phone : profile.birthdayError !== "" ? birthday : null
        if (wrong)
            wrong.forceActiveFocus(Qt.OtherFocusReason)
        shownAll = true
        profile.save()
    }
    // Also of the field that is being typed in.
    property bool shownAll: false

    Connections {
        target: form.profile
        function onChanged(): void { if (!form.profile.isEdited) form.shownAll = false }
    }

    Column {
        id: column

        width: parent.width
        spacing: Theme.space3

        FieldInput {
            id: name

            objectName: "name"
            width: parent.width
            focus: true
            label: qsTranslate("Loomstreet", "Name")
            text: form.profile.name
            error: !activeFocus || form.shownAll ? form.profile.nameError : ""
            onEdited: text => { form.profile.name = text }
            onAccepted: form.save()
        }
        Flow {
            width: parent.width
            spacing: Theme.space2

            FieldInput {
                id: phone

                objectName: "phone"
                width: form.half
                label: qsTranslate("Loomstreet", "Phone")
                inputMethodHints: Qt.ImhDialableCharactersOnly
                text: form.profile.phone
                error: !activeFocus || form.shownAll ? form.profile.phoneError : ""
                onEdited: text => { form.profile.phone = text }
                onAccepted: form.save()
            }
            FieldInput {
                id: birthday

                objectName: "birthday"
                width: form.half
                trailingRoom: calendar.width + Theme.space1
                label: qsTranslate("Loomstreet", "Birthday")
                placeholderText: form.profile.birthdayExample
                text: form.profile.birthday
                error: !activeFocus || form.shownAll ? form.profile.birthdayError : ""
                onEdited: text => { form.profile.birthday = text }
                onAccepted: form.save()

                IconButton {
                    id: calendar

                    objectName: "pickBirthday"
                    anchors { right: parent.right; top: parent.top; topMargin: Theme.type.label.line + 6 }
                    kind: "outlined"
                    extent: Theme.targetControl
                    iconName: "calendar"
                    text: qsTranslate("Loomstreet", "Pick a date")
                    accessibleName: text + ": " + birthday.label
                    onClicked: picker.toggle()

                    Loader {
                        id: picker

                        readonly property var made: item

                        function toggle(): void {
                            if (status === Loader.Null)
                                setSource("qrc:/qt/qml/Loomstreet/Components/DatePicker.qml", { name: birthday.label })
                            if (made.visible) {
                                made.close()
                                return
                            }
                            made.monthTitle = (year, month) => form.profile.monthTitle(year, month + 1)
                            made.begin(form.profile.birthdayDate, Qt.locale(form.profile.place))
                            made.open()
                        }

                        x: calendar.mirrored || !made ? 0 : calendar.width - made.width
                        y: calendar.height + Theme.spaceHalf
                    }
                    Connections {
                        target: picker.item
                        function onPicked(year: int, month: int, day: int): void { form.profile.pickBirthday(year, month, day) }
                    }
                }
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.space2

            Fact {
                width: form.half
                title: qsTranslate("Loomstreet", "Email")
                value: form.profile.email
                note: qsTranslate("Loomstreet", "The address you sign in with")
            }
            Fact {
                width: form.half
                visible: value !== ""
                title: qsTranslate("Loomstreet", "Country")
                value: form.profile.country
            }
        }
        Column {
            width: parent.width

            Row {
                anchors.left: parent.left
                spacing: Theme.space1

                PushButton {
                    objectName: "save"
                    kind: "primary"
                    text: qsTranslate("Loomstreet", "Save")
                    enabled: form.profile.isEdited || busy
                    busy: form.profile.isSaving
                    onClicked: form.save()
                }
                PushButton {
                    objectName: "discard"
                    kind: "quiet"
                    visible: form.profile.isEdited && !form.profile.isSaving
                    text: qsTranslate("Loomstreet", "Discard changes")
                    onClicked: {
                        form.profile.discard()
                        name.forceActiveFocus(Qt.OtherFocusReason)
                    }
                }
                LabelRow {
                    objectName: "saved"
                    height: Theme.targetControl
                    visible: form.profile.wasSaved
                    centred: false
                    iconName: "checkmark"
                    iconSize: 16
                    color: Theme.success
                    text: qsTranslate("Loomstreet", "Saved")

                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
            }
            CartNotice {
                objectName: "saveError"
                width: parent.width
                sentence: form.profile.saveErrorText
                iconName: "warning"
                tone: Theme.danger
            }
        }
    }
}
