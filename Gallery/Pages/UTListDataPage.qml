pragma ComponentBehavior: Bound

import QtQuick
import UIToolkitQml 1.0
import UIToolkitQml_Private_Data 1.0
import Gallery

GalleryPage {
    id: page

    category: qsTr("Lists")
    description: qsTr("The groups of a list, and what a screen reader says of the list and of each row.")
    controls: [
        PropertyChoice { id: moduleChoice; label: "sourceModule"; options: page.modules.map(module => module.name); onCurrentIndexChanged: page.askAgain() },
        PropertySwitch { id: clearSwitch; label: "isClearMode"; onValueChanged: page.askAgain() },
        PropertySwitch { id: headerSwitch; label: qsTr("Headers can be selected"); onValueChanged: page.askAgain() }
    ]

    readonly property list<string> names: ["Ada", "Bo", "Cleo", "Dan", "Eve", "Finn"]
    readonly property var modules: [
        { name: qsTr("Other"), value: UTListAvatarSearchItem.Default },
        { name: qsTr("Calls"), value: UTListAvatarSearchItem.Calling },
        { name: qsTr("Tree"), value: UTListAvatarSearchItem.Keyboardshortcuts },
        { name: qsTr("Meetings"), value: UTListAvatarSearchItem.MeetingScheduler }
    ]
    property var rows: [row("Favourites", true), row("Ada", false), row("Bo", false), row("Others", true), row("Cleo", false)]

    function row(name: string, isHeader: bool): var {
        return { sectionName: name, isSection: isHeader, isGroupHeader: isHeader };
    }
    function insertRow(isHeader: bool): void {
        const at = Math.min(listData.currentIndex + 1, rows.length);
        const name = isHeader ? qsTr("Group %1").arg(rows.length) : names[rows.length % names.length];
        rows = [...rows.slice(0, at), row(name, isHeader), ...rows.slice(at)];
    }
    function removeRow(): void {
        rows = rows.filter((_, i) => i !== listData.currentIndex);
    }
    function select(forward: bool): void {
        const [index, sayGroup] = listData.nextSelectable(forward);
        log(qsTr("nextSelectable(%1): %2, %3").arg(forward).arg(index).arg(sayGroup ? qsTr("another group") : qsTr("same group")));
        if (index >= 0)
            list.currentIndex = index;
    }
    // What is said are results of functions, which tell nobody of changes. Asked once all bindings have followed.
    property int answer: 0

    function askAgain(): void {
        Qt.callLater(() => { answer += 1; });
    }
    function said(index: int, wholeList: bool, answer: int): string {
        return (wholeList ? listData.itemExplanation(index, true, true) : listData.itemDescription(index)) || qsTr("nothing");
    }

    onRowsChanged: askAgain()

    UTListData {
        id: listData

        currentIndex: list.currentIndex
        model: page.rows
        unSelectable: headerSwitch.value ? [] : [true]
        sourceModule: page.modules[moduleChoice.currentIndex].value
        isClearMode: clearSwitch.value
        showFirstTime: true
        onListDescritpionChanged: page.log(qsTr("listDescription is \"%1\"").arg(listDescription))
    }
    Flow {
        width: parent.width
        spacing: Metrics.small

        ActionButton { text: qsTr("Previous"); onClicked: page.select(false) }
        ActionButton { text: qsTr("Next"); onClicked: page.select(true) }
        ActionButton { text: qsTr("Add row"); onClicked: page.insertRow(false) }
        ActionButton { text: qsTr("Add group"); onClicked: page.insertRow(true) }
        ActionButton { text: qsTr("Remove"); onClicked: page.removeRow() }
        ActionButton { text: qsTr("Repeat hint"); onClicked: { listData.showFirstTime = true; page.askAgain(); } }
    }
    Card {
        width: parent.width
        height: list.height + 2 * Metrics.medium

        Column {
            id: list

            property int currentIndex: -1

            x: Metrics.medium
            y: Metrics.medium
            width: parent.width - 2 * Metrics.medium
            spacing: Metrics.small

            GalleryText {
                width: parent.width
                text: qsTr("Explained as \"%1\"").arg(page.said(Math.max(list.currentIndex, 0), true, page.answer))
                wrapMode: Text.Wrap
                font: FontConstants.bodySecondarySemibold
            }
            Repeater {
                model: page.rows

                Item {
                    id: rowItem

                    required property int index
                    required property var modelData
                    readonly property bool isHeader: modelData.isSection

                    width: list.width
                    height: Math.max(name.height, said.height)

                    KSvgIcon {
                        anchors.verticalCenter: parent.verticalCenter
                        anchors.left: parent.left
                        visible: rowItem.index === list.currentIndex
                        height: Metrics.iconSize
                        svgName: "arrow-right-bold"
                        svgColorSetName: "text-primary"
                    }
                    GalleryText {
                        id: name

                        anchors.left: parent.left
                        anchors.leftMargin: (rowItem.isHeader ? 1 : 2) * Metrics.huge
                        width: parent.width / 2 - anchors.leftMargin
                        text: rowItem.modelData.sectionName
                        wrapMode: Text.Wrap
                        font: rowItem.isHeader ? FontConstants.bodySecondarySemibold : FontConstants.bodySecondary
                    }
                    GalleryText {
                        id: said

                        anchors.right: parent.right
                        width: parent.width / 2
                        text: page.said(rowItem.index, false, page.answer)
                        wrapMode: Text.Wrap
                        textColorSetName: "text-secondary"
                    }
                }
            }
        }
    }

    component ActionButton: UTPillButton {
        buttonStyle: UTButtonStyle.Secondary
        buttonSize: UTButtonSize.L
    }
}
