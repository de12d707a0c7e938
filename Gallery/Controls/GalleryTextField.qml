/*! A line of text to type. To be replaced by the library's own text field when there is one. */
import QtQuick
import QtQuick.Templates as T
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

T.TextField {
    id: control

    //! What it is for, for assistive technology.
    property string name
    property string iconName
    property string prompt

    readonly property kColorSet textColorSet: ThemeManager.globalTheme, App.getColorSet("textinput-text", "global")
    readonly property kColorSet selectionColorSet: ThemeManager.globalTheme, App.getColorSet("text-highlight", "global")
    readonly property kColorSet selectedTextColorSet: ThemeManager.globalTheme, App.getColorSet("label-common-white-text", "global")
    readonly property real startPadding: iconName.length > 0 ? Metrics.medium + Metrics.iconSize + Metrics.small : Metrics.medium

    implicitWidth: 200
    implicitHeight: Math.max(Metrics.controlHeight, contentHeight + 2 * Metrics.small)
    leftPadding: priv.isMirrored ? Metrics.medium : startPadding
    rightPadding: priv.isMirrored ? startPadding : Metrics.medium
    verticalAlignment: TextInput.AlignVCenter
    horizontalAlignment: TextInput.AlignLeft
    font: FontConstants.bodySecondary
    color: ThemeUtils.getTextFieldColor(control, textColorSet)
    selectionColor: selectionColorSet.normal
    selectedTextColor: selectedTextColorSet.normal
    selectByMouse: true
    hoverEnabled: true

    // Long texts show their start until they are edited.
    onActiveFocusChanged: {
        if (!activeFocus)
            ensureVisible(0);
    }
    Component.onCompleted: cursorPosition = 0

    background: KFrame {
        radius: Metrics.smallRadius
        controlsTarget: priv
        backgroundColorSetName: "textinput-background"
        borderColorSetName: "textinput-border"
    }

    GalleryText {
        anchors.verticalCenter: parent.verticalCenter
        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        visible: control.text.length === 0 && control.preeditText.length === 0
        text: control.prompt
        elide: Text.ElideRight
        textColorSetName: "textinput-placeholder-text"
        Accessible.ignored: true
    }
    KSvgIcon {
        anchors.verticalCenter: parent.verticalCenter
        x: priv.isMirrored ? parent.width - width - Metrics.medium : Metrics.medium
        visible: control.iconName.length > 0
        height: Metrics.iconSize
        svgName: control.iconName
        svgColorSetName: "globalHeader-textfield-searchIcon"
    }
    FocusRing {}

    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.description: prompt

    QtObject {
        id: priv

        readonly property bool isMirrored: control.LayoutMirroring.enabled

        // The state that the frame shows. "pressed" is a signal of text fields, so the field itself would look pressed.
        readonly property bool enabled: control.enabled
        readonly property bool hovered: control.hovered
        readonly property bool activeFocus: control.activeFocus
    }
}
