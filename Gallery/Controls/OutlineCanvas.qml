/*! One outline as the drawing library strokes it, around a faint rectangle of the item's own size. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Item {
    id: control

    enum Shape {
        RoundedSides,
        RoundedCorners,
        MixedCorners
    }

    property int shape: OutlineCanvas.RoundedSides
    property real offset: 0
    property real lineThickness: 2
    property real radius: 12
    property int corners: 0

    readonly property int extraSpace: 8
    readonly property kColorSet lineColorSet: ThemeManager.globalTheme, App.getColorSet("global-focus-outline", "global")

    signal painted

    KRectangle {
        anchors.fill: parent
        backgroundColorSetName: "button-ghost-active-background"
    }
    Canvas {
        id: canvas

        readonly property var ingredients: [
            control.shape, control.offset, control.lineThickness, control.radius, control.corners, control.lineColorSet
        ]

        anchors.fill: parent
        anchors.margins: -control.extraSpace

        onIngredientsChanged: requestPaint()
        onPaint: {
            const ctx = getContext("2d");
            ctx.clearRect(0, 0, width, height);
            const common = [ctx, height, width, control.extraSpace, control.lineThickness, control.offset, control.lineColorSet.normal];
            if (control.shape === OutlineCanvas.RoundedSides)
                DrawUtils.drawRoundedSidesOutline(...common);
            else if (control.shape === OutlineCanvas.RoundedCorners)
                DrawUtils.drawRoundedCornerRectangleOutline(...common, control.radius);
            else
                DrawUtils.drawRectangularAndRoundCornerOutline(...common, control.radius, control.corners);
            control.painted();
        }
    }
}
