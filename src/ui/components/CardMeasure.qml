import QtQml
import Loomstreet.Theme

// What a card measures at a width, without making one.
QtObject {
    property real width: Theme.cardMinimumWidth

    readonly property int pictureHeight: Math.round(width / Theme.cardPictureRatio)
    // The designer, the title, the price, and the colours with the reason, a pixel between them.
    readonly property int wordsHeight: Theme.type.overline.line + Theme.type.body.line + Theme.type.price.line + reasonHeight + 3
    readonly property int reasonHeight: Theme.type.caption.line + 3
    readonly property int height: pictureHeight + Theme.cardTextGap + wordsHeight
}
