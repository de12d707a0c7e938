#pragma once

#include <QLatin1StringView>

//! Warnings of Qt's own that no page can help.
namespace QtFaults {

//! Qt 6.8, of a picture in rich text whose loading ends at an unlucky moment, as on a busy machine. It shows all the same.
inline constexpr QLatin1StringView pictureInText("QQuickPixmap: connectFinished() called when not loading.");

} // namespace QtFaults
