pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What an account gives, for who has none open, and the two ways to one.
FocusScope {
    id: invitation

    // What became of the account that was open until now.
    property string outcome
    property bool narrow: false

    signal signInAsked()
    signal createAsked()

    implicitHeight: Math.max(column.implicitHeight, picture.visible ? picture.height : 0)

    WelcomePicture {
        id: picture

        anchors.right: parent.right
        visible: invitation.width >= Theme.layoutReadingMeasure + Theme.space8 + width
        width: 320
        height: width * 4 / 3
    }
    Column {
        id: column

        anchors.left: parent.left
        width: Math.min(parent.width, Theme.layoutReadingMeasure)
        spacing: Theme.space3

        Row {
            id: notice

            width: parent.width
            visible: invitation.outcome !== ""
            spacing: Theme.space1_5

            Icon {
                y: Math.round((Theme.type.body.line - height) / 2)
                name: "info"
                color: Theme.muted
            }
            TextLabel {
                objectName: "outcome"
                width: notice.width - 20 - notice.spacing
                text: invitation.outcome
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
            }
        }
        Column {
            width: parent.width
            spacing: Theme.space1

            TextLabel {
                objectName: "title"
                width: parent.width
                text: qsTranslate("Loomstreet", "Your wardrobe, remembered")
                type: invitation.narrow ? Theme.type.heading : Theme.type.title
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            TextLabel {
                width: parent.width
                text: qsTranslate("Loomstreet", "Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.")
                color: Theme.muted
                wrapMode: Text.Wrap
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.space1

            PushButton {
                objectName: "signIn"
                kind: "primary"
                size: "primary"
                focus: true
                text: qsTranslate("Loomstreet", "Sign in")
                onClicked: invitation.signInAsked()
            }
            PushButton {
                objectName: "createAccount"
                size: "primary"
                text: qsTranslate("Loomstreet", "Create account")
                onClicked: invitation.createAsked()
            }
        }
        Column {
            width: parent.width

            Repeater {
                model: [
                    { icon: "shippingbox", title: qsTranslate("Loomstreet", "Orders in one place"), note: qsTranslate("Loomstreet", "Where each parcel is, and returns without searching for a receipt") },
                    { icon: "bell", title: qsTranslate("Loomstreet", "A word when it matters"), note: qsTranslate("Loomstreet", "Your size is back, or the price has come down") },
                    { icon: "crown", title: qsTranslate("Loomstreet", "Membership and coupons"), note: qsTranslate("Loomstreet", "Points, tiers and what they open") },
                    { icon: "bag", title: qsTranslate("Loomstreet", "A checkout that knows you"), note: qsTranslate("Loomstreet", "Your address is there already") }
                ]

                FactRow {
                    required property var modelData
                    required property int index

                    width: column.width
                    divided: index > 0
                    iconName: modelData.icon
                    title: modelData.title
                    note: modelData.note
                }
            }
        }
    }
}
