import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the store learns of the shopper, and what stays here.
SettingsPage {
    id: page

    required property AppSettings settings

    title: qsTranslate("Loomstreet", "Privacy")

    SwitchRow {
        objectName: "sharesUsage"
        width: page.width
        text: qsTranslate("Loomstreet", "Help the store choose what to show")
        note: qsTranslate("Loomstreet", "Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.")
        checked: page.settings.sharesUsage
        onToggled: page.settings.sharesUsage = checked
    }
    Column {
        width: page.width

        Overline {
            width: parent.width
            height: Theme.layoutSidebarHeading
            verticalAlignment: Text.AlignVCenter
            words: qsTranslate("Loomstreet", "Either way")
            color: Theme.muted
            Accessible.role: Accessible.Heading
        }
        FactRow {
            width: parent.width
            iconName: "globe"
            title: qsTranslate("Loomstreet", "Essential is what you ask for")
            note: qsTranslate("Loomstreet", "The pages you open, your searches, your bag and your orders have to reach the store.")
        }
        FactRow {
            width: parent.width
            iconName: "heart"
            title: qsTranslate("Loomstreet", "What you keep stays on this computer")
            note: qsTranslate("Loomstreet", "Your wishlist, what you viewed and what you searched for, until you clear it.")
        }
        FactRow {
            width: parent.width
            iconName: "lock"
            title: qsTranslate("Loomstreet", "Your sign-in lies in the keyring")
            note: qsTranslate("Loomstreet", "Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.")
        }
    }
}
