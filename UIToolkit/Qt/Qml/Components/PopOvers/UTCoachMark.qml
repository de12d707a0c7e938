/*!
    The balloon of a tour through the application: a title, a picture, a description, a button and a link. Whoever shows it
    puts it in a window, which it closes.

    \qml
    Window {
        color: "transparent"
        width: mark.width
        height: mark.height

        UTCoachMark {
            id: mark
            _arrowAnchor: UTPopOverEnum.Top
            _arrowAlignment: UTPopOverEnum.CenterAlignment
            arrowSize: 10
            coachmarkRadius: 8
            showHeader: true
            headerText: "Reactions"
            primaryText: "Answer without a word."
            showPrimaryButton: true
            primaryButtonText: "Got it"
            onAccepted: coachMarkAcknowledged => tour.next(coachMarkAcknowledged)
        }
    }
    \endqml
*/
import QtQuick
import QtQuick.Window
import Korvu 1.0
import UiElements 1.0
import UIToolkitQml 1.0

KBalloon {
    id: control

    //! Values of UTPopOverEnum: which side has the arrow, and where on it.
    property int _arrowAnchor
    property int _arrowAlignment
    //! Radius of the balloon's corners, in pixels.
    property int coachmarkRadius
    property bool showPrimaryButton
    property bool showHyperlink
    property bool showHeader
    property string headerText
    //! Icon before the title; empty for none.
    property string headerSvgName
    //! The description.
    property string primaryText
    property string primaryButtonText
    //! What assistive technology calls button and link; their texts when empty.
    property string primaryButtonAccessibilityText
    property string hyperLinkAccessibilityText
    property string hyperLinkButtonText
    //! Handed over by hyperLinkClicked; nothing is opened here.
    property string hyperLinkUrl
    property string themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! A Component of an Item, shown in place of the description; anything else is none.
    property var contentDelegate
    //! A picture, which may be animated; empty for none.
    property string previewImageSource
    //! In pixels.
    property int previewImageHeight: 148
    property bool showCloseButton: true
    //! Lets the flow of button and link start at the far side.
    property bool primaryButtonRightAligned
    property bool headerBelowPreview
    //! How high the description may be before it is elided, in pixels; 0 for as high as it is.
    property int descriptionTextMaxHeight: 96
    //! Whether the window's first activation, which moves the focus to the first button, is still to come.
    property bool isFirstFocused: true

    //! The balloon closes: by its button, which acknowledges it, or otherwise.
    signal accepted(coachMarkAcknowledged: bool)
    signal hyperLinkClicked(hyperLinkUrl: string)

    function closeWindow(isAcknowledged: bool): void {
        // The window may be gone once it was told of.
        const enclosingWindow = Window.window;
        accepted(isAcknowledged);
        enclosingWindow?.close();
    }

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft ? true : undefined
    LayoutMirroring.childrenInherit: true

    implicitWidth: priv.bodyWidth + priv.leftArrow + priv.rightArrow
    implicitHeight: body.height + 2 * priv.margin + priv.topArrow + priv.bottomArrow
    width: implicitWidth
    height: implicitHeight
    focus: true

    arrowAnchor: _arrowAnchor
    arrowAlignment: _arrowAlignment
    radius: coachmarkRadius
    backgroundColor: (ThemeManager.globalTheme, App.getColorSet("coachmarkteaching-background", themeType).normal)
    borderColor: "transparent"
    borderWidth: 1

    Accessible.role: Accessible.Dialog
    Accessible.name: showHeader ? headerText : primaryText
    Accessible.description: showHeader ? primaryText : ""

    Keys.onEscapePressed: closeWindow(false)
    Window.onActiveChanged: priv.takeFocus()
    Component.onCompleted: priv.takeFocus()
    onContentDelegateChanged: priv.makeContent()

    Item {
        id: body

        x: priv.margin + priv.leftArrow
        y: priv.margin + priv.topArrow
        width: priv.innerWidth
        height: actions.y + actions.height

        Item {
            id: header

            readonly property real room: visible ? height + priv.sectionSpacing : 0

            y: control.headerBelowPreview ? preview.room : 0
            width: parent.width
            height: Math.max(headerIcon.visible ? headerIcon.height : 0, title.implicitHeight, control.showCloseButton ? closeButton.height : 0)
            visible: control.showHeader

            KSvgIcon {
                id: headerIcon

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: priv.headerIconSize
                height: priv.headerIconSize
                visible: svgName.length > 0
                svgName: control.headerSvgName
                svgColorSetName: priv.textColorSetName
                themeType: control.themeType
            }
            KText {
                id: title

                anchors.left: headerIcon.visible ? headerIcon.right : parent.left
                anchors.leftMargin: headerIcon.visible ? priv.spacing : 0
                anchors.right: parent.right
                anchors.rightMargin: priv.closeRoom
                anchors.verticalCenter: parent.verticalCenter
                leftPadding: 0
                rightPadding: 0
                horizontalAlignment: Text.AlignLeft
                text: control.headerText
                font: FontConstants.header
                elide: Text.ElideRight
                textColorSetName: priv.textColorSetName
                themeType: control.themeType
                Accessible.role: Accessible.Heading
            }
        }
        Item {
            id: preview

            readonly property real room: visible ? height + priv.sectionSpacing : 0

            y: control.headerBelowPreview ? 0 : header.room
            width: parent.width
            height: control.previewImageHeight
            visible: control.previewImageSource.length > 0

            AnimatedImage {
                anchors.fill: parent
                source: control.previewImageSource
                fillMode: Image.PreserveAspectCrop
                clip: true
                paused: !control.Window.window?.visible
            }
            // Rounds the corners: its inner edge is the picture's outline, and it is wide enough to hide what lies beyond.
            Rectangle {
                anchors.fill: parent
                anchors.margins: -border.width
                radius: priv.previewRadius + border.width
                color: "transparent"
                border.width: Math.ceil(priv.previewRadius * (Math.SQRT2 - 1))
                border.color: control.backgroundColor
            }
        }
        Item {
            id: description

            y: header.room + preview.room
            width: parent.width
            height: Math.max(custom.item ? custom.height : explanation.height, control.showHeader || !control.showCloseButton ? 0 : closeButton.height)

            KText {
                id: explanation

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.rightMargin: control.showHeader ? 0 : priv.closeRoom
                leftPadding: 0
                rightPadding: 0
                visible: !custom.item
                horizontalAlignment: Text.AlignLeft
                text: control.primaryText
                height: control.primaryText.length > 0 ? implicitHeight : 0
                font: FontConstants.bodyPrimary
                wrapMode: Text.WordWrap
                elide: priv.lineCap > 0 ? Text.ElideRight : Text.ElideNone
                maximumLineCount: priv.lineCap > 0 ? priv.lineCap : priv.unlimited
                textColorSetName: priv.textColorSetName
                themeType: control.themeType
            }
            Item {
                id: custom

                //! What contentDelegate has made. A Loader of Qt 6.4 makes nothing of components that are bound to their file.
                property Item item: null

                anchors.left: explanation.left
                anchors.right: explanation.right
                height: item?.height ?? 0
            }
        }
        Flow {
            id: actions

            readonly property bool fits: primaryButton.implicitWidth + link.implicitWidth + priv.actionGap < priv.innerWidth

            y: description.y + description.height + (control.showPrimaryButton || control.showHyperlink ? priv.sectionSpacing : 0)
            width: parent.width
            // Both might go into one row with the smaller spacing, and are not to.
            flow: fits ? Flow.LeftToRight : Flow.TopToBottom
            spacing: fits ? priv.actionGap : priv.spacing
            layoutDirection: control.primaryButtonRightAligned ? Qt.RightToLeft : Qt.LeftToRight

            UTPillButton {
                id: primaryButton

                width: Math.min(implicitWidth, priv.innerWidth)
                visible: control.showPrimaryButton
                text: control.primaryButtonText
                alignment: Text.AlignHCenter
                buttonStyle: UTButtonStyle.OverLay
                buttonSize: UTButtonSize.M
                themeType: control.themeType
                onClicked: control.closeWindow(true)
                Accessible.name: control.primaryButtonAccessibilityText || text
            }
            UTTextButton {
                id: link

                width: Math.min(implicitWidth, priv.innerWidth)
                // In the middle of the button beside it.
                height: actions.fits && primaryButton.visible ? Math.max(implicitHeight, primaryButton.height) : implicitHeight
                visible: control.showHyperlink
                text: control.hyperLinkButtonText
                colorStyle: UTTextButtonEnum.Mint
                changeCursor: true
                designatedParent: link
                themeType: control.themeType
                onClicked: control.hyperLinkClicked(control.hyperLinkUrl)
                Accessible.name: control.hyperLinkAccessibilityText || text
            }
        }
        UTRoundButton {
            id: closeButton

            anchors.right: parent.right
            y: control.showHeader ? header.y + (header.height - height) / 2 : description.y
            visible: control.showCloseButton
            buttonIcon: "cancel-bold"
            buttonStyle: UTButtonStyle.Primary
            buttonSize: UTButtonSize.XS
            themeType: control.themeType
            onClicked: control.closeWindow(false)
            Accessible.name: qsTr("Close window.")
        }
    }

    FontMetrics {
        id: line

        font: explanation.font
    }

    QtObject {
        id: priv

        readonly property int bodyWidth: 280
        readonly property int margin: 12
        readonly property int innerWidth: bodyWidth - 2 * margin
        readonly property int spacing: 8
        readonly property int sectionSpacing: 12
        readonly property int actionGap: 12
        readonly property int headerIconSize: 20
        readonly property int previewRadius: 8
        readonly property int unlimited: 10000
        readonly property string textColorSetName: "coachmarkteaching-button-secondary-text"

        readonly property real leftArrow: arrowOn(UTPopOverEnum.Left, control._arrowAnchor)
        readonly property real rightArrow: arrowOn(UTPopOverEnum.Right, control._arrowAnchor)
        readonly property real topArrow: arrowOn(UTPopOverEnum.Top, control._arrowAnchor)
        readonly property real bottomArrow: arrowOn(UTPopOverEnum.Bottom, control._arrowAnchor)
        readonly property real closeRoom: control.showCloseButton ? closeButton.width + spacing : 0
        //! Lines that fit into descriptionTextMaxHeight, at least one; 0 for any number.
        readonly property int lineCap: control.descriptionTextMaxHeight > 0
            ? Math.max(1, Math.floor(control.descriptionTextMaxHeight / line.lineSpacing)) : 0

        function arrowOn(side: int, anchor: int): real {
            return side === anchor ? control.arrowSize : 0;
        }

        function makeContent(): void {
            custom.item?.destroy();
            const delegate = control.contentDelegate as Component;
            custom.item = delegate ? delegate.createObject(custom) as Item : null;
            if (custom.item)
                custom.item.width = Qt.binding(() => custom.width);
        }

        function takeFocus(): void {
            if (!control.isFirstFocused || !control.Window.active)
                return;
            control.isFirstFocused = false;
            actions.nextItemInFocusChain()?.forceActiveFocus(Qt.TabFocusReason);
        }
    }
}
