#include "PopOverPlacement.h"
#include "UTPopOverData.h"

#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace PopOverPlacement;
using namespace UTPopOverEnum;

namespace {

const QRect desk(0, 0, 1920, 1080);

// The rules once more, in another form: numbers only, and a table of what each side does with an overflow.
namespace Again {

struct Balloon
{
    long long x, y, width, height;
};

struct State
{
    int anchor;
    long long offset;
};

long long half(long long length)
{
    return length / 2;
}

long long along(const Request &r, long long begin, long long length, long long own, int first, int last)
{
    const long long center = begin + length - 1 - r.arrowOffset - half(length);
    const long long tip = r.arrowSize + r.radius;
    return r.alignment == first ? center - tip : r.alignment == last ? center - own + tip : center - half(own);
}

Balloon wanted(const Request &r, int anchor)
{
    const QRect &t = r.target;
    const long long w = r.size.width(), h = r.size.height();
    const long long columns[] = {along(r, t.x(), t.width(), w, 0, 2), along(r, t.x(), t.width(), w, 0, 2),
                                 along(r, t.x(), t.width(), w, 0, 2), t.x() + t.width() + 1LL, t.x() - w - 2};
    const long long rows[] = {t.y(), t.y() + t.height() + 1LL, t.y() - h - 2, along(r, t.y(), t.height(), h, 3, 4),
                              along(r, t.y(), t.height(), h, 3, 4)};
    return {columns[anchor], rows[anchor], w, h};
}

QPoint pass(const Request &r, const QRect &s, State &state, int number)
{
    const Balloon b = wanted(r, state.anchor);
    Balloon moved = b;
    const long long right = s.x() + s.width() - 1, bottom = s.y() + s.height() - 1;
    if (s.isNull() || s.width() < b.width || s.height() < b.height)
        return QPoint(int(b.x), int(b.y));
    bool again = false;

    const int beforeX = b.x < s.x() ? -1 : b.x + b.width - 1 > right ? 1 : 0;
    const bool lengthwise = state.anchor == Top || state.anchor == Bottom;
    if (beforeX && lengthwise) {
        moved.x = beforeX < 0 ? s.x() + 5 : right - b.width - 5;
        state.offset = r.arrowOffset + b.x - moved.x;
    } else if (beforeX && state.anchor == (beforeX < 0 ? Right : Left)) {
        state.anchor = Left + Right - state.anchor;
        const Balloon other = wanted(r, state.anchor);
        if (beforeX < 0 ? other.x + other.width > right : other.x < s.x())
            state.anchor = Bottom;
        again = true;
    }

    const int beforeY = b.y < s.y() ? -1 : b.y + b.height - 1 > bottom ? 1 : 0;
    if (beforeY && (state.anchor == Left || state.anchor == Right)) {
        moved.y = beforeY < 0 ? s.y() + 5 : bottom - b.height - 5;
        state.offset = r.arrowOffset + b.y - moved.y;
    } else if (beforeY && state.anchor == (beforeY < 0 ? Bottom : Top)) {
        state.anchor = Top + Bottom - state.anchor;
        const Balloon other = wanted(r, state.anchor);
        if (beforeY < 0 ? other.y + other.height > bottom : other.y < s.y())
            state.anchor = Right;
        again = true;
    }
    return again && number == 1 ? pass(r, s, state, 2) : QPoint(int(moved.x), int(moved.y));
}

} // namespace Again

} // namespace

class tst_PopOverData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void geometries_data();
    void geometries();
    void randomGeometries();
    void screenChoice();
    void sizeClasses();
    void whatPlacesAnew();
    void offsets();
    void turnsWithItsArrow();
    void badInput();
};

