/*!
    A chip: a short text that stands for a person, a filter or a file, with an icon that removes it. Delete and Backspace
    remove it too.

    \qml
    UTChip {
        text: person.name
        param: person.id
        chipStyle: UTChipStyle.Outline_Cobalt
        onCloseClicked: param => recipients.remove(param)
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! Icon name; shown only if showLeftIcon is true as well.
    property string leftIcon
    property bool showLeftIcon
    //! Handed back by closeClicked.
    property var param: null
    //! A value of UTChipStyle.
    property int chipStyle: 1 // UTChipStyle.Outline_Default

    //! The chip is to be removed. Emitted when the close icon is pressed, not when it is released.
    signal closeClicked(var param)

    onFocusRingWanted: settings => Object.assign(settings, { isRectangle: true, cornerRadius: 8, themeType: () => control.themeType })

    UTChipData.themeType: themeType
    UTChipData.height: 24
    UTChipData.style: chipStyle
    UTChipData.eventData: UTEventData { source: control }

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft ? true : undefined
    LayoutMirroring.childrenInherit: true

    checkable: false
    isTextEilded: false
    implicitHeight: Math.max(UTChipData.height, implicitContentHeight)
    leftPadding: priv.padding
    rightPadding: priv.padding

    background: Rectangle {
        radius: control.UTChipData.radius
        color: control.UTChipData.backgroundColorData.color
        border.color: control.UTChipData.borderColorData.color
        border.width: control.UTChipData.border
    }
    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: FontConstants.bodyPrimary
        color: control.UTChipData.textColorData.color
        leftPadding: control.mirrored ? priv.closeRoom : priv.iconRoom
        rightPadding: control.mirrored ? priv.iconRoom : priv.closeRoom
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        onTruncatedChanged: control.isTextEilded = truncated

        Accessible.role: Accessible.StaticText
        Accessible.name: control.text

        UTSvgResource {
            x: control.mirrored ? 0 : control.availableWidth - width
            y: Math.round((control.availableHeight - height) / 2)
            width: sourceSize.width
            height: width
            asynchronous: false // there at once, also in another colour
            svgName: "cancel-bold"
            svgColor: control.UTChipData.textColorData.color
            sourceSize: control.UTChipData.iconSize

            MouseArea {
                anchors.fill: parent
                anchors.margins: -priv.padding / 2
                onPressed: control.closeClicked(control.param)

                Accessible.role: Accessible.Button
                Accessible.name: qsTr("Remove %1").arg(control.text)
                Accessible.onPressAction: control.closeClicked(control.param)
            }
        }
    }

    onShowLeftIconChanged: Script.needPart(control, "leftIcon", "UTSvgResource", {
        svgName: () => control.leftIcon,
        svgColor: () => control.UTChipData.textColorData.color,
        sourceSize: () => control.UTChipData.iconSize,
        visible: () => priv.hasLeftIcon,
        asynchronous: false,
        x: () => control.mirrored ? control.availableWidth - control.UTChipData.iconSize.width : 0,
        y: () => Math.round((control.availableHeight - control.UTChipData.iconSize.height) / 2)
    }, contentItem)

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Delete && event.key !== Qt.Key_Backspace)
            return;
        event.accepted = true;
        if (!event.isAutoRepeat)
            control.closeClicked(control.param);
    }

    Accessible.description: qsTr("Press Delete to remove")

    QtObject {
        id: priv

        readonly property int padding: 8
        readonly property int spacing: 4
        readonly property bool hasLeftIcon: control.showLeftIcon && control.leftIcon.length > 0
        readonly property real closeRoom: control.UTChipData.iconSize.width + spacing
        readonly property real iconRoom: hasLeftIcon ? closeRoom : 0
    }
}
