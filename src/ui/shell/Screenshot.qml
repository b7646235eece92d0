import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Shell
import Loomstreet.Theme

// Takes a picture of the page and says where it went.
Item {
    id: screenshot

    required property AppModel app
    required property Item subject

    function take(): void { saver.save(subject, app.screenshotPath()) }

    ScreenshotSaver {
        id: saver

        onSaved: path => screenshot.say(qsTranslate("Loomstreet", "Screenshot saved"), path, "photo")
        onFailed: screenshot.say(qsTranslate("Loomstreet", "The screenshot couldn't be saved"), "", "warning")
    }
    function say(title: string, text: string, icon: string): void {
        toast.title = title
        toast.text = text
        toast.iconName = icon
        toast.open = true
    }
    Toast {
        id: toast

        objectName: "toast"
        anchors { top: parent.top; topMargin: Theme.space1_5; horizontalCenter: parent.horizontalCenter }
        duration: 6000
        onDismissed: open = false
        onActivated: open = false
    }
}
