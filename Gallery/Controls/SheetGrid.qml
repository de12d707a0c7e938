/*! Lays cells of one size out in as many columns as there is room for. */
import QtQuick
import Korvu 1.0
import Gallery

Grid {
    //! At a text scale of 1; cells grow with the texts in them.
    property real minimumCellWidth: 148
    //! As wide as it takes for the columns to fill the grid.
    readonly property real cellWidth: Math.floor((width - (columns - 1) * spacing) / columns)
    //! As high as the highest cell.
    readonly property real cellHeight: {
        let height = 0;
        for (let i = 0; i < children.length; ++i)
            height = Math.max(height, children[i].implicitHeight);
        return height;
    }

    columns: Math.max(1, Math.floor((width + spacing) / (minimumCellWidth * App.textScale + spacing)))
    spacing: Metrics.medium
}
