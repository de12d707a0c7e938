/*! The ground of everything on a page. */
import UIToolkitQml 1.0
import Gallery

KFrame {
    radius: Metrics.radius
    backgroundColorSetName: "card-active-background"
    borderColorSetName: "wx-default-border"
}
