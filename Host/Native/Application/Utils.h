#pragma once

#include <QClipboard>
#include <QObject>
#include <QPointF>
#include <QString>

#include "KKeySequence.h"
#include "korvuui_export.h"

//! Clipboard, emojis in rich text, keys and the pointer, for QML.
class KORVUUI_EXPORT Utils : public QObject
{
    Q_OBJECT

public:
    static Utils *instance();

    //! Puts \a html on the clipboard, as HTML and as plain text. Emoji pictures become emojis in both: no other program
    //! could show the pictures.
    Q_INVOKABLE void copyRichText(const QString &html);

    //! The plain text of the clipboard, on one line if \a singleLine. \a mode is a QClipboard::Mode: 0 for the clipboard,
    //! 1 for the selection of platforms that paste it by the middle button.
    Q_INVOKABLE QString pasteFromClipboard(bool singleLine = false, int mode = QClipboard::Clipboard) const;

    //! The same as markup that shows that very text, with emoji pictures \a height pixels high.
    Q_INVOKABLE QString pasteFromClipboardWithEmojis(qreal height, bool singleLine = false,
                                                     int mode = QClipboard::Clipboard) const;

    //! The text that a reader sees of \a text, which may be rich or plain; plain text is returned as it is.
    Q_INVOKABLE QString removeFormatting(const QString &text) const;

    //! \a text with each emoji outside of tags replaced by a picture \a height pixels high and wide.
    Q_INVOKABLE QString replaceEWJEmojisByImages(const QString &text, qreal height) const;

    //! The exact reverse of replaceEWJEmojisByImages.
    Q_INVOKABLE QString replaceImagesByEWJEmojis(const QString &text) const;

    //! The pointer's position on the virtual desktop, in device-independent pixels.
    Q_INVOKABLE QPointF getMousePos() const;

    //! The Qt::Key of \a event, a KKeyEvent or the event of a QML key handler; Qt.Key_unknown of anything else.
    Q_INVOKABLE int getQKey(const QObject *event) const;

    //! The key sequence of a KKeySequence value on this platform ("Ctrl+C"); empty where there is none.
    Q_INVOKABLE QString getKeySequence(KKeySequence::Type type) const;

private:
    template<typename T>
    friend T *applicationObject();
    using QObject::QObject;
};
