#include "DataTest.h"
#include "PopOverPlacement.h"
#include "UTPopOverData.h"

#include <QGuiApplication>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

using namespace PopOverPlacement;
using namespace UTPopOverEnum;

static const QRect desk(0, 0, 1920, 1080);

class tst_PopOverData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void geometries_data()
    {
        const Table<Request, QRect, QPoint, int, int> row{"request", "screen", "position", "anchor", "offset"};
        const QRect target(100, 100, 40, 20);
        const QSize size(200, 50);

        row("centred below", {target, size, Top, CenterAlignment}, desk, {19, 121}, Top, 0);
        row("arrow on the left", {target, size, Top, LeftAlignment, 10, 8}, desk, {101, 121}, Top, 0);
        row("arrow on the right", {target, {100, 50}, Top, RightAlignment, 10, 8}, desk, {37, 121}, Top, 0);
        row("above", {target, size, Bottom, CenterAlignment}, desk, {19, 48}, Bottom, 0);
        row("on the right", {target, size, Left, CenterAlignment}, desk, {141, 84}, Left, 0);
        row("on the left", {{600, 100, 40, 20}, size, Right, TopAlignment, 10, 8}, desk, {398, 91}, Right, 0);
        row("arrow below", {target, size, Left, BottomAlignment, 10, 8}, desk, {141, 77}, Left, 0);
        row("no anchor", {target, size, None, CenterAlignment}, desk, {19, 100}, None, 0);
        row("an offset moves the balloon", {target, size, Top, CenterAlignment, 10, 8, 7}, desk, {12, 121}, Top, 7);

        row("an offset moves it up", {target, size, Left, CenterAlignment, 10, 8, 7}, desk, {141, 77}, Left, 7);

        // What only touches an edge is on the screen.
        row("touches the left edge", {{81, 100, 40, 20}, size, Top, CenterAlignment}, desk, {0, 121}, Top, 0);
        row("touches the right edge", {{1801, 100, 40, 20}, size, Top, CenterAlignment}, desk, {1720, 121}, Top, 0);
        row("touches the top edge", {{100, 16, 40, 20}, size, Left, CenterAlignment}, desk, {141, 0}, Left, 0);
        row("touches the bottom edge", {{100, 1046, 40, 20}, size, Left, CenterAlignment}, desk, {141, 1030}, Left, 0);

        row("slides off the left edge", {{10, 100, 40, 20}, size, Top, CenterAlignment}, desk, {5, 121}, Top, -76);
        row("slides off the right edge", {{1880, 100, 40, 20}, size, Top, CenterAlignment}, desk, {1714, 121}, Top, 85);
        row("slides below the top edge", {{100, 5, 40, 20}, {200, 100}, Left, CenterAlignment}, desk, {141, 5}, Left,
            -41);
        row("slides above the bottom edge", {{100, 1060, 40, 20}, {200, 100}, Left, CenterAlignment}, desk, {141, 974},
            Left, 45);
        row("a slide counts from the request", {{10, 100, 40, 20}, size, Top, CenterAlignment, 10, 8, 3}, desk,
            {5, 121}, Top, -76);

        row("flips below", {{100, 10, 40, 20}, size, Bottom, CenterAlignment}, desk, {19, 31}, Top, 0);
        row("flips above", {{100, 1050, 40, 20}, size, Top, CenterAlignment}, desk, {19, 998}, Bottom, 0);
        row("flips to the left", {{1800, 100, 40, 20}, size, Left, CenterAlignment}, desk, {1598, 84}, Right, 0);
        row("flips to the right", {target, size, Right, CenterAlignment}, desk, {141, 84}, Left, 0);
        row("just fits on the left", {{202, 100, 40, 20}, size, Left, CenterAlignment}, {0, 0, 400, 300}, {0, 84},
            Right, 0);
        row("just fits on the right", {target, size, Right, CenterAlignment}, {0, 0, 342, 300}, {141, 84}, Left, 0);
        row("just fits below", {{100, 10, 40, 20}, size, Bottom, CenterAlignment}, {0, 0, 640, 82}, {19, 31}, Top, 0);
        row("just fits above", {{100, 52, 40, 20}, size, Top, CenterAlignment}, {0, 0, 640, 100}, {19, 0}, Bottom, 0);
        row("neither side: above", {{100, 100, 40, 20}, size, Left, CenterAlignment}, {0, 0, 240, 300}, {19, 48},
            Bottom, 0);
        row("neither above nor below: on the left", {{300, 30, 40, 20}, size, Top, CenterAlignment}, {0, 0, 640, 70},
            {98, 14}, Right, 0);
        row("neither side nor above: on the left", {{100, 10, 40, 20}, {200, 50}, Left, CenterAlignment},
            {0, 0, 240, 70}, {-102, -6}, Right, 0);

        row("as wide as the screen may be moved", {{0, 100, 40, 20}, {1920, 50}, Top, CenterAlignment}, desk, {5, 121},
            Top, -946);
        row("wider than the screen stays", {{0, 100, 40, 20}, {1921, 50}, Top, CenterAlignment}, desk, {-941, 121}, Top,
            0);
        row("as high as the screen may be moved", {target, {10, 1080}, Left, CenterAlignment}, desk, {141, 5}, Left,
            -436);
        row("higher than a low screen stays", {{100, 1000, 40, 20}, {10, 70}, Left, CenterAlignment},
            {0, 1000, 640, 60}, {141, 974}, Left, 0);
        row("higher than the screen stays", {target, {10, 1081}, Left, CenterAlignment}, desk, {141, -431}, Left, 0);
        row("no screen", {{-50, -50, 40, 20}, size, Top, CenterAlignment}, {}, {-131, -29}, Top, 0);
        row("no size yet", {target, {}, Top, CenterAlignment}, desk, {119, 121}, Top, 0);
        row("a second screen", {{-1900, 100, 40, 20}, size, Top, CenterAlignment}, {-1920, 0, 1920, 1080}, {-1915, 121},
            Top, -66);
    }

    void geometries()
    {
        QFETCH(Request, request);
        QFETCH(QRect, screen);
        const Place place = PopOverPlacement::place(request, screen);
        QTEST(place.position, "position");
        QTEST(int(place.anchor), "anchor");
        QTEST(place.arrowOffset, "offset");
    }

    void screenChoice()
    {
        const QRect leftPart(0, 0, 1000, 760), rightPart(1000, 20, 1000, 780);
        const QList<Screen> screens = {{{0, 0, 1000, 800}, leftPart}, {{1000, 0, 1000, 800}, rightPart}};
        QCOMPARE(screenFor({950, 10, 101, 10}, screens), rightPart);
        QCOMPARE(screenFor({950, 10, 100, 10}, screens), leftPart); // equal shares
        QCOMPARE(screenFor({5000, 10, 100, 10}, screens), leftPart);
        QVERIFY(screenFor({0, 0, 10, 10}, {}).isNull());
    }

    void sizeClasses()
    {
        UTPopOverData data;
        const struct
        {
            Size size;
            bool arrowVisible;
            int arrowSize, radius;
        } steps[] = {{Medium, false, 0, 10},
                     {Medium, true, 16, 10},
                     {Small, true, 10, 8},
                     {Size(7), true, 10, 8},
                     {Small, false, 0, 8}};
        for (const auto &[size, arrowVisible, arrowSize, radius] : steps) {
            data.setSize(size);
            data.setArrowVisible(arrowVisible);
            QCOMPARE(values(data, "arrowSize radius"), QVariantList({arrowSize, radius}));
        }
    }

    void whatPlacesAnew()
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

    void offsets()
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

    void turnsWithItsArrow()
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

    void badInput()
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
};

QTEST_MAIN(tst_PopOverData)
#include "tst_popoverdata.moc"
