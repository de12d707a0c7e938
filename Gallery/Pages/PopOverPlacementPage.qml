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
    readonly property int wantedAnchor: UTPopOverEnum[anchor.value]

    onSettingsChanged: Qt.callLater(map.place)
    Component.onCompleted: map.place()

    Card {
        id: map

        // The real screen, drawn to scale.
        readonly property real factor: width / screenRect.width
        readonly property rect screenRect: Qt.rect(Screen.virtualX, Screen.virtualY, Math.max(1, Screen.width), Math.max(1, Screen.height))
        readonly property rect targetRect: Qt.rect(screenRect.x + Math.round(target.x / factor), screenRect.y + Math.round(target.y / factor),
                                                   Math.round(target.width / factor), Math.round(target.height / factor))

        function place(): void {
            const data = ghost.UTPopOverData;
            // A placing rewrites the side, so each begins from the one asked for.
            data.popOverSize = Qt.size(0, 0);
            data.arrowAnchor = page.wantedAnchor;
            data.targetItemRect = targetRect;
            data.arrowAnchor = page.wantedAnchor;
            data.popOverSize = Qt.size(balloonWidth.value, balloonHeight.value);
            looseWindow.follow();
        }

        //! Moves the target to \a globalX, \a globalY of the real screen.
        function moveTo(globalX: int, globalY: int): void {
            target.x = (globalX - screenRect.x) * factor;
            target.y = (globalY - screenRect.y) * factor;
        }

        width: parent.width
        height: Math.round(width * screenRect.height / screenRect.width)
        clip: true

        Column {
            anchors {
                left: parent.left
                bottom: parent.bottom
                margins: Metrics.large
            }
            spacing: 2
            width: parent.width - 2 * Metrics.large

            GalleryText {
                width: parent.width
                text: qsTr("A screen of %1 × %2 pixels").arg(map.screenRect.width).arg(map.screenRect.height)
                textColorSetName: "text-secondary"
            }
            GalleryText {
                width: parent.width
                text: qsTr("popOverPosition %1, %2; arrowAnchor %3; arrowOffset %4").arg(ghost.UTPopOverData.popOverPosition.x)
                    .arg(ghost.UTPopOverData.popOverPosition.y).arg(ghost.side).arg(ghost.UTPopOverData.arrowOffset)
                textColorSetName: "text-secondary"
            }
        }
        KBalloon {
            id: ghost

            readonly property string side: anchor.options[UTPopOverData.arrowAnchor]

            UTPopOverData.arrowAlignment: UTPopOverEnum[alignment.value]
            UTPopOverData.arrowVisible: true
            UTPopOverData.size: UTPopOverEnum[size.value]
            UTPopOverData.arrowOffset: offset.value

            x: (UTPopOverData.popOverPosition.x - map.screenRect.x) * map.factor
            y: (UTPopOverData.popOverPosition.y - map.screenRect.y) * map.factor
            width: UTPopOverData.popOverSize.width * map.factor
            height: UTPopOverData.popOverSize.height * map.factor
            arrowAnchor: UTPopOverData.arrowAnchor
            arrowAlignment: UTPopOverData.arrowAlignment
            arrowOffset: UTPopOverData.arrowOffset * map.factor
            arrowSize: UTPopOverData.arrowSize * map.factor
            radius: UTPopOverData.radius * map.factor
            backgroundColor: (ThemeManager.globalTheme, App.getColorSet("popover-primary-background").normal)
            borderColor: (ThemeManager.globalTheme, App.getColorSet("text-secondary").normal)
            onSideChanged: Qt.callLater(page.log, qsTr("the arrow is on side %1").arg(side))
        }
        KRectangle {
            id: target

            x: Math.round(map.width * 0.45)
            y: Math.round(map.height * 0.3)
            width: 48
            height: 24
            radius: 4
            backgroundColorSetName: "button-accent-fill-background"
            // Black on black otherwise.
            border.width: ThemeManager.isHighContrastTheme ? 1 : 0
            border.color: (ThemeManager.globalTheme, App.getColorSet("button-accent-fill-text").normal)
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
            text: looseWindow.visible ? qsTr("Take the target off the screen") : qsTr("Put the target on the real screen")
            buttonStyle: UTButtonStyle.Secondary
            onClicked: {
                looseWindow.visible = !looseWindow.visible;
                map.place();
            }
        }
    }

    // The target itself, where the map shows it: it can be dragged there as well, and a real pop-over points at it.
    Window {
        id: looseWindow

        function follow(): void {
            if (!visible)
                return;
            x = map.targetRect.x;
            y = map.targetRect.y;
            if (!real.windowComponentInstance)
                return;
            real.windowComponentInstance.UTPopOverData.arrowAnchor = page.wantedAnchor;
            real.updatePosition();
        }

        width: map.targetRect.width
        height: map.targetRect.height
        flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
        title: qsTr("Target")
        color: "transparent"

        KRectangle {
            id: handle

            width: looseWindow.width
            height: looseWindow.height
            backgroundColorSetName: target.backgroundColorSetName
            border.width: target.border.width
            border.color: target.border.color

            GalleryText {
                anchors.centerIn: parent
                text: qsTr("Drag me")
                textColorSetName: "button-accent-fill-text"
            }
            DragHandler {
                target: null
                onCentroidChanged: {
                    if (!active)
                        return;
                    const pointer = handle.mapToGlobal(centroid.scenePosition);
                    map.moveTo(pointer.x - centroid.scenePressPosition.x, pointer.y - centroid.scenePressPosition.y);
                }
            }
            UTPopOver {
                id: real

                active: looseWindow.visible
                arrowAlignment: UTPopOverEnum[alignment.value]
                arrowAnchor: page.wantedAnchor
                popOverSize: UTPopOverEnum[size.value]
                arrowOffset: offset.value
                popOverMargin: 0
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
