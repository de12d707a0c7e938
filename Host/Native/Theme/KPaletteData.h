#pragma once

#include "KPaletteReader.h"

#include <QRgb>

#include <span>

//! One row of the compiled-in palette: a colour set with its colours in every theme.
struct KPaletteRow
{
    const char *name;
    QRgb colors[KPaletteThemeCount][KPaletteStateCount];
};

//! The compiled-in palette, sorted by name. The build generates it from the palette files.
std::span<const KPaletteRow> builtInPalette();
