/*!
    A table of examples: a row for each value and a column for each state.

    \qml
    StateTable {
        title: qsTr("Styles")
        rows: ["Primary", "Secondary"]
        delegate: UTPillButton {
            id: example
            required property string row
            required property StateRecord exampleState
            buttonStyle: UTButtonStyle[row]
            UTPillButtonData.eventData: UTEventData { source: example.exampleState }
        }
    }
    \endqml
*/
pragma ComponentBehavior: Bound

import QtQuick
import Korvu 1.0
import UIToolkitQml 1.0
import Gallery

Column {
    id: control

    property string title
    property var rows: []
    //! Makes an example. It must have the properties row, an element of rows, and exampleState, a StateRecord.
    property Component delegate
    //! The ground behind the row of the given name, where it needs another one than the page's.
    property var groundOf: row => "transparent"

    width: parent?.width ?? 0
    spacing: Metrics.small

    Component {
        id: focusPicture

        FocusPicture {}
    }
    GalleryText {
        width: parent.width
        visible: control.title.length > 0
        text: control.title
        font: FontConstants.subheaderPrimary
        Accessible.role: Accessible.Heading
    }
    Card {
        width: parent.width
        height: table.height + 2 * Metrics.large

        Flickable {
            anchors {
                fill: parent
                margins: Metrics.large
            }
            contentWidth: Math.max(width, table.width)
            contentX: table.isMirrored ? contentWidth - width : 0
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            clip: contentWidth > width

            Column {
                id: table

                readonly property bool isMirrored: LayoutMirroring.enabled
                readonly property real labelWidth: 136 * App.textScale
                readonly property real columnWidth: {
                    let width = 72 * App.textScale;
                    for (let i = 0; i < children.length; ++i)
                        width = Math.max(width, children[i].widest ?? 0);
                    return width;
                }

                x: isMirrored ? parent.width - width : 0
                spacing: Metrics.medium

                Row {
                    spacing: Metrics.small

                    Item {
                        width: table.labelWidth
                        height: 1
                    }
                    Repeater {
                        model: ExampleStates.all

                        GalleryText {
                            required property StateRecord modelData

                            width: table.columnWidth
                            text: modelData.name
                            font: FontConstants.tagLabelTertiary
                            textColorSetName: "text-secondary"
                            horizontalAlignment: Text.AlignHCenter
                        }
                    }
                }
                Repeater {
                    model: control.rows

                    Item {
                        id: line

                        required property var modelData
                        property real widest: 0

                        width: cells.width
                        height: cells.height + (ground.color.a > 0 ? 2 * Metrics.small : 0)

                        // Behind the examples only: the label is made for the page's ground.
                        KRectangle {
                            id: ground

                            anchors.right: parent.right
                            width: parent.width - table.labelWidth - cells.spacing
                            height: parent.height
                            radius: Metrics.smallRadius
                            backgroundColorSetName: control.groundOf(line.modelData) // qmllint disable use-proper-function
                        }
                        Row {
                            id: cells

                            anchors.verticalCenter: parent.verticalCenter
                            spacing: Metrics.small

                            GalleryText {
                                width: table.labelWidth
                                anchors.verticalCenter: parent.verticalCenter
                                text: String(line.modelData)
                                font: FontConstants.tagLabelTertiary
                                elide: Text.ElideRight
                            }
                            Repeater {
                                model: ExampleStates.all

                                Item {
                                    id: cell

                                    required property StateRecord modelData

                                    width: table.columnWidth
                                    height: childrenRect.height
                                    anchors.verticalCenter: parent.verticalCenter

                                    Component.onCompleted: {
                                        const example = control.delegate.createObject(cell, { row: line.modelData, exampleState: modelData });
                                        example.x = Qt.binding(() => Math.round((cell.width - example.width) / 2));
                                        line.widest = Math.max(line.widest, example.width);
                                        if (modelData.activeFocus) {
                                            const button = example.leftButton ?? example;
                                            focusPicture.createObject(button, { button: button });
                                        }
                                    }
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
