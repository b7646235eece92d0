pragma Singleton
import QtQuick

// The one tooltip of the application: only one is ever seen, and every icon could have one. It lives while it is shown.
QtObject {
    id: toolTips

    property Item control: null
    property string text
    property string shortcut
    property ToolTip shown: null

    readonly property Component component: Component { ToolTip { objectName: "toolTip" } }
    readonly property Timer delay: Timer {
        interval: 500
        onTriggered: toolTips.open()
    }

    function show(control: Item, text: string, shortcut: string): void {
        close()
        toolTips.control = control
        toolTips.text = text
        toolTips.shortcut = shortcut
        delay.restart()
    }
    function hide(control: Item): void {
        if (toolTips.control === control)
            close()
    }

    function open(): void {
        if (control === null)
            return
        shown = component.createObject(control, { text: text, shortcut: shortcut, delay: 0 }) as ToolTip
        shown.closed.connect(shown.destroy)
        shown.open()
    }
    function close(): void {
        delay.stop()
        control = null
        if (shown !== null)
            shown.close()
        shown = null
    }
}
