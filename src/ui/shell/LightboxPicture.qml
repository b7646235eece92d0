import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A picture of the lightbox, whole, in as much detail as `detail` pixels for each point of the place it fills.
Image {
    id: picture

    property string address
    property real detail: 1

    asynchronous: true
    fillMode: Image.PreserveAspectFit
    source: address === "" || height <= 0 ? "" : PictureAddress.at(address, PictureAddress.widthStep(Math.ceil(height * Theme.cardPictureRatio * detail)))
    sourceSize.height: Math.ceil(height * Math.max(1, detail / Screen.devicePixelRatio))
}
