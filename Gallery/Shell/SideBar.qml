/*! The list of all pages with its search. */
import QtQuick
import QtQuick.Templates as T
import UIToolkitQml 1.0
import Gallery

KRectangle {
    id: control

    readonly property alias model: pages

    function focusSearch(): void {
        search.forceActiveFocus(Qt.ShortcutFocusReason);
        search.selectAll();
    }

    width: Metrics.sideBarWidth
    backgroundColorSetName: "background-primary"

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Pages")

    PageModel {
        id: pages

        filter: search.text
    }
    Row {
        id: brand

        x: Metrics.large
        width: parent.width - 2 * x
        height: Metrics.barHeight - Metrics.large
        spacing: Metrics.medium

        KGradientRectangle {
            id: emblem

            anchors.verticalCenter: parent.verticalCenter
            width: 36
            height: 36
            radius: Metrics.radius
            gradientStartColourSetName: "button-accent-fill-background"
            gradientEndColourSetName: "coachmarkteaching-background"

            KSvgIcon {
                anchors.centerIn: parent
                height: 20
                svgName: "components-filled"
                svgColorSetName: "button-accent-fill-text"
            }
        }
        GalleryText {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width - emblem.width - parent.spacing
            text: qsTr("Component gallery")
            font: FontConstants.subheaderPrimary
            wrapMode: Text.Wrap
        }
    }
    GalleryTextField {
        id: search

        anchors {
            left: parent.left
            right: parent.right
            top: brand.bottom
            leftMargin: Metrics.medium
            rightMargin: Metrics.medium
        }
        name: qsTr("Search the pages")
        prompt: qsTr("Search")
        iconName: "search-bold"

        Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        Keys.onReturnPressed: {
            if (pages.count > 0)
                Session.page = pages.nameAt(0);
        }
        Keys.onEscapePressed: clear()
    }
    ListView {
        id: list

        anchors {
            left: parent.left
            right: parent.right
            top: search.bottom
            bottom: parent.bottom
            leftMargin: Metrics.small
            rightMargin: Metrics.small
            topMargin: Metrics.small
        }
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        model: pages
        bottomMargin: Metrics.large
        section.property: "category"
        section.delegate: GalleryText {
            required property string section

            width: ListView.view?.width ?? 0
            leftPadding: Metrics.large
            rightPadding: leftPadding
            topPadding: Metrics.large
            bottomPadding: Metrics.tiny
            text: section
            font: FontConstants.tagLabelSecondary
            textColorSetName: "text-secondary"
            Accessible.role: Accessible.Heading
        }
        delegate: T.ItemDelegate {
            id: row

            required property int index
            required property string name
            required property string description
            readonly property bool isShown: name === Session.page

            width: ListView.view?.width ?? 0
            height: Math.max(Metrics.rowHeight, label.implicitHeight + Metrics.small)
            text: name
            checked: isShown
            hoverEnabled: true
            // The list is one stop of the Tab key; arrows go on from there.
            focusPolicy: Qt.ClickFocus

            background: KRectangle {
                radius: Metrics.smallRadius
                controlsTarget: row
                backgroundColorSetName: row.isShown ? "tab-active-background" : "tab-inactive-background"
            }
            contentItem: GalleryText {
                id: label

                leftPadding: Metrics.large
                rightPadding: Metrics.large
                verticalAlignment: Text.AlignVCenter
                text: row.text
                elide: Text.ElideMiddle
                font: row.isShown ? FontConstants.bodySecondarySemibold : FontConstants.bodySecondary
                controlsTarget: row
                textColorSetName: row.isShown ? "tab-active-text" : "listitem-textprimary"
                Accessible.ignored: true
            }

            onClicked: {
                ListView.view.currentIndex = index;
                Session.page = name;
            }
            Keys.onReturnPressed: click()
            Keys.onEnterPressed: click()

            FocusRing {}

            Accessible.role: Accessible.ListItem
            Accessible.name: name
            Accessible.description: description
            Accessible.selectable: true
            Accessible.selected: isShown
            Accessible.onPressAction: click()
        }

        T.ScrollBar.vertical: ThinScrollBar {
            parent: control
            anchors {
                right: parent.right
                top: list.top
                bottom: list.bottom
            }
        }

        function showCurrentPage(): void {
            currentIndex = Math.max(0, pages.indexOf(Session.page));
            positionViewAtIndex(currentIndex, ListView.Contain);
        }

        onCountChanged: showCurrentPage()
        Component.onCompleted: showCurrentPage()

        Connections {
            target: Session

            function onPageChanged(): void {
                list.showCurrentPage();
            }
        }

        Accessible.role: Accessible.List
        Accessible.name: qsTr("Pages")
    }
    Column {
        anchors {
            left: parent.left
            right: parent.right
            top: search.bottom
            margins: Metrics.huge
        }
        visible: pages.count === 0
        spacing: Metrics.small

        GalleryText {
            width: parent.width
            text: qsTr("No page matches.")
            wrapMode: Text.Wrap
            textColorSetName: "text-secondary"
        }
        UTPillButton {
            text: qsTr("Show all")
            buttonStyle: UTButtonStyle.Ghost
            buttonSize: UTButtonSize.L
            onClicked: search.clear()
        }
    }
    KSeparator {
        anchors.right: parent.right
        width: 1
        height: parent.height
    }
}
