/*!
    A small button for one of the purposes that the library knows, with the icon and colour of that purpose. It can be
    checked: a favourite stays one. For a mere command set `checkable` to false.

    \qml
    UTIconButton {
        buttonType: UTButtonType.Favorite
        tooltip: "Favourite"
        onToggled: contact.isFavourite = checked
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private 1.0
import UIToolkitQml_Private_Data 1.0

UTButtonBase {
    id: control

    property var themeType: typeof (themeMode) !== "undefined" ? themeMode : "global" // qmllint disable unqualified
    //! A value of UTButtonType.
    property int buttonType: 0 // UTButtonType.None
    //! The item that hosts the focus ring.
    property var focusDesignatedParent: control

    onFocusRingWanted: settings => Object.assign(settings, { designatedParent: () => control.focusDesignatedParent, themeType: () => control.themeType })

    UTIconButtonData.themeType: themeType
    UTIconButtonData.eventData: UTEventData { followsItem: true }

    // In place of a binding, which costs more.
    onButtonTypeChanged: UTIconButtonData.type = buttonType

    checkable: true
    implicitWidth: UTIconButtonData.buttonSize.width
    implicitHeight: UTIconButtonData.buttonSize.height

    // Painted by the data object.
    background: Rectangle { objectName: "ground" }
    contentItem: Image {
        // Without a colour, as at first, there is nothing to load.
        source: {
            const color = control.UTIconButtonData.textColorData.color;
            const name = control.UTIconButtonData.iconData.icon;
            return color.a > 0 && name.length > 0 ? `image://svg/${color}/${name}` : "";
        }
        sourceSize: control.UTIconButtonData.iconSize
        fillMode: Image.Pad
        mipmap: true // as everywhere, for the texture is shared
    }
}
