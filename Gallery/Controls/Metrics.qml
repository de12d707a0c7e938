/*! The gallery's measures, in pixels. */
pragma Singleton

import QtQml

QtObject {
    readonly property int tiny: 4
    readonly property int small: 8
    readonly property int medium: 12
    readonly property int large: 16
    readonly property int huge: 24

    readonly property int radius: 8
    readonly property int smallRadius: 6
    readonly property int controlHeight: 36
    readonly property int rowHeight: 32
    readonly property int iconSize: 16
    readonly property int sideBarWidth: 248
    readonly property int drawerWidth: 304
    readonly property int barHeight: 88
}
