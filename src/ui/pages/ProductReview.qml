pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What one buyer wrote.
Column {
    id: entry

    property var review: ({})

    signal pictureOpened(var pictures, int index)

    topPadding: Theme.spaceHalf
    spacing: Theme.spaceHalf

    Item {
        width: parent.width
        implicitHeight: who.implicitHeight

        Row {
            id: who

            readonly property real room: width - (stars.visible ? stars.width + spacing : 0)

            anchors.left: parent.left
            width: parent.width - date.width - Theme.space1
            spacing: Theme.space1

            StarRating {
                id: stars

                anchors.verticalCenter: parent.verticalCenter
                visible: value > 0
                value: entry.review.rating ?? 0
            }
            TextLabel {
                id: name

                width: Math.min(implicitWidth, who.room)
                text: entry.review.user ?? ""
                type: Theme.type.captionStrong
            }
            TextLabel {
                width: Math.max(0, Math.min(implicitWidth, who.room - name.width - who.spacing))
                visible: width >= Math.min(implicitWidth, 4 * type.size)
                text: [entry.review.country, entry.review.sku].filter(part => part).join(" · ")
                type: Theme.type.caption
                color: Theme.muted
            }
        }
        TextLabel {
            id: date

            anchors.right: parent.right
            text: entry.review.date ?? ""
            type: Theme.type.caption
            figures: true
            color: Theme.muted
        }
    }
    TextLabel {
        width: parent.width
        visible: text !== ""
        text: entry.review.content ?? ""
        type: Theme.type.small
        wrapMode: Text.Wrap
    }
    ReviewPictures {
        anchors.left: parent.left
        pictures: entry.review.images ?? []
        onOpened: index => entry.pictureOpened(entry.review.images, index)
    }
    TextLabel {
        width: parent.width
        visible: (entry.review.appendReview ?? "") !== ""
        text: qsTranslate("Loomstreet", "After %Ln days: %1", "", entry.review.appendDays ?? 0)
              .arg(Bidi.isolate(entry.review.appendReview ?? ""))
        type: Theme.type.small
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    ReviewPictures {
        anchors.left: parent.left
        pictures: entry.review.appendImages ?? []
        onOpened: index => entry.pictureOpened(entry.review.appendImages, index)
    }
    Repeater {
        model: entry.review.replies ?? []

        TextLabel {
            required property string modelData

            width: entry.width
            leftPadding: Theme.space2
            text: qsTranslate("Loomstreet", "The store answered: %1").arg(Bidi.isolate(modelData))
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
        }
    }
    Item { width: 1; height: Theme.spaceHalf }
    Hairline { width: parent.width }
}
