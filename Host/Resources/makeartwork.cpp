// Draws the artwork that is no SVG while building: the animated spinners, and a PNG of a drawing.
//   makeartwork spinner EDGE COLOUR MATTE FILE.gif
//   makeartwork png DRAWING.svg FILE.png

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <map>
#include <utility>

namespace {

constexpr int frameCount = 30;
constexpr int frameDelay = 3; // hundredths of a second
constexpr int shadeBits = 5;
constexpr int shadeCount = 1 << shadeBits; // shade 0 is transparent
constexpr int noLoopLimit = 0;

// The ring of one frame in black, its tail fading out.
QImage ring(int edge, qreal turn)
{
    QImage image(edge, edge, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const qreal width = edge / 9.0;
    const QRectF box = QRectF(image.rect()).adjusted(width, width, -width, -width);
    const qreal head = -360.0 * turn;

    QConicalGradient fade(box.center(), head);
    fade.setColorAt(0.0, Qt::black);
    fade.setColorAt(0.75, QColor(0, 0, 0, 12));
    fade.setColorAt(0.9, Qt::transparent);
    fade.setColorAt(0.93, Qt::transparent);
    fade.setColorAt(0.94, Qt::black); // the round cap reaches back over the head
    fade.setColorAt(1.0, Qt::black);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(fade, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(box, qRound(head * 16), 290 * 16);
    return image;
}

void appendNumber(QByteArray &out, int value)
{
    out.append(char(value & 0xff)).append(char(value >> 8 & 0xff));
}

// The picture's shades in GIF's LZW: codes of growing width, packed lowest bit first, in blocks of at most 255 bytes.
void appendPixels(QByteArray &out, const QByteArray &shades)
{
    constexpr int clearCode = 1 << shadeBits;
    constexpr int endCode = clearCode + 1;
    constexpr int lastCode = 4095;

    QByteArray packed;
    quint32 pending = 0;
    int pendingBits = 0;
    int width = shadeBits + 1;
    const auto put = [&](int code) {
        pending |= quint32(code) << pendingBits;
        for (pendingBits += width; pendingBits >= 8; pendingBits -= 8, pending >>= 8)
            packed.append(char(pending & 0xff));
    };

    std::map<std::pair<int, char>, int> known;
    int nextCode = endCode + 1;
    put(clearCode);
    int prefix = uchar(shades.front());
    for (const char shade : shades.sliced(1)) {
        const auto found = known.find({prefix, shade});
        if (found != known.end()) {
            prefix = found->second;
            continue;
        }
        put(prefix);
        if (nextCode > lastCode) {
            put(clearCode);
            known.clear();
            nextCode = endCode + 1;
            width = shadeBits + 1;
        } else {
            if (nextCode == 1 << width)
                ++width;
            known[{prefix, shade}] = nextCode++;
        }
        prefix = uchar(shade);
    }
    put(prefix);
    put(endCode);
    if (pendingBits > 0)
        packed.append(char(pending & 0xff));

    out.append(char(shadeBits));
    for (qsizetype at = 0; at < packed.size(); at += 255) {
        const QByteArray block = packed.mid(at, 255);
        out.append(char(block.size())).append(block);
    }
    out.append('\0');
}

// GIF knows no half-transparent pixel, so the shades lead from the colour that is expected behind it to the ring's own.
QByteArray spinner(int edge, const QColor &color, const QColor &matte)
{
    QByteArray out("GIF89a");
    appendNumber(out, edge);
    appendNumber(out, edge);
    out.append(char(0xf0 | (shadeBits - 1))).append('\0').append('\0');
    for (int shade = 0; shade < shadeCount; ++shade) {
        const auto mix = [shade](int from, int to) { return char(from + (to - from) * shade / (shadeCount - 1)); };
        out.append(mix(matte.red(), color.red()));
        out.append(mix(matte.green(), color.green()));
        out.append(mix(matte.blue(), color.blue()));
    }
    out.append("\x21\xff\x0bNETSCAPE2.0\x03\x01");
    appendNumber(out, noLoopLimit);
    out.append('\0');

    for (int frame = 0; frame < frameCount; ++frame) {
        const QImage image = ring(edge, qreal(frame) / frameCount);
        QByteArray shades;
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x)
                shades.append(char(qAlpha(image.pixel(x, y)) * (shadeCount - 1) / 255));
        }
        out.append("\x21\xf9\x04");
        out.append(char(0x09)); // restore the background, shade 0 is transparent
        appendNumber(out, frameDelay);
        out.append('\0').append('\0').append(',');
        appendNumber(out, 0);
        appendNumber(out, 0);
        appendNumber(out, edge);
        appendNumber(out, edge);
        out.append('\0');
        appendPixels(out, shades);
    }
    return out.append(';');
}

bool writePng(const QString &drawing, const QString &file)
{
    QSvgRenderer renderer(drawing);
    if (!renderer.isValid())
        return false;
    QImage image(renderer.defaultSize() * 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return image.save(file);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto argument = [argv](int at) { return QString::fromLocal8Bit(argv[at]); };
    if (argc == 6 && argument(1) == QLatin1String("spinner")) {
        QFile file(argument(5));
        const QByteArray gif = spinner(argument(2).toInt(), QColor(argument(3)), QColor(argument(4)));
        if (file.open(QIODevice::WriteOnly) && file.write(gif) == gif.size())
            return 0;
    } else if (argc == 4 && argument(1) == QLatin1String("png")) {
        if (writePng(argument(2), argument(3)))
            return 0;
    }
    std::fprintf(stderr, "makeartwork: could not write %s\n",
                 argc > 1 ? argv[argc - 1] : "anything: arguments missing");
    return 1;
}
