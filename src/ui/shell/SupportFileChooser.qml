import QtCore
import QtQuick
import QtQuick.Dialogs
import Loomstreet.Model

// Chooses a file of this machine to go along with a message to customer service.
FileDialog {
    id: chooser

    required property SupportChatModel support

    title: qsTranslate("Loomstreet", "Attach a picture or a PDF")
    currentFolder: StandardPaths.writableLocation(StandardPaths.PicturesLocation)
    nameFilters: [qsTranslate("Loomstreet", "Pictures and PDF")
                  + " (*.jpg *.jpeg *.png *.webp *.gif *.pdf *.JPG *.JPEG *.PNG *.WEBP *.GIF *.PDF)"]
    onAccepted: support.attach(selectedFile)
}
