import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Item {
    id: root

    property var board: ({ say: (english, arabic) => english })

    Sheet {
        anchors.margins: -Theme.space4
        open: true

        Picture {
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
            width: 320
            radius: 0
            address: "https://pictures.test/sheet"
        }
        Column {
            anchors { right: parent.right; rightMargin: 40; verticalCenter: parent.verticalCenter }
            width: 400
            spacing: Theme.space2

            TextLabel {
                text: root.board.say("Sign in to your account", "سجّل الدخول إلى حسابك")
                type: Theme.type.heading
            }
            FieldInput {
                width: parent.width
                label: root.board.say("Email", "البريد الإلكتروني")
            }
            PushButton {
                width: parent.width
                kind: "primary"
                size: "primary"
                text: root.board.say("Sign in", "تسجيل الدخول")
            }
        }
    }
}
