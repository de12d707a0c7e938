pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Buttons")
    description: qsTr("A small round button that explains something in a balloon.")
    controls: [
        PropertyText { id: text; label: "moreInfoText"; value: qsTr("Others see when you were last here.") },
        PropertySwitch { id: rich; label: "includeHyperLink" },
        PropertySlider { id: width; label: "maximumPopoverWidth"; from: 80; to: 500; value: 308 },
        PropertyChoice { id: anchor; label: "utArrowAnchor"; options: ["Top", "Bottom", "Left", "Right"] },
        PropertySwitch { id: enabledSwitch; label: "enabled"; value: true }
    ]

    Playground {
        Row {
            spacing: 8

            GalleryText {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Show my presence")
            }
            UTMoreInfoButton {
                tooltip: qsTr("About presence")
                moreInfoText: rich.value ? text.value + " <a href=\"https://example.org\">%1</a>".arg(qsTr("More about it")) : text.value
                includeHyperLink: rich.value
                maximumPopoverWidth: width.value
                utArrowAnchor: UTPopOverEnum[anchor.value]
                enabled: enabledSwitch.value
                onPopupActiveChanged: page.log(popupActive ? qsTr("open") : qsTr("closed"))
            }
        }
    }
    Sheet {
        title: qsTr("Sizes")

        Repeater {
            model: ["M", "S", "XS", "XXS", "XXXS"]

            Cell {
                id: sizeCell

                required property string modelData

                label: modelData

                UTMoreInfoButton {
                    tooltip: qsTr("About sizes")
                    moreInfoText: qsTr("A size of the round button.")
                    buttonSize: UTButtonSize[sizeCell.modelData]
                }
            }
        }
    }
}
