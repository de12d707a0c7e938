/*!
    A call-control button for one of the usual actions of a call: names, icons, style and announcements come with the
    action. It shows what is in force and never changes that by itself, so that it cannot contradict the call.

    \qml
    UTCallControlButtonWrapper {
        action: UTCallControlButtonWrapper.Action.Mute
        isOn: call.muted
        onTriggered: call.muted = !call.muted
    }
    \endqml
*/
import QtQuick
import UIToolkitQml 1.0
import "qrc:/qt/qml/UIToolkitQml/CallControl.js" as CallControl

UTCallControlButton {
    id: control

    //! Custom brings nothing along.
    enum Action {
        Custom,
        Mute,
        StopVideo,
        Share,
        Captions,
        RaiseHand,
        Record,
        Speaker,
        Keypad,
        Participants,
        Chat,
        Assistant,
        Leave,
        EndCall,
        Join
    }

    //! An unknown number is as Custom.
    property int action: UTCallControlButtonWrapper.Action.Custom
    //! Whether what the action's name says is in force: muted, sharing, the panel open.
    property bool isOn
    //! Gives the action a second half that asks for a menu.
    property bool hasMenu
    property bool isMenuOpen
    //! Shows the action's name as a label, where the form of the button can carry one.
    property bool isLabelled
    //! What is new, shown as a badge; 0 for none.
    property int count
    readonly property var row: CallControl.actionRow(action)

    //! The user wants the action done, or undone.
    signal triggered()
    //! The user wants the menu opened, or closed.
    signal menuRequested()

    buttonType: UTCallControlButtonEnum[hasMenu ? row.menuType : isLabelled ? "Panel" : row.type]
    buttonStyle: UTCallControlButtonEnum[row.style]
    buttonState: isOn ? UTCallControlButtonEnum.Active : UTCallControlButtonEnum.Inactive
    text: isLabelled ? row.name : ""
    leftName: row.name
    leftTooltip: isOn ? row.undoName : row.name
    leftIcon: row.icon
    leftCheckedIcon: row.onIcon
    leftCheckable: row.isState
    leftChecked: row.isState && isOn
    leftAccessibleName: row.name
    leftStatusText: isOn ? row.onText : row.offText
    rightName: row.menuName
    rightCheckable: true
    rightChecked: isMenuOpen
    badgeText: count > CallControl.highestCount ? qsTr("%1+").arg(CallControl.highestCount) : count > 0 ? count : ""
    leftAccessibleDescription: count > 0 ? qsTr("%n new", "", count) : ""

    onLeftClicked: triggered()
    onLeftToggled: {
        triggered();
        leftChecked = Qt.binding(() => row.isState && isOn);
    }
    onRightToggled: {
        menuRequested();
        rightChecked = Qt.binding(() => isMenuOpen);
    }
}
