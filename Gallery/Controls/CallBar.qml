/*! The control bar of a call that goes on by itself: what a calling application makes of call-control buttons. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

Card {
    id: control

    //! The call.
    property int seconds: 754
    property bool isInCall: true
    property bool isMuted: false
    property bool isVideoStopped: true
    property bool isSharing: false
    property bool hasCaptions: true
    property bool hasParticipants: true
    property bool isChatOpen: false
    property int unread: 3
    property string openMenu
    //! Labels are the first to go when there is little room.
    readonly property bool isWide: width > 720

    signal logged(text: string)

    function toggleMenu(name: string): void {
        openMenu = openMenu === name ? "" : name;
        logged(openMenu.length > 0 ? qsTr("menu of %1").arg(name) : qsTr("menu closed"));
    }

    function twoDigits(number: int): string {
        return String(number).padStart(2, "0");
    }

    function time(seconds: int): string {
        return "%1:%2".arg(twoDigits(Math.floor(seconds / 60))).arg(twoDigits(seconds % 60));
    }

    width: parent?.width ?? 0
    implicitHeight: 2 * Metrics.large + Math.max(start.height, middle.height, end.height)
    height: implicitHeight

    Timer {
        interval: 1000
        repeat: true
        running: control.isInCall && control.visible && !App.animationsDisabled
        onTriggered: ++control.seconds
    }
    Column {
        id: start

        anchors {
            left: parent.left
            leftMargin: Metrics.large
            verticalCenter: parent.verticalCenter
        }
        visible: control.isWide

        GalleryText {
            text: qsTr("Design review")
            font: FontConstants.subheaderSecondary
        }
        GalleryText {
            text: control.isInCall ? control.time(control.seconds) : qsTr("You left")
            font: FontConstants.tagLabelTertiary
            textColorSetName: "text-secondary"
        }
    }
    Row {
        id: middle

        anchors.centerIn: parent
        spacing: Metrics.small

        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.Mute
            isOn: control.isMuted
            hasMenu: true
            isMenuOpen: control.openMenu === leftName
            enabled: control.isInCall
            onTriggered: {
                control.isMuted = !control.isMuted;
                control.logged(control.isMuted ? qsTr("muted") : qsTr("unmuted"));
            }
            onMenuRequested: control.toggleMenu(leftName)
        }
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.StopVideo
            isOn: control.isVideoStopped
            hasMenu: true
            isMenuOpen: control.openMenu === leftName
            enabled: control.isInCall
            onTriggered: {
                control.isVideoStopped = !control.isVideoStopped;
                control.logged(control.isVideoStopped ? qsTr("video stopped") : qsTr("video started"));
            }
            onMenuRequested: control.toggleMenu(leftName)
        }
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.Captions
            isOn: control.hasCaptions
            hasMenu: true
            isMenuOpen: control.openMenu === leftName
            enabled: control.isInCall
            onTriggered: control.hasCaptions = !control.hasCaptions
            onMenuRequested: control.toggleMenu(leftName)
        }
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.Share
            isOn: control.isSharing
            isLabelled: true
            showText: control.isWide
            enabled: control.isInCall
            onTriggered: {
                control.isSharing = !control.isSharing;
                control.logged(control.isSharing ? qsTr("sharing") : qsTr("no longer sharing"));
            }
        }
        UTCallControlButtonWrapper {
            action: control.isInCall ? UTCallControlButtonWrapper.Action.Leave : UTCallControlButtonWrapper.Action.Join
            onTriggered: {
                control.isInCall = !control.isInCall;
                control.logged(control.isInCall ? qsTr("joined") : qsTr("left"));
            }
        }
    }
    Row {
        id: end

        anchors {
            right: parent.right
            rightMargin: Metrics.large
            verticalCenter: parent.verticalCenter
        }
        spacing: Metrics.tiny

        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.Participants
            isOn: control.hasParticipants
            onTriggered: control.hasParticipants = !control.hasParticipants
        }
        UTCallControlButtonWrapper {
            action: UTCallControlButtonWrapper.Action.Chat
            isOn: control.isChatOpen
            count: control.unread
            onTriggered: {
                control.isChatOpen = !control.isChatOpen;
                control.unread = 0;
            }
        }
    }
}
