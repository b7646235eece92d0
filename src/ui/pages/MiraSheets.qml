import QtQuick
import Loomstreet.Model

// The sheets that the conversation opens, over the whole window that it is in.
Item {
    id: sheets

    property AppModel app

    readonly property bool open: wardrobe.isOpen || look.isOpen || measurements.isOpen

    signal newPiecesAsked()

    function showWardrobe(): void { wardrobe.present("MiraWardrobe.qml", { mira: app.mira }) }
    // What its pieces lead to opens in this window.
    function showLook(handles: var, session: WindowSession): void {
        look.session = session
        look.openLook(handles)
    }
    function showMeasurements(session: WindowSession): void {
        measurements.session = session
        measurements.open()
    }

    SheetPlace {
        id: wardrobe
    }
    LookSheet {
        id: look

        app: sheets.app
        session: null
    }
    MeasurementsSheet {
        id: measurements

        app: sheets.app
        session: null
    }
    Connections {
        target: wardrobe.made
        function onNewPiecesAsked(): void { sheets.newPiecesAsked() }
    }
}
