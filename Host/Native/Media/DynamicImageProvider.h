#pragma once

#include <QQuickAsyncImageProvider>

#include "korvuui_export.h"

//! Shows pictures from elsewhere, as far as MediaPolicy allows: "image://dynamic/?imageProviderUrl=<source>&isDark=<true
//! or false>&fallbackImage=<address>". The source is one of MediaPolicy::encode.
//!
//! When the picture is refused, cannot be fetched in time or cannot be decoded, the fallback shows, and without one
//! nothing, as a transparent picture of one pixel. Each such fault is warned about once. A source that is empty is none.
class KORVUUI_EXPORT DynamicImageProvider : public QQuickAsyncImageProvider
{
public:
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;
};
