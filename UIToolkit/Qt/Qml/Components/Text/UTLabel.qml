/*!
    A label, with a tool tip if wanted.

    \qml
    UTLabel { text: file.name; toolTipText: file.path; elide: Text.ElideMiddle }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0

UTLabelBase {
    id: control

    //! Shown while the pointer is over the label; empty for no tool tip.
    property string toolTipText
    property bool tooltipEnabled: true
    //! Shows the tool tip as a plain rectangle; otherwise as a balloon with an arrow.
    property bool isTooltipNative: true
    //! The tool tip, once there has been a text for it.
    property Item toolTip: null

    onToolTipTextChanged: {
        if (!toolTip && toolTipText.length > 0)
            toolTip = Qt.createComponent("LabelToolTip.qml").createObject(control, { label: control }) as Item;
    }
}
