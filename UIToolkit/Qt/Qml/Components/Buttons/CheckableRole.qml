/*!
    Lets assistive technology know a button that can be checked as a button. Qt makes it a check box whenever assistive
    technology comes. Made by UTButtonBase.

    \qml
    CheckableRole { control: button }
    \endqml
*/
import QtQuick
import UIToolkitQml_Private 1.0

Connections {
    required property UTButtonBase control

    function onRoleChanged(): void {
        control.Accessible.role = Accessible.Button;
    }

    target: control.Accessible

    Component.onCompleted: {
        const button = control;
        onRoleChanged();
        button.Accessible.checkable = Qt.binding(() => button.checkable);
        button.Accessible.checked = Qt.binding(() => button.checked);
    }
}
