import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A piece of news in its list; above the first of a day or of those before stands which.
FocusScope {
    id: entry

    required property int index
    required property string notificationId
    required property string title
    required property string body
    required property string symbol
    required property string picture
    required property string date
    required property string link
    required property bool isUnread
    required property bool isSupport

    property int inset: Theme.space3

    readonly property bool begins: ListView.previousSection !== ListView.section

    signal opened()

    implicitHeight: heading.height + row.height

    Overline {
        id: heading

        x: entry.inset
        width: parent.width - 2 * entry.inset
        height: visible ? Theme.type.overline.line + Theme.space2 + Theme.space1 : 0
        visible: entry.begins
        verticalAlignment: Text.AlignBottom
        bottomPadding: Theme.spaceHalf
        words: entry.ListView.section
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }
    NotificationRow {
        id: row

        objectName: "notification." + entry.notificationId
        y: heading.height
        width: parent.width
        focus: true
        inset: entry.inset
        title: entry.title
        body: entry.body
        symbol: entry.symbol
        picture: entry.picture
        date: entry.date
        isUnread: entry.isUnread
        onClicked: entry.opened()
    }
}
