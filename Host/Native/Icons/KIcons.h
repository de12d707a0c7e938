#pragma once

#include "korvuui_export.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/*!
    The icons that the "svg" image provider knows. They are SVG files, named by their path below a search path and
    without ".svg". The icons of this library come last, so that an application can add its own and replace ours:

        KIcons::addSearchPath(QStringLiteral(":/app/icons"));

    All functions may be called from any thread.
*/
class KORVUUI_EXPORT KIcons
{
public:
    //! The longest edge that a shape can have, in pixels.
    static constexpr int maximumEdge = 4096;

    //! Looks in \a directory, of the file system or of the resources, before all paths known so far. To be called
    //! before the first icon shows: images that are on screen already stay as they are.
    static void addSearchPath(const QString &directory);

    //! The directories that are searched, in this order.
    static QStringList searchPaths();

    //! The file of the icon \a name; empty when there is none. The artwork below ":/Resources" serves as icons too,
    //! after all search paths: the frames of an animation are shown in their own colours or in one. A name that leads out of the search paths has none.
    static QString find(const QString &name);

    //! The names of all icons directly in the search paths, sorted.
    static QStringList names();

    //! The shape of the icon \a name as an alpha mask of exactly \a size pixels, centred with its proportions kept.
    //! A width or height of 0 follows from the other one. Null when there is no such icon, its file is no SVG, or the
    //! size is negative, zero or beyond maximumEdge. Recently used shapes are kept in memory.
    static QImage shape(const QString &name, const QSize &size);
};
