#include "Utils.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMimeData>
#include <QVariant>

#include "ApplicationObject.h"
#include "EmojiText.h"
#include "PlainText.h"

namespace {

QString clipboardText(bool singleLine, int mode)
{
    const bool isMode = mode >= QClipboard::Clipboard && mode <= QClipboard::LastMode;
    const QString text = isMode ? QGuiApplication::clipboard()->text(QClipboard::Mode(mode)) : QString();
    return singleLine ? PlainText::singleLine(text) : text;
}

} // namespace

Utils *Utils::instance()
{
    return applicationObject<Utils>();
}

void Utils::copyRichText(const QString &html)
{
    const QString htmlWithEmojis = EmojiText::replaceImagesByEmojis(html);
    auto *data = new QMimeData;
    data->setHtml(htmlWithEmojis);
    data->setText(PlainText::removeFormatting(htmlWithEmojis));
    QGuiApplication::clipboard()->setMimeData(data);
}

QString Utils::pasteFromClipboard(bool singleLine, int mode) const
{
    return clipboardText(singleLine, mode);
}

QString Utils::pasteFromClipboardWithEmojis(qreal height, bool singleLine, int mode) const
{
    return EmojiText::replaceEmojisByImages(PlainText::toHtml(clipboardText(singleLine, mode)), height);
}

QString Utils::removeFormatting(const QString &text) const
{
    return PlainText::removeFormatting(text);
}

QString Utils::replaceEWJEmojisByImages(const QString &text, qreal height) const
{
    return EmojiText::replaceEmojisByImages(text, height);
}

QString Utils::replaceImagesByEWJEmojis(const QString &text) const
{
    return EmojiText::replaceImagesByEmojis(text);
}

QPointF Utils::getMousePos() const
{
    return QCursor::pos();
}

int Utils::getQKey(const QObject *event) const
{
    // QML's own key event class is not public; both kinds have the property.
    const QVariant key = event ? event->property("key") : QVariant();
    return key.isValid() ? key.toInt() : int(Qt::Key_unknown);
}

QString Utils::getKeySequence(KKeySequence::Type type) const
{
    return KKeySequence::lookUp(type);
}
