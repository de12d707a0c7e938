pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    readonly property string landscape: "qrc:/Resources/sample-landscape.png"
    readonly property string explanation: qsTr("Answer with a reaction when you have nothing to add. Everybody sees it for a few seconds, and nobody has to stop talking for it.")

    category: qsTr("Pop-overs")
    description: qsTr("The balloon of a tour through the application: a title, a picture, a description, a button and a link.")
    controls: [
        PropertyChoice { id: anchor; label: "_arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 1 },
        PropertySlider { id: arrow; label: "arrowSize"; to: 24; value: 10 },
        PropertySlider { id: radius; label: "coachmarkRadius"; to: 24; value: 10 },
        PropertySwitch { id: header; label: "showHeader"; value: true },
        PropertyText { id: title; label: "headerText"; value: qsTr("Reactions") },
        PropertyText { id: text; label: "primaryText"; value: page.explanation },
        PropertySlider { id: cap; label: "descriptionTextMaxHeight"; to: 200; value: 96 },
        PropertySwitch { id: preview; label: "previewImageSource"; value: true },
        PropertySlider { id: previewHeight; label: "previewImageHeight"; from: 40; to: 240; value: 148 },
        PropertySwitch { id: below; label: "headerBelowPreview" },
        PropertySwitch { id: button; label: "showPrimaryButton"; value: true },
        PropertyText { id: buttonText; label: "primaryButtonText"; value: qsTr("Got it") },
        PropertySwitch { id: link; label: "showHyperlink"; value: true },
        PropertyText { id: linkText; label: "hyperLinkButtonText"; value: qsTr("Learn more") },
        PropertySwitch { id: rightAligned; label: "primaryButtonRightAligned" },
        PropertySwitch { id: closeButton; label: "showCloseButton"; value: true }
    ]

    // One on the page itself, which it is not to close.
    component Example: UTCoachMark {
        function closeWindow(isAcknowledged: bool): void {
            accepted(isAcknowledged);
        }

        isFirstFocused: false
        _arrowAnchor: UTPopOverEnum.None
        coachmarkRadius: 10
        headerText: qsTr("Reactions")
        headerSvgName: "emoji-happy-bold"
        primaryText: page.explanation
        primaryButtonText: qsTr("Got it")
        hyperLinkButtonText: qsTr("Learn more")
        hyperLinkUrl: "https://example.org/reactions"
        onAccepted: coachMarkAcknowledged => page.log("accepted(%1)".arg(coachMarkAcknowledged))
        onHyperLinkClicked: hyperLinkUrl => page.log("hyperLinkClicked(\"%1\")".arg(hyperLinkUrl))
    }

    Playground {
        Example {
            _arrowAnchor: UTPopOverEnum[anchor.value]
            _arrowAlignment: UTPopOverEnum.CenterAlignment
            arrowSize: arrow.value
            coachmarkRadius: radius.value
            showHeader: header.value
            headerText: title.value
            primaryText: text.value
            descriptionTextMaxHeight: cap.value
            previewImageSource: preview.value ? page.landscape : ""
            previewImageHeight: previewHeight.value
            headerBelowPreview: below.value
            showPrimaryButton: button.value
            primaryButtonText: buttonText.value
            showHyperlink: link.value
            hyperLinkButtonText: linkText.value
            primaryButtonRightAligned: rightAligned.value
            showCloseButton: closeButton.value
        }
    }
    Sheet {
        title: qsTr("Layouts")
        minimumCellWidth: 320

        Cell { label: "showHeader, showPrimaryButton, showHyperlink"; Example { showHeader: true; showPrimaryButton: true; showHyperlink: true } }
        Cell { label: qsTr("the description alone"); Example {} }
        Cell { label: "previewImageSource"; Example { showHeader: true; showPrimaryButton: true; previewImageSource: page.landscape } }
        Cell { label: "headerBelowPreview"; Example { showHeader: true; showPrimaryButton: true; previewImageSource: page.landscape; headerBelowPreview: true } }
        Cell {
            label: "primaryButtonRightAligned"
            Example { showHeader: true; showPrimaryButton: true; showHyperlink: true; primaryButtonRightAligned: true }
        }
        Cell {
            label: qsTr("too wide for one row")
            Example { showHeader: true; showPrimaryButton: true; showHyperlink: true; primaryButtonText: qsTr("Try reactions now"); hyperLinkButtonText: qsTr("Learn more about them") }
        }
        Cell { label: "descriptionTextMaxHeight: 40"; Example { showHeader: true; descriptionTextMaxHeight: 40 } }
        Cell {
            label: "contentDelegate"
            Example {
                showHeader: true
                showPrimaryButton: true
                contentDelegate: reactions
            }
        }
        Cell { label: qsTr("arrow on the left"); Example { _arrowAnchor: UTPopOverEnum.Left; arrowSize: 10; _arrowAlignment: UTPopOverEnum.TopAlignment } }
        Cell {
            label: qsTr("texts of any length")
            Example {
                showHeader: true
                showPrimaryButton: true
                headerText: qsTr("Reactions that everybody can see and hear")
                primaryButtonText: qsTr("Take me to the reactions of this call")
            }
        }
    }
    Sheet {
        title: qsTr("In a window")

        Cell {
            label: qsTr("as in a tour")
            note: qsTr("the first button has the focus; Escape closes")

            UTPillButton {
                id: opener

                text: qsTr("Show me")
                buttonStyle: UTButtonStyle.Secondary
                buttonSize: UTButtonSize.M
                onClicked: tour.createObject(null)
            }
        }
    }

    Component {
        id: reactions

        Row {
            spacing: 8

            KImage { source: "qrc:/emojis/heart.svg"; sourceSize: Qt.size(32, 32) }
            KImage { source: "qrc:/emojis/smile.svg"; sourceSize: Qt.size(32, 32) }
            KImage { source: "qrc:/emojis/celebrate.svg"; sourceSize: Qt.size(32, 32) }
        }
    }
    Component {
        id: tour

        Window {
            id: tourWindow

            x: UTPopOverData.popOverPosition.x
            y: UTPopOverData.popOverPosition.y
            width: mark.width
            height: mark.height
            visible: true
            color: "transparent"
            flags: Qt.FramelessWindowHint | Qt.Tool
            title: mark.headerText
            transientParent: opener.Window.window
            UTPopOverData.arrowAnchor: UTPopOverEnum.Bottom
            UTPopOverData.arrowAlignment: UTPopOverEnum.CenterAlignment
            UTPopOverData.arrowVisible: true
            UTPopOverData.size: UTPopOverEnum.Medium
            UTPopOverData.popOverSize: Qt.size(mark.width, mark.height)
            onClosing: destroy()
            Component.onCompleted: {
                const origin = opener.mapToGlobal(0, 0);
                UTPopOverData.targetItemRect = Qt.rect(origin.x, origin.y, opener.width, opener.height);
                requestActivate();
            }

            UTCoachMark {
                id: mark

                _arrowAnchor: tourWindow.UTPopOverData.arrowAnchor
                _arrowAlignment: tourWindow.UTPopOverData.arrowAlignment
                arrowOffset: tourWindow.UTPopOverData.arrowOffset
                arrowSize: tourWindow.UTPopOverData.arrowSize
                coachmarkRadius: tourWindow.UTPopOverData.radius
                showHeader: true
                headerText: qsTr("Reactions")
                headerSvgName: "emoji-happy-bold"
                primaryText: page.explanation
                previewImageSource: page.landscape
                showPrimaryButton: true
                primaryButtonText: qsTr("Got it")
                showHyperlink: true
                hyperLinkButtonText: qsTr("Learn more")
                hyperLinkUrl: "https://example.org/reactions"
                onAccepted: coachMarkAcknowledged => page.log("accepted(%1)".arg(coachMarkAcknowledged))
                onHyperLinkClicked: hyperLinkUrl => page.log("hyperLinkClicked(\"%1\")".arg(hyperLinkUrl))
            }
        }
    }
}
