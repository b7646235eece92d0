import QtQml

// What the page of a list says where it has no pieces to show, and the ways on from there: {text, go()}.
QtObject {
    property string missingTitle
    property string missingSentence
    property string emptyIcon: "info"
    property string emptyTitle
    property string emptySentence
    property string filteredTitle
    property string filteredSentence
    property var ways: []
}
