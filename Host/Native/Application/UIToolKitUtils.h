#pragma once

#include <QFont>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include "korvuui_export.h"

class QWindow;

//! Speech, keys, screens, windows and texts, for QML.
class KORVUUI_EXPORT UIToolKitUtils : public QObject
{
    Q_OBJECT
    //! The target of links that mention somebody: the compose area shows their text as a mention, without a link. An
    //! address that is never valid.
    Q_PROPERTY(QString mentionLink READ mentionLink CONSTANT FINAL)

public:
    static UIToolKitUtils *instance();
    static QString mentionLink();

    //! Always true.
    Q_INVOKABLE bool isQt6Used() const { return true; }

    //! Lets a screen reader speak \a text on behalf of \a item, after \a delay milliseconds when that is positive and
    //! the item still exists then. A text of blanks only is not spoken.
    Q_INVOKABLE void sayAccessible(QObject *item, const QString &text, int delay = 0);

    //! Sends press and release of \a key (a Qt::Key) to \a receiver, an item or a window, as if the user had typed it
    //! there: what an item leaves goes on to its parents, and a Tab or Backtab that nobody takes moves the focus on from
    //! the item. Returns whether the press was taken.
    Q_INVOKABLE bool simulateKeyEvent(QObject *receiver, int key, int modifiers = Qt::NoModifier,
                                      const QString &text = QString());

    //! Index of the screen that holds \a point of the virtual desktop in the application's list of screens, -1 if none.
    Q_INVOKABLE int getScreenIndexFromPoint(const QPointF &point) const;

    //! True when \a window is a parent or transient parent, at any depth, of \a otherWindow.
    Q_INVOKABLE bool isAncestorOf(QWindow *window, QWindow *otherWindow) const;

    //! Extent in pixels of the plain text \a text in \a font, at (0, 0); lines break at line feeds, and between words so
    //! that none is wider than \a maximumWidth when that is positive. Give htmlToPlainText(text) for rich text.
    Q_INVOKABLE QRectF getTextBoundingRect(const QString &text, const QFont &font, qreal maximumWidth = 0) const;

    //! The text that a reader sees of \a html.
    Q_INVOKABLE QString htmlToPlainText(const QString &html) const;

    //! True when \a html holds an anchor with a target.
    Q_INVOKABLE bool hasLinkInText(const QString &html) const;

    //! Opens \a link, of the schemes http, https, mailto and tel and those added, with the desktop's program for it; a
    //! missing scheme is guessed. Any other scheme is warned about. Returns whether a program was found.
    Q_INVOKABLE bool openLink(const QString &link) const;

    //! Lets openLink open links of one more \a scheme, as "sip".
    Q_INVOKABLE void addLinkScheme(const QString &scheme);

    //! The schemes of links that are opened, and that text from elsewhere may have, in lower case.
    const QStringList &linkSchemes() const { return m_linkSchemes; }

Q_SIGNALS:
    //! \a text was spoken on behalf of \a item, or would have been if a screen reader were there.
    void announced(const QString &text, QObject *item);

private:
    template<typename T>
    friend T *applicationObject();
    explicit UIToolKitUtils(QObject *parent);

    QStringList m_linkSchemes;
};
