/*! What stands in for the base of the library's text fields, until there is one. */
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryTextField {
    readonly property string componentType: "UTTextFieldBase"

    UTShortcutOverride.objectName: "UTTextFieldBaseOverride"
}
