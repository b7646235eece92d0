pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper can set, a page for each matter; the last one looked at is remembered.
Window {
    id: window

    required property AppModel app
    required property SystemAppearance systemAppearance

    readonly property AppSettings settings: app.settings
    readonly property var pages: [
        { id: "general", title: qsTranslate("Loomstreet", "General"), icon: "gear" },
        { id: "account", title: qsTranslate("Loomstreet", "Account"), icon: "person.crop.circle" },
        { id: "notifications", title: qsTranslate("Loomstreet", "Notifications"), icon: "bell" },
        { id: "sound", title: qsTranslate("Loomstreet", "Sound"), icon: "speaker" },
        { id: "appearance", title: qsTranslate("Loomstreet", "Appearance"), icon: "sun" },
        { id: "privacy", title: qsTranslate("Loomstreet", "Privacy"), icon: "lock" },
        { id: "updates", title: qsTranslate("Loomstreet", "Updates"), icon: "download" }
    ]
    readonly property int current: Math.max(0, pages.findIndex(page => page.id === settings.settingsTab))

    function applyStyle(): void {
        color = Qt.binding(() => Theme.surface)
    }

    objectName: "settings"
    width: Theme.layoutSettingsWindow.width
    height: Theme.layoutSettingsWindow.height
    minimumWidth: 640
    minimumHeight: 420
    title: qsTranslate("Loomstreet", "Settings")
    color: Theme.surface
    // On the window, so that menus and tooltips are mirrored as well.
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true

    ThemeInputs {
        settings: window.settings
        system: window.systemAppearance
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }
    // It closes what lies over the page first.
    Shortcut {
        sequence: "Esc"
        enabled: !account.asking && !signIn.open
        onActivated: window.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: window.app.quitRequested()
    }

    Item {
        anchors.fill: parent
        Rectangle {
            id: side

            anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
            width: 208
            color: Theme.sunken

            ListView {
                id: list

                objectName: "settingsTabs"
                anchors { fill: parent; margins: Theme.space1; topMargin: Theme.space2 }
                spacing: Theme.spaceHalf
                focus: true
                activeFocusOnTab: true
                keyNavigationEnabled: true
                interactive: contentHeight > height
                currentIndex: window.current
                onCurrentIndexChanged: if (activeFocus && window.pages[currentIndex]) window.settings.settingsTab = window.pages[currentIndex].id
                model: window.pages

                Accessible.role: Accessible.PageTabList
                Accessible.name: window.title

                delegate: SettingsTab {
                    required property var modelData
                    required property int index

                    objectName: "settings." + modelData.id
                    width: list.width
                    focus: ListView.isCurrentItem
                    text: modelData.title
                    iconName: modelData.icon
                    selected: window.current === index
                    onClicked: window.settings.settingsTab = modelData.id
                }
            }
        }
        Hairline {
            anchors { left: side.right; top: parent.top; bottom: parent.bottom }
        }
        Flickable {
            id: flick

            anchors { left: side.right; right: parent.right; top: parent.top; bottom: parent.bottom }
            contentHeight: sheet.height + 2 * Theme.space3
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            ScrollBar.vertical: ScrollBar {}

            FocusFollower { flickable: flick }

            Item {
                id: sheet

                readonly property Item shown: [general, account, notifications, sound, appearance, privacy, updates][window.current]

                anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.space4; topMargin: Theme.space3 }
                height: shown.implicitHeight

                GeneralSettings {
                    id: general

                    width: parent.width
                    visible: sheet.shown === this
                    app: window.app
                }
                AccountSettings {
                    id: account

                    width: parent.width
                    visible: sheet.shown === this
                    app: window.app
                    onSignInAsked: signIn.open = true
                }
                NotificationsSettings {
                    id: notifications

                    width: parent.width
                    visible: sheet.shown === this
                    app: window.app
                }
                SoundSettings {
                    id: sound

                    width: parent.width
                    visible: sheet.shown === this
                    app: window.app
                    shown: visible && window.visible
                }
                AppearanceSettings {
                    id: appearance

                    width: parent.width
                    visible: sheet.shown === this
                    settings: window.settings
                }
                PrivacySettings {
                    id: privacy

                    width: parent.width
                    visible: sheet.shown === this
                    settings: window.settings
                }
                UpdatesSettings {
                    id: updates

                    width: parent.width
                    visible: sheet.shown === this
                    app: window.app
                }
            }
        }
        SignInLoader {
            id: signIn

            anchors.fill: parent
            app: window.app
            narrow: true
            onCloseAsked: open = false
        }
    }
}
