#pragma once

#include "korvuui_export.h"

class QQmlEngine;

//! Brings the host into a QML engine. The QML module Korvu does so by itself; a program calls it that needs the image
//! providers in an engine that does not import the module.
namespace KorvuHost {

//! Gives \a engine the image providers "svg", "emoji" and "dynamic" and the context property \c themeMode, those of these
//! that it has not yet; sees to the fonts and begins to track the user's input.
//! Further calls for the same engine do nothing.
KORVUUI_EXPORT void install(QQmlEngine *engine);

} // namespace KorvuHost
