import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The field for a discount code; once one is applied, the code itself, which goes when it is pressed.
Item {
    id: discount

    property CartModel cart

    readonly property bool applied: cart.appliedCode !== ""

    implicitHeight: applied ? chip.implicitHeight : field.implicitHeight

    onAppliedChanged: if (applied) field.clear()

    FieldInput {
        id: field

        objectName: "code"
        anchors { left: parent.left; right: parent.right }
        trailingRoom: apply.width + Theme.space1
        visible: !discount.applied
        placeholderText: qsTranslate("Loomstreet", "Discount code")
        error: discount.cart.codeMessage
        maximumLength: 255
        readOnly: discount.cart.isApplyingCode
        onAccepted: discount.cart.applyCode(text)
        onEdited: discount.cart.forgetCodeMessage()
    }
    PushButton {
        id: apply

        objectName: "apply"
        anchors.right: parent.right
        visible: !discount.applied
        enabled: field.text.trim() !== "" || busy
        text: qsTranslate("Loomstreet", "Apply")
        busy: discount.cart.isApplyingCode
        onClicked: discount.cart.applyCode(field.text)
    }
    Chip {
        id: chip

        objectName: "appliedCode"
        anchors.left: parent.left
        visible: discount.applied
        selected: true
        removable: true
        iconName: "tag"
        locked: discount.cart.isApplyingCode
        text: discount.cart.appliedCode
        onClicked: discount.cart.removeCode()
    }
}
