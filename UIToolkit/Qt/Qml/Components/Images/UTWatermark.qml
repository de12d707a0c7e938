/*!
    A faint text all over its parent, on a slant. It lets everything through.

    \qml
    UTWatermark { anchors.fill: parent; contentText: user.mail }
    \endqml
*/
pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0

Item {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! The text that is repeated.
    property string contentText
    //! The opacity of each repetition.
    property real customOpacity: 0.1
    //! A UTWatermarkEnum.WatermarkSize. It changes nothing, on purpose: the metrics are those of Medium.
    property int watermarkSize: UTWatermarkEnum.Medium
    //! Degrees, clockwise.
    property int rotationAngle: UTWatermarkData.rotationAngle
    //! The room that the slanted text has to fill, in pixels.
    property int actualWidth: (parent?.width ?? 0) / Math.abs(Math.cos(priv.angle)) + (parent?.height ?? 0) * Math.abs(Math.sin(priv.angle))
    property int actualHeight: ((parent?.height ?? 0) + (parent?.width ?? 0) * Math.abs(Math.tan(priv.angle))) * Math.abs(Math.cos(priv.angle))

    clip: true

    // Measures one repetition.
    KText {
        id: measure

        visible: false
        text: control.contentText
        textFormat: Text.PlainText
        font.family: FontConstants.defaultFamily
        font.pointSize: control.UTWatermarkData.fontPointSize
    }
    Column {
        transform: Rotation {
            origin.x: 0
            origin.y: control.parent?.height ?? 0
            angle: control.rotationAngle
        }

        Repeater {
            model: priv.rows

            Row {
                id: row

                required property int index

                leftPadding: index % 2 === 1 ? priv.cellWidth / 2 : 0
                spacing: control.UTWatermarkData.watermarkWidth

                Repeater {
                    model: priv.columns

                    Item {
                        width: priv.cellWidth
                        height: priv.cellHeight
                        opacity: control.customOpacity

                        Repetition {
                            anchors.margins: 1
                            text: control.contentText
                            font.pointSize: control.UTWatermarkData.fontPointSize
                            color: "black"
                        }
                        Repetition {
                            text: control.contentText
                            font.pointSize: control.UTWatermarkData.fontPointSize
                            color: "white"
                        }
                    }
                }
            }
        }
    }

    component Repetition: Text {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        textFormat: Text.PlainText
        font.family: FontConstants.defaultFamily

        Accessible.ignored: true
    }

    QtObject {
        id: priv

        readonly property real angle: control.rotationAngle * Math.PI / 180
        readonly property real cellWidth: measure.width + control.UTWatermarkData.watermarkWidth
        readonly property real cellHeight: measure.height + control.UTWatermarkData.watermarkHeight
        readonly property int rows: control.contentText.length > 0 ? Math.ceil(control.actualHeight / cellHeight) : 0
        readonly property int columns: Math.ceil(control.actualWidth / cellWidth)
    }
}
