/*!
    A button of a call's control bar: a pill that holds one button, or two that belong together. The left half has an icon
    and, where the type can carry it, a label; the right half, where there is one, a smaller or second icon.

    A half that is checkable toggles itself, writes that into leftChecked or rightChecked and says so with leftToggled or
    rightToggled; any other half says leftClicked or rightClicked, and shows the leftChecked or rightChecked it was given.

    \qml
    UTCallControlButton {
        buttonType: UTCallControlButtonEnum.DualArrow
        leftIcon: "microphone-bold"; leftCheckedIcon: "microphone-muted-bold"; leftName: "Mute"
        leftCheckable: true
        rightName: "Choose a microphone"
        onLeftToggled: call.muted = leftChecked
        onRightClicked: devices.open()
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/CallControl.js" as CallControl
import "qrc:/qt/qml/UIToolkitQml/ThemeUtils.js" as ThemeUtils

KFrame {
    id: control

    //! Values of UTCallControlButtonEnum. A type other than Panel and Round vanishes in the size ExtremeSmall.
    property int buttonType: 4 // UTCallControlButtonEnum.Round
    property int buttonStyle // UTCallControlButtonEnum.Secondary
    property int buttonSize // UTCallControlButtonEnum.Medium
    property int buttonState // UTCallControlButtonEnum.Inactive
    //! The label of the left half.
    property string text
    //! Shows the label where the type can carry one. A bar that runs out of room switches it off; the text remains the
    //! tool tip and the name for assistive technology.
    property bool showText: true
    //! Shown at the upper corner, where the type can have a badge; empty for none.
    property string badgeText
    //! Shows a dot there while there is no badgeText.
    property bool badgeVisible
    //! Takes the left icons for bitmaps under "qrc:/Resources/" instead of icons: what the assistant's types often show.
    property bool isLeftBitmap

    // The halves, each with the same properties.
    property alias leftEnabled: leftHalf.enabled
    property bool rightEnabled: true
    property bool leftCheckable
    property bool rightCheckable
    property bool leftChecked
    property bool rightChecked
    //! What the half does: its tool tip and its name for assistive technology, unless those are given. The left half's text
    //! comes first as a name.
    property string leftName
    property string rightName
    //! Icon names. The checked one takes the place of the other while the half is checked; empty for the same.
    property string leftIcon
    property string rightIcon: "arrow-up-bold"
    property string leftCheckedIcon
    property string rightCheckedIcon
    property string leftTooltip
    property string rightTooltip
    property string leftAccessibleName
    property string rightAccessibleName
    //! Without one, the badge's text describes the left half.
    property string leftAccessibleDescription
    property string rightAccessibleDescription
    //! Says "Checked" or "Unchecked" when the state of a focused half changes.
    property alias leftAnnouncesState: leftHalf.announceStateChange
    property bool rightAnnouncesState
    //! Spoken when it changes while the half has the focus.
    property alias leftStatusText: leftHalf.accessibleText
    property string rightStatusText

    //! An object with enabled, hovered, pressed, activeFocus and checked, whose look the left half takes in place of its
    //! own; for pictures of states, which the Tab key passes by.
    property var shownState

    //! The halves, to place a menu beside one for example. There is no right one before the type asks for it.
    readonly property alias leftButton: leftHalf
    property PillHalf rightButton

    // For the script: what shows the state of a button of two halves; undefined while that is the left half.
    property var ground
    // Whose state the left half shows; undefined while it has not left its state of rest.
    property var leftState

    signal leftClicked()
    signal rightClicked()
    signal leftToggled()
    signal rightToggled()

    UTCallControlButtonData.themeType: themeType
    UTCallControlButtonData.typeWithMetrics: UTCallControlButtonEnum.Round

    radius: 1000 // cut down to what the height allows
    controlsTarget: null // at rest, which most buttons always are: see the script's follow()

    // Handlers in place of bindings: most buttons keep the first values, and have nothing but an icon.
    onButtonTypeChanged: {
        UTCallControlButtonData.typeWithMetrics = buttonType;
        CallControl.arrange(control, leftHalf, UTCallControlButtonData, KBasicFocusItem.RectangularCorner);
    }
    onButtonStyleChanged: UTCallControlButtonData.buttonStyle = buttonStyle
    onButtonSizeChanged: {
        UTCallControlButtonData.buttonSize = buttonSize;
        CallControl.arrange(control, leftHalf, UTCallControlButtonData, KBasicFocusItem.RectangularCorner);
    }
    onButtonStateChanged: UTCallControlButtonData.buttonState = buttonState
    onTextChanged: CallControl.arrange(control, leftHalf, UTCallControlButtonData, KBasicFocusItem.RectangularCorner)
    onShowTextChanged: CallControl.arrange(control, leftHalf, UTCallControlButtonData, KBasicFocusItem.RectangularCorner)
    onLeftCheckableChanged: leftHalf.checkable = leftCheckable || leftChecked
    onLeftCheckedChanged: {
        UTCallControlButtonData.leftChecked = leftChecked;
        leftHalf.checked = leftChecked;
    }
    onLeftTooltipChanged: CallControl.giveTooltip(control, leftHalf)
    onLeftAccessibleNameChanged: CallControl.giveTooltip(control, leftHalf)
    onLeftAccessibleDescriptionChanged: leftHalf.Accessible.description = leftAccessibleDescription || badgeText
    onBadgeTextChanged: {
        leftHalf.Accessible.description = leftAccessibleDescription || badgeText;
        CallControl.showBadge(control, leftHalf);
    }
    onBadgeVisibleChanged: CallControl.showBadge(control, leftHalf)
    onRightButtonChanged: {
        Accessible.role = Accessible.Grouping;
        Accessible.name = Qt.binding(() => text || leftName || leftTooltip || leftAccessibleName);
    }
    onShownStateChanged: {
        CallControl.follow(control, leftHalf);
        leftHalf.activeFocusOnTab = false;
        leftChecked = Qt.binding(() => shownState?.checked ?? false);
    }

    UTButtonBase {
        id: leftHalf

        property int squareCorners

        onFocusRingWanted: settings => Object.assign(settings, {
            rectangularCornerMask: () => leftHalf.squareCorners,
            customRect: () => Script.ringOfHalf(leftHalf),
            themeType: () => control.themeType
        })

        anchors.fill: parent
        implicitWidth: 0 // the pill's business
        implicitHeight: 0
        text: control.leftAccessibleName || control.text || control.leftName
        isTextEilded: true // for the tool tip: the text is not to be seen

        contentItem: Image {
            source: {
                const name = leftHalf.checked && control.leftCheckedIcon.length > 0 ? control.leftCheckedIcon : control.leftIcon;
                return name.length === 0 ? "" : control.isLeftBitmap ? "qrc:/Resources/" + name
                    : `image://svg/${ThemeUtils.getColor(control.leftState, control.UTCallControlButtonData.textColorSet)}/${name}`;
            }
            // A Round button of Medium size; the script's arrange() gives the others theirs.
            sourceSize.width: 20
            sourceSize.height: 20
            fillMode: Image.Pad // in the middle
            mipmap: true // as everywhere, for the texture is shared
        }

        onEnabledChanged: CallControl.follow(control, leftHalf)
        onPressedChanged: CallControl.follow(control, leftHalf)
        onPartsChanged: CallControl.follow(control, leftHalf) // first hovered or focused
        onCheckedChanged: CallControl.follow(control, leftHalf)
        onClicked: CallControl.clicked(control, "left", leftHalf)
        onToggled: CallControl.toggled(control, "left", leftHalf)
    }
}
