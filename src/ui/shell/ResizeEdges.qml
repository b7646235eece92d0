pragma ComponentBehavior: Bound
import QtQuick

// The edges and corners by which a window without a desktop's frame is resized.
Item {
    id: edges

    required property Window window

    readonly property int thickness: 5

    visible: enabled

    component Edge: MouseArea {
        required property int side

        hoverEnabled: true
        cursorShape: {
            switch (side) {
            case Qt.LeftEdge: case Qt.RightEdge: return Qt.SizeHorCursor
            case Qt.TopEdge: case Qt.BottomEdge: return Qt.SizeVerCursor
            case Qt.LeftEdge | Qt.TopEdge: case Qt.RightEdge | Qt.BottomEdge: return Qt.SizeFDiagCursor
            default: return Qt.SizeBDiagCursor
            }
        }
        onPressed: edges.window.startSystemResize(side)
    }

    Edge { side: Qt.LeftEdge; anchors { left: parent.left; top: parent.top; bottom: parent.bottom } width: edges.thickness }
    Edge { side: Qt.RightEdge; anchors { right: parent.right; top: parent.top; bottom: parent.bottom } width: edges.thickness }
    Edge { side: Qt.TopEdge; anchors { left: parent.left; right: parent.right; top: parent.top } height: edges.thickness }
    Edge { side: Qt.BottomEdge; anchors { left: parent.left; right: parent.right; bottom: parent.bottom } height: edges.thickness }
    Edge { side: Qt.LeftEdge | Qt.TopEdge; anchors { left: parent.left; top: parent.top } width: 10; height: 10 }
    Edge { side: Qt.RightEdge | Qt.TopEdge; anchors { right: parent.right; top: parent.top } width: 10; height: 10 }
    Edge { side: Qt.LeftEdge | Qt.BottomEdge; anchors { left: parent.left; bottom: parent.bottom } width: 10; height: 10 }
    Edge { side: Qt.RightEdge | Qt.BottomEdge; anchors { right: parent.right; bottom: parent.bottom } width: 10; height: 10 }
}
