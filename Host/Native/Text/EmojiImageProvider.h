#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickImageProvider>

#include "korvuui_export.h"

//! Draws "image://emoji/1f468-200d-1f467": the code points in hexadecimal, joined by hyphens, in the system's colour
//! emoji font, as a square picture. Without a requested size a picture is 72 pixels wide; none is wider than 512.
//! Pictures are cached. A name that is no emoji gives one warning that names it, and no picture.
class KORVUUI_EXPORT EmojiImageProvider : public QQuickImageProvider
{
public:
    EmojiImageProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    QMutex m_mutex;
    QCache<QString, QImage> m_cache;
};
