/*! A checkerboard in the theme's two colours for it. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

Canvas {
    id: control

    property real squareSize: 8
    property real radius: 0

    readonly property kColorSet evenColorSet: ThemeManager.globalTheme, App.getColorSet("image-selector-checkboard-background-0", "global")
    readonly property kColorSet oddColorSet: ThemeManager.globalTheme, App.getColorSet("image-selector-checkboard-background-1", "global")

    onSquareSizeChanged: requestPaint()
    onRadiusChanged: requestPaint()
    onEvenColorSetChanged: requestPaint()
    onOddColorSetChanged: requestPaint()
    onPaint: {
        const ctx = getContext("2d");
        ctx.reset();
        DrawUtils.drawCheckerBoard(ctx, width, height, squareSize, radius, evenColorSet.normal, oddColorSet.normal);
    }
}