void tst_PopOverData::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_PopOverData::geometries_data()
{
    QTest::addColumn<Request>("request");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("offset");

    const auto row = [](const char *name, const Request &request, const QRect &screen, QPoint position, int anchor,
                        int offset = 0) { QTest::newRow(name) << request << screen << position << anchor << offset; };
    const QRect target(100, 100, 40, 20);
    const QSize size(200, 50);

    row("centred below", {target, size, Top, CenterAlignment}, desk, {19, 121}, Top);
    row("arrow on the left", {target, size, Top, LeftAlignment, 10, 8}, desk, {101, 121}, Top);
    row("arrow on the right", {target, {100, 50}, Top, RightAlignment, 10, 8}, desk, {37, 121}, Top);
    row("above", {target, size, Bottom, CenterAlignment}, desk, {19, 48}, Bottom);
    row("on the right", {target, size, Left, CenterAlignment}, desk, {141, 84}, Left);
    row("on the left", {{600, 100, 40, 20}, size, Right, TopAlignment, 10, 8}, desk, {398, 91}, Right);
    row("arrow below", {target, size, Left, BottomAlignment, 10, 8}, desk, {141, 77}, Left);
    row("no anchor", {target, size, None, CenterAlignment}, desk, {19, 100}, None);
    row("an offset moves the balloon", {target, size, Top, CenterAlignment, 10, 8, 7}, desk, {12, 121}, Top, 7);

    row("slides off the left edge", {{10, 100, 40, 20}, size, Top, CenterAlignment}, desk, {5, 121}, Top, -76);
    row("slides off the right edge", {{1880, 100, 40, 20}, size, Top, CenterAlignment}, desk, {1714, 121}, Top, 85);
    row("slides below the top edge", {{100, 5, 40, 20}, {200, 100}, Left, CenterAlignment}, desk, {141, 5}, Left, -41);
    row("slides above the bottom edge", {{100, 1060, 40, 20}, {200, 100}, Left, CenterAlignment}, desk, {141, 974},
        Left, 45);
    row("a slide counts from the request", {{10, 100, 40, 20}, size, Top, CenterAlignment, 10, 8, 3}, desk, {5, 121},
        Top, -76);
    row("at the edge is on the screen", {{80, 100, 40, 20}, {200, 50}, Top, CenterAlignment}, desk, {-1 + 6, 121}, Top,
        -6);

    row("flips below", {{100, 10, 40, 20}, size, Bottom, CenterAlignment}, desk, {19, 31}, Top);
    row("flips above", {{100, 1050, 40, 20}, size, Top, CenterAlignment}, desk, {19, 998}, Bottom);
    row("flips to the left", {{1800, 100, 40, 20}, size, Left, CenterAlignment}, desk, {1598, 84}, Right);
    row("flips to the right", {target, size, Right, CenterAlignment}, desk, {141, 84}, Left);
    row("neither side: above", {{100, 100, 40, 20}, size, Left, CenterAlignment}, {0, 0, 240, 300}, {19, 48}, Bottom);
    row("neither above nor below: on the left", {{300, 30, 40, 20}, size, Top, CenterAlignment}, {0, 0, 640, 70},
        {98, 14}, Right);
    row("neither side nor above: on the left", {{100, 10, 40, 20}, {200, 50}, Left, CenterAlignment}, {0, 0, 240, 70},
        {-102, -6}, Right);

    row("as wide as the screen may be moved", {{0, 100, 40, 20}, {1920, 50}, Top, CenterAlignment}, desk, {5, 121}, Top,
        -946);
    row("wider than the screen stays", {{0, 100, 40, 20}, {1921, 50}, Top, CenterAlignment}, desk, {-941, 121}, Top);
    row("higher than the screen stays", {target, {10, 1081}, Left, CenterAlignment}, desk, {141, -431}, Left);
    row("no screen", {{-50, -50, 40, 20}, size, Top, CenterAlignment}, QRect(), {-131, -29}, Top);
    row("no size yet", {target, QSize(), Top, CenterAlignment}, desk, {119, 121}, Top);
    row("a second screen", {{-1900, 100, 40, 20}, size, Top, CenterAlignment}, {-1920, 0, 1920, 1080}, {-1915, 121},
        Top, -66);
}

void tst_PopOverData::geometries()
{
    QFETCH(Request, request);
    QFETCH(QRect, screen);
    const Place place = PopOverPlacement::place(request, screen);
    QTEST(place.position, "position");
    QTEST(int(place.anchor), "anchor");
    QTEST(place.arrowOffset, "offset");
}

void tst_PopOverData::randomGeometries()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const auto within = [&random](int low, int high) { return random.bounded(low, high + 1); };
    for (int i = 0; i < 10000; ++i) {
        const QRect screen(within(-2000, 2000), within(-1000, 1000), within(50, 800), within(50, 600));
        const Request request = {
            .target = QRect(screen.x() + within(-100, screen.width() + 50),
                            screen.y() + within(-100, screen.height() + 50), within(0, 200), within(0, 100)),
            .size = QSize(within(-1, screen.width() + 20), within(-1, screen.height() + 20)),
            .anchor = ArrowAnchor(within(None, Right)),
            .alignment = ArrowAlignment(within(LeftAlignment, BottomAlignment)),
            .arrowSize = QList<int>{0, 10, 16}.at(within(0, 2)),
            .radius = within(8, 10),
            .arrowOffset = within(-40, 40),
        };
        const Place place = PopOverPlacement::place(request, screen);
        Again::State state = {request.anchor, request.arrowOffset};
        const QPoint expected = Again::pass(request, screen, state, 1);
        if (place.position != expected || place.anchor != state.anchor || place.arrowOffset != state.offset) {
            qCritical() << "seed" << seed << "round" << i << "target" << request.target << "size" << request.size
                        << "anchor" << request.anchor << "alignment" << request.alignment << "screen" << screen
                        << "placed" << place.position << place.anchor << place.arrowOffset << "expected" << expected
                        << state.anchor << state.offset;
            QFAIL("the two statements of the rules differ");
        }
    }
}

