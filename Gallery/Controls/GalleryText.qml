/*! A text of the gallery itself: KText without the padding, aligned to where lines start in the layout. */
import QtQuick
import UIToolkitQml 1.0

KText {
    leftPadding: 0
    rightPadding: 0
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
}
