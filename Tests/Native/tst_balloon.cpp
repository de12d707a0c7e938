#include "KBalloon.h"
#include "KBalloonShape.h"
#include "NativeTest.h"

#include <QImage>
#include <QLineF>
#include <QMetaProperty>
#include <QPainter>
#include <QSignalSpy>

namespace {

constexpr int arrow = 10;
constexpr int radius = 8;
const QSize itemSize(200, 80);
const QColor background(0xff, 0xee, 0xcc);
const QColor border(0x22, 0x44, 0x88);

KBalloonShape shapeOf(int anchor, int alignment, qreal offset = 0)
{
    KBalloonShape shape;
    shape.anchor = anchor;
    shape.alignment = alignment;
    shape.arrowOffset = offset;
    shape.arrowSize = arrow;
    shape.radius = radius;
    return shape;
}

void setUp(KBalloon &balloon)
{
    balloon.setSize(itemSize);
    balloon.setBackgroundColor(background);
    balloon.setBorderColor(border);
}

QImage painted(KBalloon &balloon, qreal ratio)
{
    QImage image(balloon.size().toSize() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    balloon.paint(&painter);
    return image;
}

} // namespace

class TestBalloon : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void outline_data()
    {
        const Table<int, QRectF, QPointF> row{"anchor", "body", "tip"}; // the tip is just inside the arrow's end
        row("none", KBalloonShape::None, {5, 7, 200, 80}, {105, 47});
        row("top", KBalloonShape::Top, {5, 17, 200, 70}, {105, 9});
        row("bottom", KBalloonShape::Bottom, {5, 7, 200, 70}, {105, 85});
        row("left", KBalloonShape::Left, {15, 7, 190, 80}, {7, 47});
        row("right", KBalloonShape::Right, {5, 7, 190, 80}, {203, 47});
        row("no such side", 9, {5, 7, 200, 80}, {105, 47});
    }

    void outline()
    {
        QFETCH(int, anchor);
        QFETCH(QRectF, body);
        QFETCH(QPointF, tip);
        const QRectF bounds(QPointF(5, 7), itemSize);
        const KBalloonShape shape = shapeOf(anchor, KBalloonShape::CenterAlignment);
        const QPainterPath path = shape.outline(bounds);

        QCOMPARE(shape.body(bounds), body);
        QVERIFY(bounds.contains(path.boundingRect()));
        QVERIFY(path.contains(tip));
        const QRectF inner = body.adjusted(1, 1, -1, -1);
        for (const QPointF &corner : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()})
            QVERIFY(!path.contains(corner)); // round
        for (const QPointF &middle :
             {QPointF(inner.center().x() - 40, inner.top()), QPointF(inner.right(), body.center().y()),
              QPointF(inner.left(), body.center().y()), QPointF(body.center().x(), inner.bottom())})
            QVERIFY(path.contains(middle));

