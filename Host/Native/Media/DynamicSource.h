#pragma once

#include <QString>
#include <QUrl>

#include "korvuui_export.h"

//! Where a dynamic image comes from: "?imageProviderUrl=<source>&isDark=<bool>&fallbackImage=<address>", where the source
//! is the base64url form of a URL whose query items lightImage and darkImage are base64url forms of addresses.
struct KORVUUI_EXPORT DynamicSource
{
    //! The image for the theme, or the other one if there is none for it; empty if there is neither.
    QUrl address;
    //! What to show in its place; empty for nothing.
    QUrl fallback;
    //! What is wrong with the source, for developers to read. Empty also if there is no source, which is no fault.
    QString fault;

    //! Reads the part of "image://dynamic/..." after the provider's name.
    static DynamicSource fromId(const QString &id);
    //! Reads "image://dynamic/..." or the address of an image itself.
    static DynamicSource fromUrl(const QString &url);

    static QString encode(const QString &lightImage, const QString &darkImage);
    //! The source of an Image that shows \a address, or else \a fallback, in any theme.
    static QUrl url(const QString &address, const QString &fallback);

    static QString providerId();
};
