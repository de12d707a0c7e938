/*! The gallery's measures, in pixels. */
pragma Singleton

import QtQml
import Korvu 1.0

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
    // What is beside the page grows with the text, but only half as much: it takes its room from the page.
    readonly property real growth: (1 + Math.max(1, App.textScale)) / 2
    readonly property int sideBarWidth: Math.round(248 * growth)
    readonly property int drawerWidth: Math.round(304 * growth)
    readonly property int barHeight: 88
}
