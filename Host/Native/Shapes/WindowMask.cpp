#include "WindowMask.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#ifdef KORVUUI_HAS_PRIVATE_GUI
#include <qpa/qplatformnativeinterface.h>
#endif

bool WindowMask::isNeeded(const QWindow &window)
{
#ifdef KORVUUI_HAS_PRIVATE_GUI
    static const bool isX11 = QGuiApplication::platformName() == QLatin1StringView("xcb");
    return isX11 && window.screen()
        && !QGuiApplication::platformNativeInterface()->nativeResourceForScreen("compositingEnabled", window.screen());
#else
    Q_UNUSED(window)
    return false;
#endif
}

void WindowMask::set(QWindow &window, const QPainterPath &outline)
{
    QRegion region;
    if (!outline.isEmpty()) {
        QBitmap bitmap(window.size());
        bitmap.clear();
        QPainter(&bitmap).fillPath(outline, Qt::color1);
        region = bitmap;
    }
    if (region != window.mask())
        window.setMask(region);
}
