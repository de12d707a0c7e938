pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import UiElements 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Pop-overs")
    description: qsTr("Where balloons go: drag the target over the screen and see the balloon flip and slide.")
    controls: [
        PropertyChoice { id: anchor; label: "arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 1 },
        PropertyChoice {
            id: alignment
            label: "arrowAlignment"
            options: ["LeftAlignment", "CenterAlignment", "RightAlignment", "TopAlignment", "BottomAlignment"]
            currentIndex: 1
        },
        PropertyChoice { id: size; label: "size"; options: ["Small", "Medium"] },
        PropertySlider { id: offset; label: "arrowOffset"; from: -60; to: 60; value: 0 },
        PropertySlider { id: balloonWidth; label: qsTr("balloon width"); from: 40; to: 600; value: 240 },
        PropertySlider { id: balloonHeight; label: qsTr("balloon height"); from: 40; to: 500; value: 120 }
    ]

    readonly property var settings: [anchor.currentIndex, alignment.currentIndex, size.currentIndex, offset.value, balloonWidth.value, balloonHeight.value]

    onSettingsChanged: Qt.callLater(map.place)
    Component.onCompleted: map.place()

    Card {
        id: map

        // The real screen, drawn to scale.
        readonly property real factor: width / screenRect.width
        readonly property rect screenRect: Qt.rect(Screen.virtualX, Screen.virtualY, Math.max(1, Screen.width), Math.max(1, Screen.height))

        function place(): void {
            const balloonSize = Qt.size(balloonWidth.value, balloonHeight.value);
            // A placing rewrites the side, so each begins from the one asked for.
            ghost.UTPopOverData.arrowAnchor = UTPopOverEnum[anchor.value];
            ghost.UTPopOverData.popOverSize = Qt.size(0, 0);
            ghost.UTPopOverData.arrowAnchor = UTPopOverEnum[anchor.value];
            ghost.UTPopOverData.targetItemRect = Qt.rect(screenRect.x + target.x / factor, screenRect.y + target.y / factor,
                                                         target.width / factor, target.height / factor);
            ghost.UTPopOverData.arrowAnchor = UTPopOverEnum[anchor.value];
            ghost.UTPopOverData.popOverSize = balloonSize;
        }

        width: parent.width
        height: Math.round(width * screenRect.height / screenRect.width)

        GalleryText {
            anchors.centerIn: parent
            text: qsTr("%1 × %2 pixels").arg(map.screenRect.width).arg(map.screenRect.height)
            textColorSetName: "text-secondary"
        }
        KBalloon {
            id: ghost

            UTPopOverData.arrowAlignment: UTPopOverEnum[alignment.value]
            UTPopOverData.arrowVisible: true
            UTPopOverData.size: UTPopOverEnum[size.value]
            UTPopOverData.arrowOffset: offset.value

            x: (UTPopOverData.popOverPosition.x - map.screenRect.x) * map.factor
            y: (UTPopOverData.popOverPosition.y - map.screenRect.y) * map.factor
            width: UTPopOverData.popOverSize.width
            height: UTPopOverData.popOverSize.height
            scale: map.factor
            transformOrigin: Item.TopLeft
            arrowAnchor: UTPopOverData.arrowAnchor
            arrowAlignment: UTPopOverData.arrowAlignment
            arrowOffset: UTPopOverData.arrowOffset
            arrowSize: UTPopOverData.arrowSize
            radius: UTPopOverData.radius
            backgroundColor: (ThemeManager.globalTheme, App.getColorSet("popover-primary-background").normal)
            borderColor: (ThemeManager.globalTheme, App.getColorSet("text-secondary").normal)
            onArrowAnchorChanged: page.log(qsTr("the arrow is on side %1").arg(["None", "Top", "Bottom", "Left", "Right"][arrowAnchor]))

            GalleryText {
                anchors.centerIn: parent
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("%1, %2\noffset %3").arg(ghost.UTPopOverData.popOverPosition.x).arg(ghost.UTPopOverData.popOverPosition.y)
                    .arg(ghost.UTPopOverData.arrowOffset)
            }
        }
        KRectangle {
            id: target

            x: Math.round(map.width * 0.45)
            y: Math.round(map.height * 0.3)
            width: 48
            height: 24
            radius: 4
            backgroundColorSetName: "button-accent-fill-background"
            activeFocusOnTab: true
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Target, moved by the arrow keys")

            onXChanged: Qt.callLater(map.place)
            onYChanged: Qt.callLater(map.place)
            Keys.onPressed: event => {
                const step = 8;
                const moves = ({ [Qt.Key_Left]: [-step, 0], [Qt.Key_Right]: [step, 0], [Qt.Key_Up]: [0, -step], [Qt.Key_Down]: [0, step] })[event.key];
                event.accepted = moves !== undefined;
                if (moves) {
                    target.x += moves[0];
                    target.y += moves[1];
                }
            }

            DragHandler {}
            KCustomFocusItem { isRectangle: true; cornerRadius: 4 }
        }
    }
    Playground {
        UTPillButton {
            text: qsTr("A real one: drag me")
            buttonStyle: UTButtonStyle.Secondary
            onClicked: real.active = !real.active
            onXChanged: real.updatePosition()
            onYChanged: real.updatePosition()

            DragHandler {}
            UTPopOver {
                id: real

                arrowAnchor: UTPopOverEnum[anchor.value]
                arrowAlignment: UTPopOverEnum[alignment.value]
                popOverSize: UTPopOverEnum[size.value]
                arrowOffset: offset.value
                showWithActive: false
                automaticClose: false
                content: Item {
                    implicitWidth: balloonWidth.value
                    implicitHeight: balloonHeight.value
                }
            }
        }
    }
}
