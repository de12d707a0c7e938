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
import Korvu 1.0
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import "qrc:/qt/qml/UIToolkitQml/ButtonBase.js" as Script
import "qrc:/qt/qml/UIToolkitQml/CallControl.js" as CallControl

KFrame {
    id: control

    //! Values of UTCallControlButtonEnum. A type other than Panel and Round vanishes in the size ExtremeSmall.
    property int buttonType: UTCallControlButtonEnum.Round
    property int buttonStyle: UTCallControlButtonEnum.Secondary
    property int buttonSize: UTCallControlButtonEnum.Medium
    property int buttonState: UTCallControlButtonEnum.Inactive
    //! The label of the left half.
    property string text
    //! Shows the label where the type can carry one. A bar that runs out of room switches it off; the text remains the
    //! tool tip and the name for assistive technology.
    property bool showText: true
    //! Shows a badge at the upper corner, where the type can: with badgeText in it or, without a text, as a dot.
    property bool badgeVisible: badgeText.length > 0
    property string badgeText
    //! A value of UTSvgResource.ImagePrefixType for the left icons; the assistant's types often show a bitmap.
    property alias leftIconPrefixType: leftHalf.iconPrefixType

    // The halves, each with the same properties.
    property alias leftEnabled: leftHalf.enabled
    property bool rightEnabled: true
    property bool leftCheckable: false
    property bool rightCheckable: false
    property bool leftChecked: false
    property bool rightChecked: false
    //! What the half does: its tool tip and its name for assistive technology, unless those are given.
    property string leftName
    property string rightName
    //! Icon names. The checked one takes the place of the other while the half is checked; empty for the same.
    property alias leftIcon: leftHalf.iconName
    property string rightIcon: "arrow-up-bold"
    property alias leftCheckedIcon: leftHalf.checkedIconName
    property string rightCheckedIcon
    property string leftTooltip
    property string rightTooltip
    property alias leftAccessibleName: leftHalf.accessibleName
    property string rightAccessibleName
    //! Without one, the badge's text describes the left half.
    property string leftAccessibleDescription
    property string rightAccessibleDescription
    //! Says "Checked" or "Unchecked" when the state of a focused half changes.
    property alias leftAnnouncesState: leftHalf.announceStateChange
    property bool rightAnnouncesState: false
    //! Spoken when it changes while the half has the focus.
    property alias leftStatusText: leftHalf.accessibleText
    property string rightStatusText

    //! An object with enabled, hovered, pressed, activeFocus and checked, whose look the left half takes in place of its
    //! own; for pictures of states, which the Tab key passes by.
    property var shownState
    //! The halves, to place a menu beside one for example. There is no right one before the type asks for it.
    readonly property alias leftButton: leftHalf
    property PillHalf rightButton: null

    signal leftClicked()
    signal rightClicked()
    signal leftToggled()
    signal rightToggled()

    UTCallControlButtonData.buttonType: buttonType
    UTCallControlButtonData.buttonStyle: buttonStyle
    UTCallControlButtonData.buttonSize: buttonSize
    UTCallControlButtonData.buttonState: buttonState
    UTCallControlButtonData.showText: showText && text.length > 0 && UTCallControlButtonData.canShowText

    readonly property bool hasRightHalf: UTCallControlButtonData.buttonType === buttonType
        && UTCallControlButtonData.rightButtonVisible
    // Halves that a line parts are checked each on its own; else the right one is an annex of the left one.
    readonly property bool isGroundChecked: (shownState ?? leftHalf).checked && !UTCallControlButtonData.separatorVisible
    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet(UTCallControlButtonData.textColorSetName, themeType)

    implicitWidth: leftHalf.naturalWidth + (hasRightHalf ? rightButton?.naturalWidth ?? 0 : 0)
    implicitHeight: Math.max(UTCallControlButtonData.height, leftHalf.labelHeight)
    radius: height / 2
    // Of two halves, each shows by itself that it is hovered or pressed.
    controlsTarget: hasRightHalf ? { enabled: leftHalf.enabled || rightEnabled, checked: isGroundChecked } : shownState ?? leftHalf
    backgroundColorSetName: isGroundChecked ? UTCallControlButtonData.checkedBackgroundColorSetName
        : UTCallControlButtonData.backgroundColorSetName
    borderColorSetName: UTCallControlButtonData.borderColorSetName

    // The metrics do not follow the type by themselves.
    UTCallControlButtonData.onButtonTypeChanged: UTCallControlButtonData.updateButtonSize()

    // What most buttons do not have is made when first needed.
    onHasRightHalfChanged: {
        if (!rightButton) {
            rightButton = CallControl.makeRightHalf(control, leftHalf, control.UTCallControlButtonData,
                KBasicFocusItem.RectangularCorner);
            Accessible.role = Accessible.Grouping;
            Accessible.name = Qt.binding(() => text || leftName || leftTooltip || leftAccessibleName);
        }
    }
    onShownStateChanged: leftHalf.activeFocusOnTab = false
    onBadgeVisibleChanged: Script.needPart(leftHalf, "badge", "CallControlBadge", { control: control }, control)

    PillHalf {
        id: leftHalf

        x: mirrored ? control.width - width : 0
        width: control.width - (control.hasRightHalf ? control.rightButton?.width ?? 0 : 0)
        height: control.height
        themeType: control.themeType
        controlsTarget: control.shownState ?? leftHalf
        checkable: control.leftCheckable
        checked: control.leftChecked
        text: control.UTCallControlButtonData.showText ? control.text : ""
        font: control.UTCallControlButtonData.font
        tooltip: control.leftTooltip || control.leftName || control.text
        iconSize: control.UTCallControlButtonData.leftIconSize
        startPadding: control.UTCallControlButtonData.leftSideLeftPadding
        endPadding: control.UTCallControlButtonData.leftSideRightPadding
        labelSpacing: control.UTCallControlButtonData.textLeftMargin
        textColorSet: control.textColorSet
        accessibleDescription: control.leftAccessibleDescription || control.badgeText
        onClicked: CallControl.clicked(control, "left", leftHalf)
        onToggled: CallControl.toggled(control, "left", leftHalf)
    }
}
