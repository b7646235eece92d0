pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What buyers say: the sum, the words they use most, and their reviews, a few at first and more on request.
Column {
    id: reviews

    property var summary: ({})

    readonly property int first: 3
    readonly property int step: 10
    readonly property var all: summary.reviews ?? []
    property bool hasMore: false

    signal pictureOpened(var pictures, int index)

    function reveal(count: int): void {
        while (shown.count < Math.min(count, all.length))
            shown.append({ number: shown.count })
        if (shown.count > all.length)
            shown.remove(all.length, shown.count - all.length)
        hasMore = shown.count < all.length
    }

    onAllChanged: reveal(Math.max(first, shown.count))

    spacing: Theme.space1_5

    Item {
        width: parent.width
        implicitHeight: heading.implicitHeight

        SectionHeader {
            id: heading

            anchors { left: parent.left; right: parent.right }
            title: qsTranslate("Loomstreet", "Reviews")
            note: {
                const rating = Number(reviews.summary.rating ?? 0)
                const count = reviews.summary.count ?? 0
                if (rating <= 0)
                    return reviews.summary.totalLabel ?? ""
                const shown = rating.toLocaleString(Qt.locale(), "f", 1)
                return count > 0 ? shown + "  ·  " + qsTranslate("Loomstreet", "%Ln reviews", "", count) : shown
            }
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.space1
        visible: (reviews.summary.tags ?? []).length > 0

        Repeater {
            model: (reviews.summary.tags ?? []).slice(0, 6)

            ReviewTag {
                required property var modelData

                text: modelData.tag
                count: modelData.count
            }
        }
    }
    // Which of them are shown. It only grows, so that none is made twice.
    ListModel { id: shown }

    Repeater {
        model: shown

        ProductReview {
            required property int number

            objectName: "review" + number
            width: reviews.width
            review: reviews.all[number] ?? ({})
            onPictureOpened: (pictures, picture) => reviews.pictureOpened(pictures, picture)
        }
    }
    PushButton {
        objectName: "more"
        anchors.left: parent.left
        visible: reviews.hasMore
        size: "small"
        text: qsTranslate("Loomstreet", "More reviews")
        onClicked: reviews.reveal(shown.count + reviews.step)
    }
    TextLabel {
        width: parent.width
        visible: text !== ""
        text: reviews.summary.footer ?? ""
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
    }
}
