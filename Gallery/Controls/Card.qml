/*! The ground of everything on a page. */
import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

KFrame {
    radius: Metrics.radius
    backgroundColorSetName: "card-active-background"
    borderColorSetName: "wx-default-border"
}
