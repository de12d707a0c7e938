#pragma once

#include "korvuui_export.h"

#include <QMutex>
#include <QQuickImageProvider>
#include <QSet>
#include <QSize>
#include <QString>

/*!
    Gives QML every icon that KIcons finds, in any colour: "image://svg/<colour>/<icon>", where the colour is
    "#rrggbb", "#aarrggbb" or a colour's name. Only the shape of a drawing counts: all that it paints shows in the one
    colour, half-transparent where it is so itself or the colour is.

    The image has exactly the size that is asked for, in device pixels, at most KIcons::maximumEdge a side, and 16 x 16 when
    none is given.

    An icon that does not exist is reported once by name; it shows as a dashed square with a question mark in a debug
    build, as nothing else. A malformed URL or size is reported once and shows nothing.
*/
class KORVUUI_EXPORT KSvgImageProvider : public QQuickImageProvider
{
public:
    static constexpr int defaultEdge = 16;

    KSvgImageProvider();

    //! The name that the engine knows this provider by: "svg".
    static QString providerId();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    void warnOnce(const QString &message);
    QImage draw(const QString &id, const QSize &requestedSize);

    QMutex m_mutex;
    QSet<QString> m_reported;
};
