/*! The gallery's window: the list of pages, the page shown, and what belongs to it. */
import QtQuick
import QtQuick.Window
import Korvu 1.0
import Gallery

Window {
    id: window

    readonly property alias page: pageLoader.page
    readonly property alias drawer: drawer
    readonly property alias sideBar: sideBar
    property bool isDrawerShown: true

    readonly property kColorSet groundColorSet: ThemeManager.globalTheme, App.getColorSet("modal-secondary-background", "global")

    width: 1280
    height: 860
    minimumWidth: 720
    minimumHeight: 480
    color: groundColorSet.normal
    title: qsTr("%1 – Component gallery").arg(Session.page)

    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: sideBar.focusSearch()
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        LayoutMirroring.enabled: Session.rightToLeft
        LayoutMirroring.childrenInherit: true

        SideBar {
            id: sideBar

            anchors {
                left: parent.left
                top: parent.top
                bottom: parent.bottom
            }
        }
        HeaderBar {
            id: header

            anchors {
                left: sideBar.right
                right: parent.right
                top: parent.top
            }
            isDrawerShown: window.isDrawerShown
            onDrawerToggled: window.isDrawerShown = !window.isDrawerShown
        }
        ScrollPane {
            id: pane

            anchors {
                left: sideBar.right
                right: window.isDrawerShown ? drawer.left : parent.right
                top: header.bottom
                bottom: parent.bottom
            }
            name: qsTr("Page")
            contentHeight: pageLoader.height + 2 * Metrics.huge

            Loader {
                id: pageLoader

                readonly property GalleryPage page: item as GalleryPage

                x: Metrics.huge
                y: Metrics.huge
                width: pane.width - 2 * x
                source: Session.pageUrl

                onLoaded: pane.contentY = 0
            }
            GalleryText {
                x: Metrics.huge
                y: Metrics.huge
                width: pane.width - 2 * x
                visible: pageLoader.status === Loader.Error
                text: qsTr("This page could not be loaded; the log says why.")
                wrapMode: Text.Wrap
                textColorSetName: "label-error-text"
            }
        }
        Drawer {
            id: drawer

            anchors {
                right: parent.right
                top: header.bottom
                bottom: parent.bottom
            }
            visible: window.isDrawerShown
            page: pageLoader.page
        }
    }
    Connections {
        target: pageLoader.page

        function onLogged(text: string): void {
            drawer.log(text);
        }
    }
}
