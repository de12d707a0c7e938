#include "Photographer.h"

#include "CommandLine.h"
#include "PageIndex.h"
#include "Session.h"

#include <App.h>
#include <KFont.h>
#include <ThemeManager.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestWait = 8000; // milliseconds until a window that never rests is taken as it is
constexpr int frameInterval = 30; // milliseconds between frames that are compared
constexpr int statusLoading = 2;  // Image.Loading

bool isLoading(const QQuickItem *item)
{
    if (item->inherits("QQuickImageBase") && item->property("status").toInt() == statusLoading)
        return true;
    const QList<QQuickItem *> children = item->childItems();
    return std::any_of(children.cbegin(), children.cend(), isLoading);
}

// Animated pictures go on whatever is said about animations; a photograph shows their first frame.
void stopFilms(QQuickItem *item)
{
    if (item->inherits("QQuickAnimatedImage")) {
        item->setProperty("paused", true);
        item->setProperty("currentFrame", 0);
    }
    const QList<QQuickItem *> children = item->childItems();
    std::for_each(children.cbegin(), children.cend(), stopFilms);
}

void runEvents(int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, milliseconds);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    } while (!deadline.hasExpired());
}

} // namespace

Photographer::Photographer(QQuickWindow *window)
    : m_window(window)
{
}

QImage Photographer::picture()
{
    const QDeadlineTimer deadline(longestWait);
    QImage previous;
    while (!deadline.hasExpired()) {
        runEvents(frameInterval);
        if (!m_window->isExposed() || isLoading(m_window->contentItem()))
            continue;
        stopFilms(m_window->contentItem());
        QImage frame = m_window->grabWindow();
        if (frame == previous)
            return frame;
        previous = frame;
    }
    qWarning("The page \"%ls\" never came to rest.", qUtf16Printable(Session::instance()->page()));
    return previous;
}

bool Photographer::save(const QImage &image, const QString &file, QString *error) const
{
    if (!image.isNull() && image.save(file, "PNG"))
        return true;
    *error = u"gallery: the picture cannot be saved as \"%1\""_s.arg(file);
    return false;
}

bool Photographer::savePage(const QString &file, QString *error)
{
    return save(picture(), file, error);
}

QStringList Photographer::saveAll(const QString &directory, QString *error)
{
    const QDir target(directory);
    if (!target.mkpath(u"."_s)) {
        *error = u"gallery: the folder \"%1\" cannot be made"_s.arg(directory);
        return {};
    }

    constexpr int thumbnailWidth = 320;
    QStringList sheets;
    for (const QString &theme : CommandLine::themes()) {
        ThemeManager::instance()->setTheme(theme);
        QList<Thumbnail> thumbnails;
        for (const bool rightToLeft : {false, true}) {
            Session::instance()->setRightToLeft(rightToLeft);
            const QString direction = rightToLeft ? u"-rtl"_s : QString();
            for (const PageInfo &page : PageIndex::pages()) {
                Session::instance()->setPage(page.name);
                const QImage image = picture();
                if (!save(image, target.filePath(u"%1-%2%3.png"_s.arg(page.name, theme, direction)), error))
                    return sheets;
                thumbnails.append(
                    {page.name + direction, image.scaledToWidth(thumbnailWidth, Qt::SmoothTransformation)});
            }
        }
        const QString sheet = target.absoluteFilePath(u"contact-%1.png"_s.arg(theme));
        if (!save(contactSheet(theme, thumbnails), sheet, error))
            return sheets;
        sheets.append(sheet);
    }
    return sheets;
}

QImage Photographer::contactSheet(const QString &title, const QList<Thumbnail> &thumbnails)
{
    constexpr int columns = 6;
    constexpr int margin = 24;
    constexpr int captionHeight = 28;
    constexpr int headHeight = 64;
    const auto color = [](const QString &set) { return App::instance()->getColorSet(set).normal(); };

    QSize cell;
    for (const Thumbnail &thumbnail : thumbnails)
        cell = cell.expandedTo(thumbnail.image.size());
    const int rows = (int(thumbnails.size()) + columns - 1) / columns;
    const QSize step(cell.width() + margin, cell.height() + captionHeight + margin);

    QImage sheet(margin + columns * step.width(), headHeight + rows * step.height(), QImage::Format_RGB32);
    sheet.fill(color(u"modal-secondary-background"_s));
    QPainter painter(&sheet);
    painter.setPen(color(u"text-primary"_s));
    painter.setFont(KFont(KFont::Title));
    painter.drawText(QRect(margin, 0, sheet.width(), headHeight), Qt::AlignVCenter, title);
    painter.setFont(KFont(KFont::BodySecondary));
    for (int i = 0; i < thumbnails.size(); ++i) {
        const QPoint corner(margin + i % columns * step.width(), headHeight + i / columns * step.height());
        painter.drawText(QRect(corner, QSize(cell.width(), captionHeight)), Qt::AlignVCenter, thumbnails.at(i).caption);
        const QPoint place = corner + QPoint(0, captionHeight);
        painter.drawImage(place, thumbnails.at(i).image);
        painter.save();
        painter.setPen(color(u"wx-default-border"_s));
        painter.drawRect(QRect(place, thumbnails.at(i).image.size()).adjusted(0, 0, -1, -1));
        painter.restore();
    }
    return sheet;
}
