pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import Gallery
import UiElements 1.0

GalleryPage {
    id: page

    category: qsTr("Host")
    description: qsTr("A balloon with an arrow on one side: the ground of tool tips, pop-overs and menus.")
    controls: [
        PropertyChoice { id: anchor; label: "arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 1 },
        PropertyChoice { id: alignment; label: "arrowAlignment"; options: ["Left", "Center", "Right", "Top", "Bottom"]; currentIndex: 1 },
        PropertySlider { id: offset; label: "arrowOffset"; from: -120; to: 120; value: 0 },
        PropertySlider { id: arrowSize; label: "arrowSize"; to: 32; value: 10 },
        PropertySlider { id: radius; label: "radius"; to: 48; value: 8 },
        PropertySlider { id: borderWidth; label: "borderWidth"; to: 6; value: 1 }
    ]

    readonly property var anchorValues: [KBalloon.None, KBalloon.Top, KBalloon.Bottom, KBalloon.Left, KBalloon.Right]
    readonly property var alignmentValues: [
        KBalloon.LeftAlignment, KBalloon.CenterAlignment, KBalloon.RightAlignment, KBalloon.TopAlignment, KBalloon.BottomAlignment
    ]

    Playground {
        ThemedBalloon {
            width: 280
            height: 112
            arrowAnchor: page.anchorValues[anchor.currentIndex]
            arrowAlignment: page.alignmentValues[alignment.currentIndex]
            arrowOffset: offset.value
            arrowSize: arrowSize.value
            radius: radius.value
            borderWidth: borderWidth.value
            onArrowAnchorChanged: page.log(qsTr("arrowAnchorChanged"))
            onArrowAlignmentChanged: page.log(qsTr("arrowAlignmentChanged"))
        }
    }
    Sheet {
        title: qsTr("Anchors and alignments")
        text: qsTr("They are not mirrored from right to left: whoever places a balloon knows where its target is.")

        Repeater {
            model: [
                { label: "None", anchor: KBalloon.None, alignment: KBalloon.CenterAlignment },
                { label: "Top, LeftAlignment", anchor: KBalloon.Top, alignment: KBalloon.LeftAlignment },
                { label: "Top, CenterAlignment", anchor: KBalloon.Top, alignment: KBalloon.CenterAlignment },
                { label: "Top, RightAlignment", anchor: KBalloon.Top, alignment: KBalloon.RightAlignment },
                { label: "Bottom, LeftAlignment", anchor: KBalloon.Bottom, alignment: KBalloon.LeftAlignment },
                { label: "Bottom, CenterAlignment", anchor: KBalloon.Bottom, alignment: KBalloon.CenterAlignment },
                { label: "Bottom, RightAlignment", anchor: KBalloon.Bottom, alignment: KBalloon.RightAlignment },
                { label: "Left, TopAlignment", anchor: KBalloon.Left, alignment: KBalloon.TopAlignment },
                { label: "Left, CenterAlignment", anchor: KBalloon.Left, alignment: KBalloon.CenterAlignment },
                { label: "Left, BottomAlignment", anchor: KBalloon.Left, alignment: KBalloon.BottomAlignment },
                { label: "Right, TopAlignment", anchor: KBalloon.Right, alignment: KBalloon.TopAlignment },
                { label: "Right, CenterAlignment", anchor: KBalloon.Right, alignment: KBalloon.CenterAlignment },
                { label: "Right, BottomAlignment", anchor: KBalloon.Right, alignment: KBalloon.BottomAlignment }
            ]

            Cell {
                id: cell

                required property var modelData

                label: modelData.label
                stageHeight: 104

                ThemedBalloon {
                    width: 112
                    height: 72
                    arrowAnchor: cell.modelData.anchor
                    arrowAlignment: cell.modelData.alignment
                }
            }
        }
    }

    component ThemedBalloon: KBalloon {
        readonly property kColorSet backgroundColorSet: ThemeManager.globalTheme, App.getColorSet("menulistbackground-primary-background", "global")
        readonly property kColorSet borderColorSet: ThemeManager.globalTheme, App.getColorSet("combobox-border", "global")

        backgroundColor: backgroundColorSet.normal
        borderColor: borderColorSet.normal
    }
}
