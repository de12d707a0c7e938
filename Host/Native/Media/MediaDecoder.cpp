#include "MediaDecoder.h"

#include <QBuffer>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

bool isDrawing(const QImageReader &reader)
{
    return reader.format().startsWith("svg");
}

QSize limited(const QSize &size, const QSize &requested, bool mayGrow)
{
    if (size.isEmpty() || (requested.width() <= 0 && requested.height() <= 0))
        return size;
    const qreal none = std::numeric_limits<qreal>::infinity();
    const qreal across = requested.width() > 0 ? qreal(requested.width()) / size.width() : none;
    const qreal down = requested.height() > 0 ? qreal(requested.height()) / size.height() : none;
    const qreal scale = qMin(across, down);
    return scale < 1 || mayGrow ? (QSizeF(size) * scale).toSize().expandedTo({1, 1}) : size;
}

} // namespace

QString MediaDecoder::fault(const QByteArray &data, bool local)
{
    QBuffer buffer(const_cast<QByteArray *>(&data));
    QImageReader reader(&buffer);
    if (!reader.canRead())
        return u"it is no picture"_s;
    if (isDrawing(reader) && !local)
        return u"it is a drawing, which is not taken from the network"_s;
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > maximumPixels)
        return u"it is %1 x %2 pixels large"_s.arg(size.width()).arg(size.height());
    return {};
}

QImage MediaDecoder::picture(const QByteArray &data, const QSize &requested)
{
    QBuffer buffer(const_cast<QByteArray *>(&data));
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize limit =
        reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? requested.transposed() : requested;
    const QSize size = reader.size();
    const QSize wanted = limited(size, limit, isDrawing(reader));
    if (wanted != size && qint64(wanted.width()) * wanted.height() <= maximumPixels)
        reader.setScaledSize(wanted);
    return reader.read();
}
