#include "KBalloon.h"
#include "KBalloonShape.h"

#include <QImage>
#include <QLineF>
#include <QMetaProperty>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <memory>

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

class TestBalloon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void outline_data();
    void outline();
    void arrowPosition_data();
    void arrowPosition();
    void oddGeometry_data();
    void oddGeometry();
    void hairline_data();
    void hairline();
    void withoutBorder();
    void properties();
    void inWindow();
};

void TestBalloon::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void TestBalloon::outline_data()
{
    QTest::addColumn<int>("anchor");
    QTest::addColumn<QRectF>("body");
    QTest::addColumn<QPointF>("tip"); // just inside the arrow's end
    QTest::newRow("none") << int(KBalloonShape::None) << QRectF(5, 7, 200, 80) << QPointF(105, 47);
    QTest::newRow("top") << int(KBalloonShape::Top) << QRectF(5, 17, 200, 70) << QPointF(105, 9);
    QTest::newRow("bottom") << int(KBalloonShape::Bottom) << QRectF(5, 7, 200, 70) << QPointF(105, 85);
    QTest::newRow("left") << int(KBalloonShape::Left) << QRectF(15, 7, 190, 80) << QPointF(7, 47);
    QTest::newRow("right") << int(KBalloonShape::Right) << QRectF(5, 7, 190, 80) << QPointF(203, 47);
    QTest::newRow("no such side") << 9 << QRectF(5, 7, 200, 80) << QPointF(105, 47);
}

void TestBalloon::outline()
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

void TestBalloon::arrowPosition_data()
{
    QTest::addColumn<KBalloonShape>("shape");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("position");
    using S = KBalloonShape;
    // At an end, the arrow begins where the round corner ends.
    QTest::newRow("top left") << shapeOf(S::Top, S::LeftAlignment) << itemSize << 18.0;
    QTest::newRow("top centre") << shapeOf(S::Top, S::CenterAlignment) << itemSize << 100.0;
    QTest::newRow("bottom right") << shapeOf(S::Bottom, S::RightAlignment) << itemSize << 182.0;
    QTest::newRow("left top") << shapeOf(S::Left, S::TopAlignment) << itemSize << 18.0;
    QTest::newRow("right centre") << shapeOf(S::Right, S::CenterAlignment) << itemSize << 40.0;
    QTest::newRow("right bottom") << shapeOf(S::Right, S::BottomAlignment) << itemSize << 62.0;
    QTest::newRow("top bottom") << shapeOf(S::Top, S::BottomAlignment) << itemSize << 100.0;
    QTest::newRow("left left") << shapeOf(S::Left, S::LeftAlignment) << itemSize << 40.0;
    QTest::newRow("unknown") << shapeOf(S::Left, 77) << itemSize << 40.0;
    QTest::newRow("offset right") << shapeOf(S::Top, S::CenterAlignment, 25) << itemSize << 125.0;
    QTest::newRow("offset up") << shapeOf(S::Left, S::CenterAlignment, -11) << itemSize << 29.0;
    QTest::newRow("kept off the right corner") << shapeOf(S::Top, S::CenterAlignment, 500) << itemSize << 182.0;
    QTest::newRow("kept off the left corner") << shapeOf(S::Bottom, S::LeftAlignment, -3) << itemSize << 18.0;
    QTest::newRow("side too short") << shapeOf(S::Top, S::LeftAlignment, 9) << QSize(30, 80) << 15.0;
}

void TestBalloon::arrowPosition()
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

void TestBalloon::oddGeometry_data()
{
    QTest::addColumn<QRectF>("bounds");
    QTest::addColumn<qreal>("arrowSize");
    QTest::addColumn<qreal>("cornerRadius");
    const QRectF usual({0, 0}, itemSize);
    QTest::newRow("no arrow") << usual << 0.0 << 8.0;
    QTest::newRow("negative arrow") << usual << -4.0 << 8.0;
    QTest::newRow("arrow longer than the item") << usual << 1000.0 << 8.0;
    QTest::newRow("square corners") << usual << 10.0 << 0.0;
    QTest::newRow("negative radius") << usual << 10.0 << -8.0;
    QTest::newRow("radius larger than the item") << usual << 10.0 << 1000.0;
    QTest::newRow("one pixel") << QRectF(0, 0, 1, 1) << 10.0 << 8.0;
    QTest::newRow("empty") << QRectF() << 10.0 << 8.0;
    QTest::newRow("negative") << QRectF(0, 0, -20, -20) << 10.0 << 8.0;
}

void TestBalloon::oddGeometry()
{
    QFETCH(QRectF, bounds);
    QFETCH(qreal, arrowSize);
    QFETCH(qreal, cornerRadius);
    for (int anchor = KBalloonShape::None; anchor <= KBalloonShape::Right; ++anchor) {
        KBalloonShape shape = shapeOf(anchor, KBalloonShape::LeftAlignment, 7);
        shape.arrowSize = arrowSize;
        shape.radius = cornerRadius;
        const QPainterPath path = shape.outline(bounds);
        QCOMPARE(path.isEmpty(), bounds.isEmpty());
        const qreal hair = 1e-6;
        QVERIFY(bounds.isEmpty() || bounds.adjusted(-hair, -hair, hair, hair).contains(path.boundingRect()));
        QVERIFY(qIsFinite(shape.arrowPosition(bounds)));
    }
}

