#pragma once

/*!
    Selects the palette that a colour set is taken from. Global follows the application's theme,
    the others force one palette whatever the application shows.
*/
enum class AppThemeType { Global, Light, Dark, HighContrast };
