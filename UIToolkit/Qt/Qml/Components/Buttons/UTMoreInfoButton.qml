/*!
    A small round button that explains something in a balloon, opened by a click, the pointer or the keyboard.

    \qml
    UTMoreInfoButton { tooltip: "About presence"; moreInfoText: "Others see when you were last here." }
    \endqml
*/
pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0

UTRoundButton {
    id: control

    //! What the balloon says; rich text where includeHyperLink says so, else plain.
    property string moreInfoText
    //! Whether moreInfoText is rich text with links. They open in the desktop's programs.
    property bool includeHyperLink
    //! In pixels.
    property int maximumPopoverWidth: 308
    //! The side of the balloon that carries the arrow, a value of UTPopOverEnum.
    property int utArrowAnchor: UTPopOverEnum.Top
    //! The window that the balloon's window belongs to; the button's own when null.
    property alias popoverParent: popOver.windowParent
    readonly property alias popupActive: popOver.active

    buttonIcon: "info-circle-bold"
    buttonStyle: UTButtonStyle.Ghost
    buttonSize: UTButtonSize.XXS
    // The balloon is in the way of a tool tip.
    shouldTooltipBeDisplayed: !popupActive

    onClicked: {
        if (popupActive) {
            popOver.hidePopOver();
        } else if (moreInfoText.length > 0) {
            // To read it by keyboard, it must have the focus.
            popOver.showWithActive = App.isKeyboardFocus || includeHyperLink;
            popOver.showPopOver();
            if (!popOver.showWithActive)
                UIToolKitUtils.sayAccessible(control, UIToolKitUtils.htmlToPlainText(moreInfoText));
        }
    }
    onHoveredChanged: {
        if (!popupActive || popOver.showWithActive)
            return;
        if (hovered)
            popOver.cancelHidePopupTimer();
        else
            popOver.hidePopOver(true);
    }
    Keys.onEscapePressed: event => {
        event.accepted = popupActive;
        popOver.hidePopOver();
    }

    Accessible.description: includeHyperLink ? UIToolKitUtils.htmlToPlainText(moreInfoText) : moreInfoText

    UTPopOver {
        id: popOver

        themeType: control.themeType
        arrowAnchor: control.utArrowAnchor
        accessibleName: control.tooltip
        content: Component {
            KText {
                leftPadding: 12
                rightPadding: 12
                topPadding: 8
                bottomPadding: 8
                width: Math.min(implicitWidth, control.maximumPopoverWidth)
                text: control.moreInfoText
                themeType: control.themeType
                textColorSetName: "label-primary-text"
                linkColor: (ThemeManager.globalTheme, App.getColorSet("hyperlink-accent-text", control.themeType).normal)
                textFormat: control.includeHyperLink ? Text.RichText : Text.PlainText
                wrapMode: Text.Wrap
                activeFocusOnTab: true
                onLinkActivated: link => UIToolKitUtils.openLink(link)
            }
        }
    }
}
