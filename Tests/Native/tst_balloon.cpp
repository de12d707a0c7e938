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

class TestBalloon : public SceneTest
{
    Q_OBJECT

private Q_SLOTS:
    void outline_data()
    {
        using S = KBalloonShape;
        const Table<KBalloonShape, QRectF, QPointF> row{"shape", "body", "tip"};
        const QRectF whole(5, 7, 200, 80), lower(5, 17, 200, 70), upper(5, 7, 200, 70);
        const QRectF right(15, 7, 190, 80), left(5, 7, 190, 80);
        row("none", shapeOf(S::None, S::CenterAlignment), whole, {105, 47});
        row("no such side", shapeOf(9, S::CenterAlignment), whole, {105, 47});
        row("top", shapeOf(S::Top, S::CenterAlignment), lower, {105, 7});
        // At an end, the arrow begins where the round corner ends.
        row("top left", shapeOf(S::Top, S::LeftAlignment), lower, {23, 7});
        row("bottom right", shapeOf(S::Bottom, S::RightAlignment), upper, {187, 87});
        row("left top", shapeOf(S::Left, S::TopAlignment), right, {5, 25});
        row("right centre", shapeOf(S::Right, S::CenterAlignment), left, {205, 47});
        row("right bottom", shapeOf(S::Right, S::BottomAlignment), left, {205, 69});
        row("top bottom", shapeOf(S::Top, S::BottomAlignment), lower, {105, 7});
        row("left left", shapeOf(S::Left, S::LeftAlignment), right, {5, 47});
        row("unknown", shapeOf(S::Left, 77), right, {5, 47});
        row("offset right", shapeOf(S::Top, S::CenterAlignment, 25), lower, {130, 7});
        row("offset up", shapeOf(S::Left, S::CenterAlignment, -11), right, {5, 36});
        row("kept off the right corner", shapeOf(S::Top, S::CenterAlignment, 500), lower, {187, 7});
        row("kept off the left corner", shapeOf(S::Bottom, S::LeftAlignment, -3), upper, {23, 87});
    }

    void outline()
    {
        QFETCH(KBalloonShape, shape);
        QFETCH(QRectF, body);
        QFETCH(QPointF, tip);
        const QRectF bounds(QPointF(5, 7), itemSize);
        const QPointF root(qBound(body.left(), tip.x(), body.right()), qBound(body.top(), tip.y(), body.bottom()));
        const QPointF length = tip - root; // zero without an arrow, whose root is twice as wide as it is long
        const QPointF halfWidth(length.y(), length.x());
        QPainterPath expected;
        expected.setFillRule(Qt::WindingFill);
        expected.addRoundedRect(body, radius, radius);
        expected.addPolygon(QPolygonF({tip, root - halfWidth, root + halfWidth}));

        QCOMPARE(shape.body(bounds), body);
        QCOMPARE(shape.arrowPosition(bounds), length.x() == 0 ? tip.x() - bounds.x() : tip.y() - bounds.y());
        const QPainterPath path = shape.outline(bounds);
        QVERIFY(bounds.contains(path.boundingRect()));
        for (qreal x = bounds.left() + 0.25; x < bounds.right(); ++x) {
            for (qreal y = bounds.top() + 0.5; y < bounds.bottom(); ++y) {
                const bool isInTip = !length.isNull() && QLineF({x, y}, tip).length() < 2; // which is round
                QVERIFY2(isInTip || path.contains({x, y}) == expected.contains({x, y}),
                         qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            }
        }
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
        QCOMPARE(shapeOf(KBalloonShape::Top, KBalloonShape::LeftAlignment, 9).arrowPosition({0, 0, 30, 80}), 15.0);
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
        m_engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
        open(R"(import QtQuick
        import UiElements 1.0
        Window {
            width: 200; height: 80
            color: "gray"
            KBalloon {
                objectName: "balloon"
                anchors.fill: parent
                arrowAnchor: KBalloon.Right; arrowAlignment: KBalloon.BottomAlignment
                backgroundColor: "lime"; borderColor: "red"
            }
        })");
        const auto at = [this](int x, int y) {
            const QImage image = m_window->grabWindow();
            return image.pixelColor(QPoint(x, y) * image.devicePixelRatio());
        };
        QCOMPARE(at(0, 40), QColor(Qt::red));
        QCOMPARE(at(100, 40), QColor(Qt::green));
        QCOMPARE(at(195, 62), QColor(Qt::green)); // in the arrow
        QCOMPARE(at(195, 20), QColor(0x80, 0x80, 0x80));
        item("balloon")->setProperty("arrowAlignment", KBalloon::TopAlignment);
        QCOMPARE(at(195, 18), QColor(Qt::green));
        QCOMPARE(at(195, 62), QColor(0x80, 0x80, 0x80));
    }
};

QTEST_MAIN(TestBalloon)
#include "tst_balloon.moc"