void TestBalloon::hairline_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<int>("line"); // in device pixels
    QTest::newRow("1") << 1.0 << 1;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("2") << 2.0 << 2;
    QTest::newRow("3") << 3.0 << 3;
}

void TestBalloon::hairline()
{
    QFETCH(qreal, ratio);
    QFETCH(int, line);
    for (int anchor = KBalloon::None; anchor <= KBalloon::Right; ++anchor) {
        KBalloon balloon;
        setUp(balloon);
        balloon.setArrowAnchor(anchor);
        const QImage image = painted(balloon, ratio);
        const QRectF body = shapeOf(anchor, KBalloon::CenterAlignment).body(QRectF({0, 0}, itemSize));
        const QRect edge = QRectF(body.topLeft() * ratio, body.size() * ratio).toRect();

        // Away from arrow and corners, each side is exactly the line and then the ground, without a blend.
        const int x = edge.left() + edge.width() / 4;
        const int y = edge.top() + edge.height() / 4;
        for (int depth = 0; depth < line; ++depth) {
            QCOMPARE(image.pixelColor(x, edge.top() + depth), border);
            QCOMPARE(image.pixelColor(x, edge.bottom() - depth), border);
            QCOMPARE(image.pixelColor(edge.left() + depth, y), border);
            QCOMPARE(image.pixelColor(edge.right() - depth, y), border);
        }
        QCOMPARE(image.pixelColor(x, edge.top() + line), background);
        QCOMPARE(image.pixelColor(x, edge.bottom() - line), background);
        QCOMPARE(image.pixelColor(edge.left() + line, y), background);
        QCOMPARE(image.pixelColor(edge.right() - line, y), background);
        QCOMPARE(image.pixelColor(edge.topLeft()).alpha(), 0);
        QCOMPARE(image.pixelColor(edge.bottomRight()).alpha(), 0);
    }
}

void TestBalloon::withoutBorder()
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

void TestBalloon::properties()
{
    KBalloon balloon;
    const std::pair<const char *, QVariant> values[] = {
        {"arrowAnchor", int(KBalloon::Left)},
        {"arrowAlignment", int(KBalloon::TopAlignment)},
        {"arrowOffset", 4.0},
        {"arrowSize", 16.0},
        {"radius", 10.0},
        {"backgroundColor", QColor(Qt::red)},
        {"borderColor", QColor(Qt::blue)},
        {"borderWidth", 2.0},
    };
    for (const auto &[name, value] : values) {
        const QMetaProperty property = balloon.metaObject()->property(balloon.metaObject()->indexOfProperty(name));
        QSignalSpy spy(&balloon, property.notifySignal());
        QVERIFY2(property.read(&balloon) != value, name);
        QVERIFY(property.write(&balloon, value));
        QCOMPARE(property.read(&balloon), value);
        QCOMPARE(spy.count(), 1);
        QVERIFY(property.write(&balloon, value));
        QCOMPARE(spy.count(), 1);
    }
}

void TestBalloon::inWindow()
{
    QQuickView view;
    view.engine()->addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
    QQmlComponent component(view.engine());
    component.setData(R"(import QtQuick
        import UiElements 1.0
        Rectangle {
            width: 200; height: 80
            color: "#808080"
            KBalloon {
                anchors.fill: parent
                arrowAnchor: KBalloon.Right; arrowAlignment: KBalloon.BottomAlignment
                backgroundColor: "#00ff00"; borderColor: "#ff0000"
            }
        })",
                      QUrl());
    auto *root = qobject_cast<QQuickItem *>(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    view.setContent(QUrl(), &component, root);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    auto *balloon = qobject_cast<KBalloon *>(root->childItems().constFirst());
    QVERIFY(balloon);
    const auto at = [&](int x, int y) {
        const qreal ratio = view.effectiveDevicePixelRatio();
        return view.grabWindow().pixelColor(qRound(x * ratio), qRound(y * ratio));
    };
    QCOMPARE(at(0, 40), QColor(Qt::red));
    QCOMPARE(at(100, 40), QColor(Qt::green));
    QCOMPARE(at(195, 62), QColor(Qt::green)); // in the arrow
    QCOMPARE(at(195, 20), QColor(0x80, 0x80, 0x80));
    balloon->setArrowAlignment(KBalloon::TopAlignment);
    QCOMPARE(at(195, 18), QColor(Qt::green));
    QCOMPARE(at(195, 62), QColor(0x80, 0x80, 0x80));
}

QTEST_MAIN(TestBalloon)
#include "tst_balloon.moc"
