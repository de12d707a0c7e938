pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Focus")
    description: qsTr("Shows the focus ring around its parent while the user navigates by keyboard. Press Tab to see it.")
    controls: [
        PropertySwitch { id: isRectangle; label: "isRectangle"; value: true },
        PropertySlider { id: cornerRadius; label: "cornerRadius"; to: 40; value: 8 },
        PropertySwitch { id: inner; label: "innerFocusBorder" },
        PropertySwitch { id: custom; label: "customRect" },
        PropertySwitch { id: semicircle; label: "isSemicircle" },
        PropertySwitch { id: topLeft; label: "RectangularCorner.TopLeft" },
        PropertySwitch { id: bottomRight; label: "RectangularCorner.BottomRight" }
    ]

    Playground {
        FocusSample {
            width: 200
            height: 72
            label: qsTr("Focus me")
            radius: isRectangle.value ? cornerRadius.value : height / 2
            page: page

            KCustomFocusItem {
                isRectangle: isRectangle.value
                cornerRadius: cornerRadius.value
                innerFocusBorder: inner.value
                isSemicircle: semicircle.value
                customRect: custom.value ? Qt.rect(20, 12, 80, 48) : Qt.rect(0, 0, 0, 0)
                rectangularCornerMask: (topLeft.value ? KBasicFocusItem.TopLeft : 0)
                    | (bottomRight.value ? KBasicFocusItem.BottomRight : 0)
            }
        }
    }
    Sheet {
        title: qsTr("Shapes")
        text: qsTr("Each is a stop of the Tab key. A click focuses it too, but shows no ring.")
        minimumCellWidth: 190

        Cell {
            label: qsTr("pill, the default")

            FocusSample { label: qsTr("Pill"); radius: height / 2; page: page; KCustomFocusItem {} }
        }
        Cell {
            label: "isRectangle: true"
            note: "cornerRadius: 8"

            FocusSample { label: qsTr("Rectangle"); radius: 8; page: page; KCustomFocusItem { isRectangle: true } }
        }
        Cell {
            label: "innerFocusBorder: true"

            FocusSample { label: qsTr("Inside"); radius: 8; page: page; KCustomFocusItem { isRectangle: true; innerFocusBorder: true } }
        }
        Cell {
            label: "isExtraSmall: true"
            note: qsTr("radius 2, where false gives 4")

            FocusSample { label: qsTr("Small"); radius: 2; page: page; KCustomFocusItem { isRectangle: true; isExtraSmall: true } }
        }
        Cell {
            label: "rectangularCornerMask"
            note: "TopLeft | BottomLeft"

            FocusSample {
                label: qsTr("Two corners")
                radius: 12
                page: page

                KCustomFocusItem {
                    isSemicircle: false
                    cornerRadius: 12
                    rectangularCornerMask: KBasicFocusItem.TopLeft | KBasicFocusItem.BottomLeft
                }
            }
        }
        Cell {
            label: "customRect"
            note: qsTr("around a part of the parent")

            FocusSample { label: qsTr("Part"); radius: 8; page: page; KCustomFocusItem { isRectangle: true; customRect: Qt.rect(12, 8, 32, 24) } }
        }
    }

    component FocusSample: KFrame {
        id: sample

        property string label
        required property GalleryPage page

        width: 120
        height: 40
        backgroundColorSetName: "button-ghost-active-background"
        borderColorSetName: ""
        activeFocusOnTab: true
        onActiveFocusChanged: page.log(activeFocus ? qsTr("%1 has the focus").arg(label) : qsTr("%1 lost the focus").arg(label))

        Accessible.role: Accessible.Button
        Accessible.name: label
        Accessible.focusable: true

        KText {
            anchors.centerIn: parent
            text: sample.label
            textColorSetName: "button-ghost-active-text"
            Accessible.ignored: true
        }
        TapHandler {
            onTapped: sample.forceActiveFocus(Qt.MouseFocusReason)
        }
    }
}
