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

    property string savedPath

    function take(): void { saver.save(subject, app.screenshotPath()) }

    ScreenshotSaver {
        id: saver

        onSaved: path => {
            screenshot.savedPath = path
            screenshot.say(qsTranslate("Loomstreet", "Screenshot saved"), path.slice(path.lastIndexOf("/") + 1), "photo", "plain")
        }
        onFailed: {
            screenshot.savedPath = ""
            screenshot.say(qsTranslate("Loomstreet", "The screenshot couldn't be saved"),
                           qsTranslate("Loomstreet", "Check that there is room in your Pictures folder."), "warning", "danger")
        }
    }
    function say(title: string, text: string, icon: string, tone: string): void {
        toast.tone = tone
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
        actionText: screenshot.savedPath !== "" ? qsTranslate("Loomstreet", "Show Folder") : ""
        onActivated: {
            open = false
            screenshot.app.showFolderOf(screenshot.savedPath)
        }
    }
}
