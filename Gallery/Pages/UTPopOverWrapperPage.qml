import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Pop-overs")
    description: qsTr("A pop-over that takes what it is to be from a model of the application.")
    controls: [
        PropertyChoice { id: anchor; label: "model.arrowAnchor"; options: ["None", "Top", "Bottom", "Left", "Right"]; currentIndex: 3 },
        PropertyChoice { id: size; label: "model.size"; options: ["Small", "Medium"]; currentIndex: 1 },
        PropertySwitch { id: activation; label: "model.showWithActive"; value: true }
    ]

    Playground {
        UTPillButton {
            text: qsTr("Open the model's pop-over")
            buttonStyle: UTButtonStyle.Secondary
            onClicked: wrapper.active = !wrapper.active

            UTPopOverWrapper {
                id: wrapper

                model: UTPopOverModel {
                    arrowAnchor: UTPopOverEnum[anchor.value]
                    size: UTPopOverEnum[size.value]
                    showWithActive: activation.value
                }
                targetItem: parent
                content: KText {
                    topPadding: 12
                    bottomPadding: 12
                    text: qsTr("The model decides how this looks.")
                    textColorSetName: "label-primary-text"
                }
                onActiveChanged: page.log(active ? qsTr("active") : qsTr("not active"))
            }
        }
    }
}
