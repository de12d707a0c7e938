#include "KSvgImageProvider.h"

#include "KIcons.h"

#include <QColor>
#include <QDebug>
#include <QGuiApplication>
#include <QMutexLocker>

#include <algorithm>
#include <array>

namespace {

#ifdef QT_NO_DEBUG
constexpr bool showsMissing = false;
#else
constexpr bool showsMissing = true;
#endif

constexpr QRgb missingColor = 0xffd6277a;

// Never null: for a null image QML adds a warning of its own that names no culprit.
QImage nothing(const QSize &size)
{
    QImage image(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// By hand rather than with a QPainter, which would leave its paint engine, several KB, with every icon on screen.
QImage colored(const QImage &mask, const QColor &color)
{
    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    const QRgb rgb = color.rgba();
    std::array<QRgb, 256> shades;
    for (int alpha = 0; alpha < int(shades.size()); ++alpha)
        shades[alpha] = qPremultiply((rgb & RGB_MASK) | (QRgb(qAlpha(rgb) * alpha + 127) / 255) << 24);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar *from = mask.constScanLine(y);
        std::transform(from, from + mask.width(), reinterpret_cast<QRgb *>(image.scanLine(y)),
                       [&shades](uchar alpha) { return shades[alpha]; });
    }
    return image;
}

// QML hands on an Image's unset sourceSize as (-1, -1) times the pixel ratio, rounded, and divides what it gets by that
// ratio. So the icon must grow with it; the application's own ratio is the better source while it agrees.
QSize given(const QSize &requested)
{
    const int edge = requested.width();
    if (requested.isNull())
        return {KSvgImageProvider::defaultEdge, KSvgImageProvider::defaultEdge};
    if (edge >= 0 || edge != requested.height())
        return requested;
    const qreal usual = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    const qreal ratio = qRound(-usual) == edge ? usual : -edge;
    const int scaled = qRound(KSvgImageProvider::defaultEdge * ratio);
    return {scaled, scaled};
}

QString text(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

KSvgImageProvider::KSvgImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QString KSvgImageProvider::providerId()
{
    return QStringLiteral("svg");
}

QImage KSvgImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QImage image = draw(id, requestedSize);
    if (size)
        *size = image.size();
    return image;
}

void KSvgImageProvider::warnOnce(const QString &message)
{
    {
        const QMutexLocker lock(&m_mutex);
        if (m_reported.contains(message))
            return;
        m_reported.insert(message);
    }
    qWarning().noquote() << message;
}

QImage KSvgImageProvider::draw(const QString &id, const QSize &requestedSize)
{
    const QString url = QStringLiteral("\"image://svg/%1\"").arg(id);
    const QSize asked = given(requestedSize);
    if (asked.width() < 0 || asked.height() < 0) {
        warnOnce(QStringLiteral("KSvgImageProvider: negative size %1 for %2").arg(text(asked), url));
        return nothing({});
    }
    const QSize size = asked.boundedTo({KIcons::maximumEdge, KIcons::maximumEdge});
    if (size != asked) {
        warnOnce(QStringLiteral("KSvgImageProvider: size %1 for %2 is too large, %3 is drawn")
                     .arg(text(asked), url, text(size)));
    }

    const qsizetype slash = id.indexOf(QLatin1Char('/'));
    const QString colorText = id.left(slash);
    const QString name = slash < 0 ? QString() : id.sliced(slash + 1);
    const QColor color = QColor::fromString(colorText);
    if (!color.isValid()) {
        warnOnce(QStringLiteral("KSvgImageProvider: bad colour \"%1\" in %2").arg(colorText, url));
        return nothing(size);
    }
    if (name.isEmpty()) {
        warnOnce(QStringLiteral("KSvgImageProvider: no icon name in %1").arg(url));
        return nothing(size);
    }

    const QImage mask = KIcons::shape(name, size);
    if (!mask.isNull())
        return colored(mask, color);

    const QString file = KIcons::find(name);
    warnOnce(file.isEmpty() ? QStringLiteral("KSvgImageProvider: unknown icon \"%1\"").arg(name)
                            : QStringLiteral("KSvgImageProvider: icon \"%1\" is no readable SVG: %2").arg(name, file));
    const QImage missing = showsMissing ? KIcons::shape(QStringLiteral("icon-missing"), size) : QImage();
    return missing.isNull() ? nothing(size) : colored(missing, QColor::fromRgb(missingColor));
}