        if (anchor <= KBalloonShape::None || anchor > KBalloonShape::Right)
            return;
        // Just off the rectangle the arrow is nearly twice as wide as it is long, to both sides alike.
        const bool sideways = anchor == KBalloonShape::Left || anchor == KBalloonShape::Right;
        const QPointF along = sideways ? QPointF(0, 1) : QPointF(1, 0);
        const QPointF outwards = (tip - body.center()) / QLineF(tip, body.center()).length();
        const qreal halfDepth = (sideways ? body.width() : body.height()) / 2;
        const QPointF root = body.center() + outwards * (halfDepth + 1);
        for (const int side : {-1, 1}) {
            QVERIFY(path.contains(root + along * side * (arrow - 2)));
            QVERIFY(!path.contains(root + along * side * arrow));
        }
    }

    void arrowPosition_data()
    {
        using S = KBalloonShape;
        const Table<KBalloonShape, QSize, qreal> row{"shape", "size", "position"};
        // At an end, the arrow begins where the round corner ends.
        row("top left", shapeOf(S::Top, S::LeftAlignment), itemSize, 18);
        row("bottom right", shapeOf(S::Bottom, S::RightAlignment), itemSize, 182);
        row("left top", shapeOf(S::Left, S::TopAlignment), itemSize, 18);
        row("right centre", shapeOf(S::Right, S::CenterAlignment), itemSize, 40);
        row("right bottom", shapeOf(S::Right, S::BottomAlignment), itemSize, 62);
        row("top bottom", shapeOf(S::Top, S::BottomAlignment), itemSize, 100);
        row("left left", shapeOf(S::Left, S::LeftAlignment), itemSize, 40);
        row("unknown", shapeOf(S::Left, 77), itemSize, 40);
        row("offset right", shapeOf(S::Top, S::CenterAlignment, 25), itemSize, 125);
        row("offset up", shapeOf(S::Left, S::CenterAlignment, -11), itemSize, 29);
        row("kept off the right corner", shapeOf(S::Top, S::CenterAlignment, 500), itemSize, 182);
        row("kept off the left corner", shapeOf(S::Bottom, S::LeftAlignment, -3), itemSize, 18);
        row("side too short", shapeOf(S::Top, S::LeftAlignment, 9), {30, 80}, 15);
    }

    void arrowPosition()
    {
        QFETCH(KBalloonShape, shape);
        QFETCH(QSize, size);
        QFETCH(qreal, position);
        const QRectF bounds({0, 0}, size);
        QCOMPARE(shape.arrowPosition(bounds), position);
        const bool sideways = shape.anchor == KBalloonShape::Left || shape.anchor == KBalloonShape::Right;
        const qreal depth = shape.anchor == KBalloonShape::Top || shape.anchor == KBalloonShape::Left
            ? 2
            : (sideways ? size.width() : size.height()) - 2;
        QVERIFY(shape.outline(bounds).contains(sideways ? QPointF(depth, position) : QPointF(position, depth)));
    }

    void oddGeometry_data()
    {
        const Table<QRectF, qreal, qreal> row{"bounds", "arrowSize", "cornerRadius"};
        const QRectF usual({0, 0}, itemSize);
        row("no arrow", usual, 0, 8);
        row("negative arrow", usual, -4, 8);
        row("arrow longer than the item", usual, 1000, 8);
        row("square corners", usual, 10, 0);
        row("negative radius", usual, 10, -8);
        row("radius larger than the item", usual, 10, 1000);
        row("one pixel", {0, 0, 1, 1}, 10, 8);
        row("empty", {}, 10, 8);
        row("negative", {0, 0, -20, -20}, 10, 8);
    }

    void oddGeometry()
    {
        QFETCH(QRectF, bounds);
        QFETCH(qreal, arrowSize);
        QFETCH(qreal, cornerRadius);
        for (int anchor = KBalloonShape::None; anchor <= KBalloonShape::Right; ++anchor) {
            KBalloonShape shape = shapeOf(anchor, KBalloonShape::LeftAlignment, 7);
            shape.arrowSize = arrowSize;
            shape.radius = cornerRadius;
            const QPainterPath path = shape.outline(bounds);
            const qreal hair = 1e-6;
            QCOMPARE(path.isEmpty(), bounds.isEmpty());
            QVERIFY(bounds.isEmpty() || bounds.adjusted(-hair, -hair, hair, hair).contains(path.boundingRect()));
            QVERIFY(qIsFinite(shape.arrowPosition(bounds)));
        }
    }

    // Away from arrow and corners, each side is exactly the line and then the ground, without a blend.
    void hairline()
    {
        const std::pair<qreal, int> lines[] = {{1, 1}, {1.5, 2}, {2, 2}, {3, 3}}; // in device pixels
        for (const auto &[ratio, line] : lines) {
            for (int anchor = KBalloon::None; anchor <= KBalloon::Right; ++anchor) {
                KBalloon balloon;
                setUp(balloon);
                balloon.setArrowAnchor(anchor);
                const QImage image = painted(balloon, ratio);
                const QByteArray where = "side " + QByteArray::number(anchor) + " at " + QByteArray::number(ratio);
                const QRectF body = shapeOf(anchor, KBalloon::CenterAlignment).body(QRectF({0, 0}, itemSize));
                const QRect edge = QRectF(body.topLeft() * ratio, body.size() * ratio).toRect();
                const int x = edge.left() + edge.width() / 4;
                const int y = edge.top() + edge.height() / 4;
                for (int depth = 0; depth <= line; ++depth) {
                    for (const QPoint &at : {QPoint(x, edge.top() + depth), QPoint(x, edge.bottom() - depth),
                                             QPoint(edge.left() + depth, y), QPoint(edge.right() - depth, y)})
                        QVERIFY2(image.pixelColor(at) == (depth < line ? border : background), where);
                }
                for (const QPoint &corner : {edge.topLeft(), edge.bottomRight()})
                    QVERIFY2(image.pixelColor(corner).alpha() == 0, where);
            }
        }
    }

    void withoutBorder()
    {
        KBalloon balloon;
        setUp(balloon);
        balloon.setArrowAnchor(KBalloon::Top);
        for (const bool transparent : {true, false}) {
            balloon.setBorderColor(transparent ? QColor(Qt::transparent) : border);
            balloon.setBorderWidth(transparent ? 1 : 0);
            const QImage image = painted(balloon, 1);
            QCOMPARE(image.pixelColor(50, arrow), background); // the ground reaches the edge
            QCOMPARE(image.pixelColor(0, 40), background);
            QCOMPARE(image.pixelColor(100, 5), background);
            QCOMPARE(image.pixelColor(50, arrow - 1).alpha(), 0);
        }
    }

    void properties()
    {
        KBalloon balloon;
        const std::pair<const char *, QVariant> values[] = {{"arrowAnchor", int(KBalloon::Left)},
                                                            {"arrowAlignment", int(KBalloon::TopAlignment)},
                                                            {"arrowOffset", 4.0},
                                                            {"arrowSize", 16.0},
                                                            {"radius", 10.0},
                                                            {"backgroundColor", QColor(Qt::red)},
                                                            {"borderColor", QColor(Qt::blue)},
                                                            {"borderWidth", 2.0}};
        for (const auto &[name, value] : values) {
            const QMetaProperty property = balloon.metaObject()->property(balloon.metaObject()->indexOfProperty(name));
            QSignalSpy spy(&balloon, property.notifySignal());
            QVERIFY2(property.read(&balloon) != value, name);
            QVERIFY(property.write(&balloon, value) && property.write(&balloon, value));
            QCOMPARE(property.read(&balloon), value);
            QCOMPARE(spy.count(), 1);
        }
    }

    void inWindow()
    {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
        const auto window = create<QQuickWindow>(engine, R"(import QtQuick
        import UiElements 1.0
        Window {
            width: 200; height: 80
            color: "gray"
            KBalloon {
                anchors.fill: parent
                arrowAnchor: KBalloon.Right; arrowAlignment: KBalloon.BottomAlignment
                backgroundColor: "lime"; borderColor: "red"
            }
        })");
        QVERIFY(activate(*window));
        auto *balloon = qobject_cast<KBalloon *>(window->contentItem()->childItems().constFirst());
        const auto at = [&](int x, int y) {
            const qreal ratio = window->effectiveDevicePixelRatio();
            return window->grabWindow().pixelColor(qRound(x * ratio), qRound(y * ratio));
        };
        QCOMPARE(at(0, 40), QColor(Qt::red));
        QCOMPARE(at(100, 40), QColor(Qt::green));
        QCOMPARE(at(195, 62), QColor(Qt::green)); // in the arrow
        QCOMPARE(at(195, 20), QColor(0x80, 0x80, 0x80));
        balloon->setArrowAlignment(KBalloon::TopAlignment);
        QCOMPARE(at(195, 18), QColor(Qt::green));
        QCOMPARE(at(195, 62), QColor(0x80, 0x80, 0x80));
    }
};

QTEST_MAIN(TestBalloon)
#include "tst_balloon.moc"
