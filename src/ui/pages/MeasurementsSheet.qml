import Loomstreet.Model

// Where the shopper enters their measurements for the stylist.
SheetPlace {
    id: place

    required property AppModel app
    required property WindowSession session

    function open(): void {
        app.measurements.begin()
        present("MeasurementsForm.qml", { app: app })
    }
}
