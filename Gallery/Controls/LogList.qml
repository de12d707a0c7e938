/*! What happened, newest last and in view. */
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Gallery

ListView {
    id: control

    property string name
    property string emptyText

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    spacing: Metrics.tiny
    activeFocusOnTab: count > 0 || activeFocus
    keyNavigationEnabled: false

    T.ScrollBar.vertical: ThinScrollBar {}

    onCountChanged: Qt.callLater(positionViewAtEnd)

    Keys.onUpPressed: flick(0, priv.keySpeed)
    Keys.onDownPressed: flick(0, -priv.keySpeed)

    Accessible.role: Accessible.List
    Accessible.name: name

    GalleryText {
        parent: control
        width: parent.width
        visible: control.count === 0
        text: control.emptyText
        wrapMode: Text.Wrap
        textColorSetName: "text-secondary"
    }
    FocusRing {
        parent: control
        designatedParent: control
        cornerRadius: 0
    }

    QtObject {
        id: priv

        readonly property int keySpeed: 500
    }
}
