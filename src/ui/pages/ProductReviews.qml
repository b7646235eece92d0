pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What buyers say: the sum, the words they use most, and their reviews, a few at first.
Column {
    id: reviews

    property var summary: ({})
    property int shownCount: 3

    readonly property var all: summary.reviews ?? []

    signal pictureOpened(var pictures, int index)

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
                return qsTranslate("Loomstreet", "%1 of %2").arg(rating.toFixed(1)).arg(count)
            }
            actionText: reviews.all.length > reviews.shownCount ? qsTranslate("Loomstreet", "All") : ""
            onActivated: reviews.shownCount = reviews.all.length
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
    Repeater {
        model: reviews.all.slice(0, reviews.shownCount)

        ProductReview {
            required property var modelData
            required property int index

            objectName: "review" + index
            width: reviews.width
            review: modelData
            onPictureOpened: (pictures, picture) => reviews.pictureOpened(pictures, picture)
        }
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
