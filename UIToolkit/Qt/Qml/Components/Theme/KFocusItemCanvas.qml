/*!
    Paints the focus ring of a focus item, three concentric outlines in the shape that the item asks for. Loaded by
    KCustomFocusItem.

    \qml
    KFocusItemCanvas { focusItem: ring; width: ring.width + 2 * ring.extraSpace; height: ring.height + 2 * ring.extraSpace }
    \endqml
*/
import QtQuick
import Korvu 1.0
import "qrc:/qt/qml/UIToolkitQml/DrawUtils.js" as DrawUtils

Canvas {
    id: control

    //! The item whose settings shape the ring.
    required property KBasicFocusItem focusItem

    readonly property kColorSet innerLineColorSet: ThemeManager.globalTheme, App.getColorSet("global-focus-innerline", focusItem.themeType)
    readonly property kColorSet outlineColorSet: ThemeManager.globalTheme, App.getColorSet("global-focus-outline", focusItem.themeType)
    readonly property color innerColor: innerLineColorSet.isValid ? innerLineColorSet.normal : "transparent"
    readonly property color middleColor: outlineColorSet.isValid ? outlineColorSet.normal : "transparent"
    readonly property color outerColor: ThemeManager.isHighContrastTheme ? middleColor : Qt.alpha(middleColor, priv.outerAlpha)

    onVisibleChanged: {
        if (visible)
            requestPaint();
        else
            markDirty(Qt.rect(0, 0, width, height));
    }
    onPaint: {
        const ctx = getContext("2d");
        ctx.clearRect(0, 0, width, height);
        for (const line of priv.lines())
            priv.drawLine(ctx, line);
    }

    QtObject {
        id: priv

        readonly property real outerAlpha: 0.3
        readonly property real lineThickness: 2
        readonly property real outerLineThickness: 1

        readonly property real rectangleRadius: {
            if (control.focusItem.isExtraSmall === undefined)
                return control.focusItem.cornerRadius;
            return control.focusItem.isExtraSmall ? 2 : 4;
        }
        readonly property int cornerMask: control.focusItem.LayoutMirroring.enabled
            ? DrawUtils.swapRectangularCornersLeftRight(control.focusItem.rectangularCornerMask)
            : control.focusItem.rectangularCornerMask

        // Whatever the picture depends on; a change of any of it repaints.
        readonly property var ingredients: [
            control.innerColor, control.middleColor, control.outerColor, control.focusItem.extraSpace,
            control.focusItem.isRectangle, control.focusItem.isSemicircle, rectangleRadius, cornerMask
        ]
        onIngredientsChanged: control.requestPaint()

        // The three outlines from the inside out.
        function lines(): var {
            const [inner, middle, outer] = control.focusItem.innerFocusBorder ? [-5, -3, -1] : [0, 2, 4];
            if (control.focusItem.isRectangle) {
                // The inner and the outer offset are crossed on purpose.
                const radius = rectangleRadius;
                return [
                    { thickness: lineThickness, offset: inner, color: control.innerColor, radius: radius - outer },
                    { thickness: lineThickness, offset: middle, color: control.middleColor, radius: radius - middle },
                    { thickness: outerLineThickness, offset: outer, color: control.outerColor, radius: radius - inner }
                ];
            }
            const radius = control.focusItem.isSemicircle ? control.height / 2 : rectangleRadius;
            return [
                { thickness: lineThickness, offset: inner, color: control.innerColor, radius: radius },
                { thickness: lineThickness, offset: middle, color: control.middleColor, radius: radius - middle },
                { thickness: outerLineThickness, offset: outer, color: control.outerColor, radius: radius - inner - 2 }
            ];
        }

        function drawLine(ctx: var, line: var): void {
            const common = [ctx, control.height, control.width, control.focusItem.extraSpace, line.thickness, line.offset, line.color];
            if (control.focusItem.isRectangle)
                DrawUtils.drawRoundedCornerRectangleOutline(...common, line.radius);
            else if (cornerMask !== KBasicFocusItem.RectangularCorner.None)
                DrawUtils.drawRectangularAndRoundCornerOutline(...common, line.radius, cornerMask);
            else
                DrawUtils.drawRoundedSidesOutline(...common);
        }
    }
}
