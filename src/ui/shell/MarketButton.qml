import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The market the shop is shown for, and the way to another one or to another language.
Pressable {
    id: button

    required property AppModel app
    property bool narrow: false

    readonly property string currency: app.market.currency
    readonly property bool isOpen: picker.made?.visible ?? false

    objectName: "market"
    horizontalPadding: Theme.space1
    text: currency === "" ? (narrow ? app.market.country : app.market.countryName)
                          : narrow ? currency : app.market.countryName + " · " + currency
    accessibleName: qsTranslate("Loomstreet", "Market and language: %1, %2")
                    .arg(currency === "" ? app.market.countryName : app.market.countryName + ", " + currency).arg(app.market.languageName)
    onClicked: picker.toggle()

    contentItem: Item {
        implicitWidth: globe.width + Theme.space1 + words.implicitWidth + Theme.spaceHalf + chevron.width
        implicitHeight: Math.max(globe.height, words.implicitHeight)

        Icon {
            id: globe

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: "globe"
        }
        TextLabel {
            id: words

            anchors { left: globe.right; leftMargin: Theme.space1; right: chevron.left; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
            text: button.text
            type: Theme.type.label
            Accessible.ignored: true
        }
        Icon {
            id: chevron

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "chevron.down"
            size: 16
        }
    }
    background: Rectangle {
        implicitHeight: Theme.targetIcon
        radius: Theme.radiusControl
        color: button.down ? Theme.pressed : button.isOpen || button.hovered ? Theme.hover : "transparent"

        FocusRing { target: button }
    }

    Loader {
        id: picker

        readonly property var made: item

        function toggle(): void {
            if (status === Loader.Null)
                setSource("MarketPicker.qml", { app: button.app })
            if (made.visible)
                made.close()
            else
                made.open()
        }

        x: button.mirrored || !made ? 0 : button.width - made.width
        y: button.height + Theme.spaceHalf
    }
}
