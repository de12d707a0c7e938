#pragma once

#include <QImage>
#include <QStringList>

class QQuickWindow;

/*!
    Takes pictures of the gallery's window. It waits until all images are loaded and a frame looks like the one before,
    for at most a few seconds.
*/
class Photographer
{
public:
    //! Expects the window on screen and animations off.
    explicit Photographer(QQuickWindow *window);

    //! The window when it has come to rest.
    QImage picture();

    //! Saves the page shown as \a file. Returns false and sets \a error when it cannot.
    bool savePage(const QString &file, QString *error);

    //! Saves every page in every theme and both directions in \a directory, and one contact sheet a theme. Returns the
    //! paths of the sheets; sets \a error when something cannot be saved.
    QStringList saveAll(const QString &directory, QString *error);

private:
    struct Thumbnail
    {
        QString caption;
        QImage image;
    };

    bool save(const QImage &image, const QString &file, QString *error) const;
    static QImage contactSheet(const QString &title, const QList<Thumbnail> &thumbnails);

    QQuickWindow *m_window;
};
