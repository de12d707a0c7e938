#include "EmojiImageProvider.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include "EmojiText.h"
#include "KFont.h"

namespace {

constexpr int defaultEdge = 72;
constexpr int maximumEdge = 512;
constexpr int cacheKilobytes = 8 * 1024;
constexpr int bytesPerKilobyte = 1024;

int edgeFor(const QString &id, const QSize &requestedSize)
{
    int edge = requestedSize.height() > 0 ? requestedSize.height() : requestedSize.width();
    if (edge <= 0)
        return defaultEdge;
    if (edge > maximumEdge) {
        qWarning("EmojiImageProvider: \"%ls\" was requested %d pixels high, drawn %d pixels high", qUtf16Printable(id),
                 edge, maximumEdge);
        edge = maximumEdge;
    }
    return edge;
}

QImage draw(const QString &emoji, int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QFont font(KFont::emojiFamily());
    font.setPixelSize(edge);
    // Merging takes parts of a sequence, as the digit of a keycap, from text fonts, and the rest no longer combines.
    if (QFontDatabase::hasFamily(KFont::emojiFamily()) || !QFont::substitutes(KFont::emojiFamily()).isEmpty())
        font.setStyleStrategy(QFont::NoFontMerging);
    // Emoji glyphs are wider than the font's size; sequences that the font lacks come as several glyphs.
    const QFontMetricsF metrics(font);
    const qreal extent = qMax(metrics.horizontalAdvance(emoji), metrics.height());
    if (extent > edge)
        font.setPixelSize(qMax(1, int(edge * edge / extent)));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, edge, edge), Qt::AlignCenter | Qt::TextSingleLine, emoji);
    return image;
}

} // namespace

// Always in the background: pictures in rich text that are there at once make Qt 6.8 warn of a load that ended too soon.
EmojiImageProvider::EmojiImageProvider()
    : QQuickImageProvider(QQmlImageProviderBase::Image, QQmlImageProviderBase::ForceAsynchronousImageLoading)
    , m_cache(cacheKilobytes)
{
}

QImage EmojiImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString emoji = EmojiText::emojiOfId(id);
    if (emoji.isEmpty()) {
        qWarning("EmojiImageProvider: \"%ls\" is no emoji", qUtf16Printable(id));
        return {};
    }
    const int edge = edgeFor(id, requestedSize);
    if (size)
        *size = QSize(edge, edge);

    const QString key = emoji + QString::number(edge);
    const QMutexLocker lock(&m_mutex);
    if (const QImage *cached = m_cache.object(key))
        return *cached;
    const QImage image = draw(emoji, edge);
    m_cache.insert(key, new QImage(image), qMax(1, int(image.sizeInBytes() / bytesPerKilobyte)));
    return image;
}
