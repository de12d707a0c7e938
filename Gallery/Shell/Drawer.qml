/*! Beside the page: its live controls, its events, and what a screen reader is told. */
pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

KRectangle {
    id: control

    required property GalleryPage page
    property alias currentTab: tabs.currentIndex
    readonly property alias eventCount: events.count

    function log(text: string): void {
        if (events.count === priv.longestLog)
            events.remove(0);
        priv.lastNumber += 1;
        events.append({ number: priv.lastNumber, text: text });
    }
    function clearLog(): void {
        events.clear();
    }

    width: Metrics.drawerWidth
    backgroundColorSetName: "background-primary"

    onPageChanged: {
        clearLog();
        if (!page)
            return;
        for (let i = 0; i < page.controls.length; ++i)
            page.controls[i].parent = properties;
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Side panel")

    ListModel {
        id: events
    }
    AccessibleMonitor {
        id: monitor

        watching: control.visible && screenReader.visible
    }
    Segments {
        id: tabs

        anchors {
            left: parent.left
            right: parent.right
            top: parent.top
            margins: Metrics.large
        }
        isStretched: true
        itemRole: Accessible.PageTab
        name: qsTr("Side panel")
        texts: [qsTr("Properties"), qsTr("Events"), qsTr("Reader")]
    }
    Item {
        id: room

        anchors {
            left: parent.left
            right: parent.right
            top: tabs.bottom
            bottom: parent.bottom
            topMargin: Metrics.medium
        }

        ScrollPane {
            anchors.fill: parent
            visible: control.currentTab === 0
            name: qsTr("Properties")
            contentHeight: properties.height + 2 * Metrics.large

            Column {
                id: properties

                x: Metrics.large
                y: Metrics.tiny
                width: parent.width - 2 * x
                spacing: Metrics.large
            }
            GalleryText {
                x: Metrics.large
                width: parent.width - 2 * x
                visible: (control.page?.controls.length ?? 0) === 0
                text: qsTr("This page has nothing to set.")
                wrapMode: Text.Wrap
                textColorSetName: "text-secondary"
            }
        }
        Item {
            anchors.fill: parent
            anchors.margins: Metrics.large
            anchors.topMargin: Metrics.tiny
            visible: control.currentTab === 1

            LogList {
                anchors {
                    left: parent.left
                    right: parent.right
                    top: parent.top
                    bottom: clearEvents.top
                    bottomMargin: Metrics.small
                }
                name: qsTr("Events")
                emptyText: qsTr("Signals of the examples are listed here as they happen.")
                model: events
                delegate: LogRow {
                    required property int number
                    required property string text

                    head: qsTr("%1").arg(number)
                    body: text
                }
            }
            UTPillButton {
                id: clearEvents

                anchors.bottom: parent.bottom
                anchors.left: parent.left
                text: qsTr("Clear")
                leftIcon: "clear-bold"
                buttonStyle: UTButtonStyle.Ghost
                buttonSize: UTButtonSize.L
                onClicked: control.clearLog()
            }
        }
        Item {
            id: screenReader

            anchors.fill: parent
            anchors.margins: Metrics.large
            anchors.topMargin: Metrics.tiny
            visible: control.currentTab === 2

            Column {
                id: focusFacts

                width: parent.width
                spacing: Metrics.tiny

                GalleryText {
                    width: parent.width
                    text: qsTr("Focused item")
                    font: FontConstants.subheaderSecondary
                    Accessible.role: Accessible.Heading
                }
                Repeater {
                    model: [
                        { title: qsTr("Role"), value: monitor.focusRole },
                        { title: qsTr("Name"), value: monitor.focusName },
                        { title: qsTr("Description"), value: monitor.focusDescription },
                        { title: qsTr("Value"), value: monitor.focusValue },
                        { title: qsTr("States"), value: monitor.focusStates.join(", ") }
                    ]

                    FactRow {
                        required property var modelData

                        title: modelData.title
                        value: modelData.value
                    }
                }
                GalleryText {
                    width: parent.width
                    topPadding: Metrics.small
                    text: qsTr("Told so far")
                    font: FontConstants.subheaderSecondary
                    Accessible.role: Accessible.Heading
                }
            }
            LogList {
                anchors {
                    left: parent.left
                    right: parent.right
                    top: focusFacts.bottom
                    bottom: clearReader.top
                    topMargin: Metrics.tiny
                    bottomMargin: Metrics.small
                }
                name: qsTr("Told so far")
                emptyText: qsTr("Move the focus, or let a page announce something.")
                model: monitor
                delegate: LogRow {
                    required property string kind
                    required property string item
                    required property string text

                    head: kind
                    body: item.length > 0 ? qsTr("%1: %2").arg(item).arg(text) : text
                }
            }
            UTPillButton {
                id: clearReader

                anchors.bottom: parent.bottom
                anchors.left: parent.left
                text: qsTr("Clear")
                leftIcon: "clear-bold"
                buttonStyle: UTButtonStyle.Ghost
                buttonSize: UTButtonSize.L
                onClicked: monitor.clear()
            }
        }
    }
    KSeparator {
        anchors.left: parent.left
        width: 1
        height: parent.height
    }

    QtObject {
        id: priv

        readonly property int longestLog: 200
        property int lastNumber: 0
    }
}