void tst_PopOverData::screenChoice()
{
    const QRect leftPart(0, 0, 1000, 760), rightPart(1000, 20, 1000, 780);
    const QList<Screen> screens = {{{0, 0, 1000, 800}, leftPart}, {{1000, 0, 1000, 800}, rightPart}};
    QCOMPARE(screenFor({950, 10, 101, 10}, screens), rightPart);
    QCOMPARE(screenFor({950, 10, 100, 10}, screens), leftPart); // equal shares
    QCOMPARE(screenFor({5000, 10, 100, 10}, screens), leftPart);
    QVERIFY(screenFor({0, 0, 10, 10}, {}).isNull());
}

void tst_PopOverData::sizeClasses()
{
    UTPopOverData data;
    QCOMPARE(QPoint(data.arrowSize(), data.radius()), QPoint(0, 8));
    data.setSize(Medium);
    QCOMPARE(QPoint(data.arrowSize(), data.radius()), QPoint(0, 10));
    data.setArrowVisible(true);
    QCOMPARE(data.arrowSize(), 16);
    data.setSize(Small);
    QCOMPARE(QPoint(data.arrowSize(), data.radius()), QPoint(10, 8));
    data.setSize(Size(7));
    QCOMPARE(QPoint(data.arrowSize(), data.radius()), QPoint(10, 8));
    data.setArrowVisible(false);
    data.setSize(Small);
    QCOMPARE(data.arrowSize(), 0);
}

void tst_PopOverData::whatPlacesAnew()
{
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    UTPopOverData data;
    QSignalSpy moved(&data, &UTPopOverData::popOverPositionChanged);
    data.setArrowAnchor(Top);
    data.setArrowAlignment(CenterAlignment);
    QCOMPARE(moved.count(), 0);
    data.setTargetItemRect({middle, QSize(40, 20)});
    data.setPopOverSize({100, 50});
    QCOMPARE(moved.count(), 2);
    QCOMPARE(data.popOverPosition(), middle + QPoint(39 - 20 - 50, 19 + 2));
    data.setArrowAnchor(Bottom);
    data.setArrowAlignment(LeftAlignment);
    data.setArrowOffset(4);
    data.setTargetItemRect({middle, QSize(40, 20)});
    QCOMPARE(moved.count(), 2);
    data.setPopOverSize({100, 51});
    QCOMPARE(data.popOverPosition(), middle + QPoint(39 - 20 - 4 - 8, -51 - 2));
}

void tst_PopOverData::offsets()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    UTPopOverData data;
    const QSignalSpy changed(&data, &UTPopOverData::arrowOffsetChanged);
    data.setArrowAnchor(Top);
    data.setArrowAlignment(CenterAlignment);
    data.setArrowOffset(6);
    QCOMPARE(data.arrowOffset(), 0);
    QCOMPARE(changed.count(), 0);
    data.setPopOverSize({100, 50});
    data.setTargetItemRect({screen.center(), QSize(40, 20)});
    QCOMPARE(data.arrowOffset(), 6);
    data.setTargetItemRect({QPoint(screen.right() - 40, screen.center().y()), QSize(40, 20)});
    QVERIFY(data.arrowOffset() > 6);
    data.setTargetItemRect({screen.center(), QSize(40, 20)});
    QCOMPARE(data.arrowOffset(), 6);
    QCOMPARE(changed.count(), 5); // the first place, without a target, was slid as well
}

void tst_PopOverData::turnsWithItsArrow()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    UTPopOverData data;
    QList<int> anchors;
    connect(&data, &UTPopOverData::arrowAnchorChanged, [&] {
        anchors << data.arrowAnchor();
        data.setPopOverSize(data.arrowAnchor() == Bottom ? QSize(100, 60) : QSize(110, 50)); // with the arrow
    });
    data.setArrowAnchor(Left);
    data.setTargetItemRect({90, 100, screen.width() - 180, 20}); // leaves too little room on both sides
    QCOMPARE(anchors, QList<int>({Left, Right, Bottom}));
    QCOMPARE(data.popOverSize(), QSize(100, 60));
    QCOMPARE(data.popOverPosition().y(), 100 - 60 - 2);
}

void tst_PopOverData::badInput()
{
    UTPopOverData data;
    data.setArrowAnchor(ArrowAnchor(17));
    data.setArrowAlignment(ArrowAlignment(-4));
    data.setSize(Size(-1));
    data.setTargetItemRect(QRect(10, 10, -30, -40));
    data.setPopOverSize(QSize(-1000, -1));
    data.setPopOverSize(QSize(1000000, 1000000));
    QCOMPARE(data.arrowAnchor(), ArrowAnchor(17));
}

QTEST_MAIN(tst_PopOverData)
#include "tst_popoverdata.moc"
