pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// A day picked from the past: its year, its month, then the day. The title leads back up; arrows move between what can
// be picked, and what is still to come cannot.
Popover {
    id: picker

    property var chosen: null // a Date
    property var place: Qt.locale() // whose names months and days have
    // Who knows in which order the place writes month (from 0) and year says it instead.
    property var monthTitle: (year, month) => place.standaloneMonthName(month, Locale.LongFormat) + " " + year
    property string level: "year" // or "month", "day"
    property int year: 1990
    property int month: 0 // from 0
    property int firstYear: 1980 // of the page of years

    readonly property int yearsAtOnce: 20
    readonly property int columns: level === "year" ? 4 : level === "month" ? 3 : 7
    readonly property var cells: level === "year" ? years() : level === "month" ? months() : days()

    signal picked(int year, int month, int day)

    function shownMonth(): string {
        const say = monthTitle
        return say(year, month)
    }
    function begin(day: var, locale: var): void {
        const isKnown = !isNaN(day.getTime())
        chosen = isKnown ? day : null
        place = locale
        year = isKnown ? day.getFullYear() : 1990
        month = isKnown ? day.getMonth() : 0
        level = isKnown ? "day" : "year"
        firstYear = year - year % yearsAtOnce
    }
    function years(): var {
        const thisYear = new Date().getFullYear()
        return Array.from({ length: yearsAtOnce }, (_, index) => {
            const value = firstYear + index
            return { value: value, text: String(value), name: String(value), open: value <= thisYear, chosen: value === chosen?.getFullYear() }
        })
    }
    function months(): var {
        return Array.from({ length: 12 }, (_, index) => ({
            value: index,
            text: place.standaloneMonthName(index, Locale.ShortFormat),
            name: monthTitle(year, index),
            open: new Date(year, index, 1) < new Date(),
            chosen: year === chosen?.getFullYear() && index === chosen?.getMonth()
        }))
    }
    function days(): var {
        const before = (new Date(year, month, 1).getDay() - place.firstDayOfWeek + 7) % 7
        const count = new Date(year, month + 1, 0).getDate()
        const today = new Date()
        today.setHours(0, 0, 0, 0)
        return Array.from({ length: before + count }, (_, index) => {
            const day = new Date(year, month, index - before + 1)
            return {
                value: index - before + 1,
                text: index < before ? "" : String(index - before + 1),
                name: place.toString(day, Locale.LongFormat),
                open: index >= before && day < today,
                chosen: day.getTime() === (chosen ? new Date(chosen.getFullYear(), chosen.getMonth(), chosen.getDate()).getTime() : 0)
            }
        })
    }
    function choose(value: int): void {
        if (level === "year") {
            year = value
            show("month")
        } else if (level === "month") {
            month = value
            show("day")
        } else {
            picker.close()
            picked(year, month + 1, value)
        }
    }
    function show(next: string): void {
        level = next
        firstYear = year - year % yearsAtOnce
        grid.takeFocus()
    }
    function turn(by: int): void {
        if (level === "year") {
            firstYear = firstYear + by * yearsAtOnce
        } else if (level === "month") {
            year += by
        } else {
            const day = new Date(year, month + by, 1)
            year = day.getFullYear()
            month = day.getMonth()
        }
    }

    objectName: "datePicker"
    padding: Theme.space1_5
    onOpened: grid.takeFocus()

    contentItem: Column {
        spacing: Theme.space1

        Item {
            width: grid.width
            height: Theme.targetMinimum

            IconButton {
                objectName: "earlier"
                anchors.left: parent.left
                iconName: "chevron.left"
                text: qsTranslate("Loomstreet", "Earlier")
                onClicked: picker.turn(-1)
            }
            PushButton {
                objectName: "up"
                anchors.horizontalCenter: parent.horizontalCenter
                size: "small"
                kind: "quiet"
                enabled: picker.level !== "year"
                opacity: 1
                text: picker.level === "year" ? picker.firstYear + " – " + (picker.firstYear + picker.yearsAtOnce - 1)
                    : picker.level === "month" ? String(picker.year)
                                               : picker.shownMonth()
                Accessible.description: qsTranslate("Loomstreet", "Back to the year")
                onClicked: picker.show("year")
            }
            IconButton {
                objectName: "later"
                anchors.right: parent.right
                iconName: "chevron.right"
                text: qsTranslate("Loomstreet", "Later")
                onClicked: picker.turn(1)
            }
        }
        Row {
            visible: picker.level === "day"

            Repeater {
                model: 7

                TextLabel {
                    required property int index

                    width: grid.width / 7
                    text: picker.place.standaloneDayName((picker.place.firstDayOfWeek + index) % 7, Locale.NarrowFormat)
                    type: Theme.type.caption
                    color: Theme.muted
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.ignored: true
                }
            }
        }
        DateCells {
            id: grid

            width: 280
            // As tall as a month with six weeks and their names.
            height: 6 * Theme.targetMinimum + (picker.level === "day" ? 0 : Theme.type.caption.line + Theme.space1)
            cells: picker.cells
            columns: picker.columns
            onChosen: value => picker.choose(value)
        }
    }
}
