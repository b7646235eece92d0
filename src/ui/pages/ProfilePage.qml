pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Who the shopper is to the store, and what it may send them.
PageBase {
    id: page

    readonly property ProfileStore profile: app.profile
    readonly property bool ready: profile.phase === AccountContent.Ready
    readonly property int formWidth: 560

    title: qsTranslate("Loomstreet", "Profile")
    settled: ready || profile.phase === AccountContent.NeedsAccount || profile.phase === AccountContent.Failed
    flickable: scroller

    function takeFocus(): void { (ready ? scroller : states).forceActiveFocus() }
    function reload(): void { profile.reload() }

    // What stood in its place held the keyboard.
    onReadyChanged: if (ready && activeFocus) takeFocus()
    onShownChanged: if (shown) profile.show()
    Component.onCompleted: if (shown) profile.show()

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.profile.isOffline
        canRetry: true
        visible: page.ready && text !== ""
        text: page.profile.errorText
        onRetry: page.profile.reload()
    }
    Flickable {
        id: scroller

        objectName: "scroller"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.ready
        focus: true
        contentHeight: body.height + Theme.space6
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: scroller }

        Column {
            id: body

            x: page.padding
            width: scroller.width - 2 * page.padding

            ListHeader {
                width: parent.width
                narrow: page.narrow
                title: page.title
                note: page.profile.memberSince === "" ? ""
                      : qsTranslate("Loomstreet", "With us since %1").arg(page.profile.memberSince)
            }
            ProfileForm {
                id: form

                anchors.left: parent.left
                width: Math.min(parent.width, page.formWidth)
                profile: page.profile
            }
            Column {
                anchors.left: parent.left
                width: Math.min(parent.width, page.formWidth)
                topPadding: Theme.space5

                SectionHeader {
                    width: parent.width
                    height: implicitHeight + Theme.space1_5
                    title: qsTranslate("Loomstreet", "Newsletters")
                }
                Hairline { width: parent.width }
                SwitchRow {
                    objectName: "wantsEmail"
                    width: parent.width
                    text: qsTranslate("Loomstreet", "By email")
                    note: qsTranslate("Loomstreet", "New pieces and offers, to %1").arg(Bidi.isolate(page.profile.email))
                    checked: page.profile.wantsEmail
                    onToggled: {
                        const wants = checked
                        checked = Qt.binding(() => page.profile.wantsEmail)
                        page.profile.setWantsEmail(wants)
                    }
                }
                SwitchRow {
                    objectName: "wantsMessages"
                    width: parent.width
                    text: qsTranslate("Loomstreet", "By text message")
                    note: page.profile.phone === "" ? qsTranslate("Loomstreet", "Needs your phone number above")
                                                        : qsTranslate("Loomstreet", "New pieces and offers, to %1").arg(Bidi.isolate(page.profile.phone))
                    checked: page.profile.wantsMessages
                    onToggled: {
                        const wants = checked
                        checked = Qt.binding(() => page.profile.wantsMessages)
                        page.profile.setWantsMessages(wants)
                    }
                }
                CartNotice {
                    objectName: "newslettersError"
                    width: parent.width
                    sentence: page.profile.newslettersErrorText
                    iconName: "warning"
                    tone: Theme.danger
                }
            }
        }
    }
    AccountStates {
        id: states

        anchors.fill: parent
        content: page.profile
        session: page.session
        shown: page.shown
        iconName: "person.crop.circle"
        signInTitle: qsTranslate("Loomstreet", "Sign in to see your profile")
        signInSentence: qsTranslate("Loomstreet", "Your name, your phone number and what we may send you.")

        ProfileSkeleton {
            anchors.fill: parent
            padding: page.padding
            narrow: page.narrow
            title: page.title
            formWidth: page.formWidth
        }
    }
}
