#include "KIcons.h"

#include <QCache>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype shapeBytes = 4 * 1024 * 1024;

struct Library
{
    QMutex mutex;
    QStringList paths{QStringLiteral(":/korvu/icons")};
    QCache<std::pair<QString, QSize>, QImage> shapes{shapeBytes};
};

Library &library()
{
    static Library instance;
    return instance;
}

bool leadsOut(const QString &name)
{
    const QString clean = QDir::cleanPath(name);
    return QDir::isAbsolutePath(clean) || clean == QLatin1String("..") || clean.startsWith(QLatin1String("../"));
}

QString fileIn(const QStringList &paths, const QString &name)
{
    if (name.isEmpty() || leadsOut(name))
        return {};
    for (const QString &path : paths) {
        const QString file = path + QLatin1Char('/') + name + QLatin1String(".svg");
        if (QFileInfo::exists(file))
            return file;
    }
    const QString artwork = QStringLiteral(":/Resources/%1.svg").arg(name);
    return QFileInfo::exists(artwork) ? artwork : QString();
}

QSize completed(const QSize &wanted, const QSizeF &drawn)
{
    const bool drawable = drawn.width() > 0 && drawn.height() > 0;
    const qreal ratio = drawable ? drawn.width() / drawn.height() : 1.0;
    QSize size = wanted;
    if (size.width() == 0)
        size.setWidth(qRound(size.height() * ratio));
    else if (size.height() == 0)
        size.setHeight(qRound(size.width() / ratio));
    return size.expandedTo({1, 1}).boundedTo({KIcons::maximumEdge, KIcons::maximumEdge});
}

QImage render(const QString &file, const QSize &wanted)
{
    QSvgRenderer renderer(file);
    if (!renderer.isValid())
        return {};
    const QSizeF drawn = renderer.viewBoxF().size();
    const QSize size = completed(wanted, drawn);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);

    QRectF box({0, 0}, drawn.scaled(size, Qt::KeepAspectRatio));
    box.moveCenter(QRectF(image.rect()).center());
    QPainter painter(&image);
    renderer.render(&painter, box);
    painter.end();
    return image.convertToFormat(QImage::Format_Alpha8);
}

} // namespace

void KIcons::addSearchPath(const QString &directory)
{
    Library &all = library();
    const QMutexLocker lock(&all.mutex);
    const QString path = QDir::cleanPath(directory);
    all.paths.removeAll(path);
    all.paths.prepend(path);
    all.shapes.clear();
}

QStringList KIcons::searchPaths()
{
    Library &all = library();
    const QMutexLocker lock(&all.mutex);
    return all.paths;
}

QString KIcons::find(const QString &name)
{
    return fileIn(searchPaths(), name);
}

QStringList KIcons::names()
{
    QSet<QString> found;
    const QStringList paths = searchPaths();
    for (const QString &path : paths) {
        const QStringList files = QDir(path).entryList({QStringLiteral("*.svg")}, QDir::Files);
        for (const QString &file : files)
            found.insert(QFileInfo(file).completeBaseName());
    }
    QStringList sorted(found.cbegin(), found.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QImage KIcons::shape(const QString &name, const QSize &size)
{
    const auto [shortEdge, longEdge] = std::minmax({size.width(), size.height()});
    if (shortEdge < 0 || longEdge < 1 || longEdge > maximumEdge)
        return {};

    Library &all = library();
    const std::pair<QString, QSize> key(name, size);
    QStringList paths;
    {
        const QMutexLocker lock(&all.mutex);
        if (const QImage *known = all.shapes.object(key))
            return *known;
        paths = all.paths;
    }

    // Rendered outside the lock: two threads that want the same new icon at once both draw it, which does no harm.
    const QString file = fileIn(paths, name);
    const QImage image = file.isEmpty() ? QImage() : render(file, size);
    if (!image.isNull()) {
        const QMutexLocker lock(&all.mutex);
        if (all.paths == paths)
            all.shapes.insert(key, new QImage(image), image.sizeInBytes());
    }
    return image;
}
