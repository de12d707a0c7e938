/*! The pointing hand over its parent. */
import QtQuick

HoverHandler {
    cursorShape: Qt.PointingHandCursor
}
