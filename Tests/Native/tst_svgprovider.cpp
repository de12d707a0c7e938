#include "KIcons.h"
#include "KSvgImageProvider.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QMutexLocker>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

namespace {

// What black, white and current colour, no fill, and a hole must all come to: left quarter solid, then nothing.
constexpr auto mixedSvg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20' fill='none'>"
                          "<rect width='10' height='10' fill='black'/>"
                          "<rect y='10' width='10' height='10' fill='#fff'/>"
                          "<rect x='22' y='2' width='16' height='16' stroke='currentColor' stroke-width='4'/></svg>";
constexpr auto solidSvg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'><path d='M0 0H10V10H0Z'/></svg>";

bool isEmpty(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                return false;
        }
    }
    return true;
}

} // namespace

class TestSvgProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void colors_data();
    void colors();
    void onlyTheShapeCounts();
    void sizes_data();
    void sizes();
    void badInput_data();
    void badInput();
    void unknownIcon();
    void namesStayInsideTheSearchPaths();
    void searchPaths();
    void manyThreads();
    void inQml();

private:
    QImage request(const char *id, const QSize &size = {20, 20});
    void write(const QString &name, const char *svg);

    std::unique_ptr<KSvgImageProvider> m_provider;
    QTemporaryDir m_dir;
};

void TestSvgProvider::initTestCase()
{
    QVERIFY(m_dir.isValid());
    write(QStringLiteral("mixed"), mixedSvg);
    write(QStringLiteral("group/solid"), solidSvg);
    write(QStringLiteral("broken"), "this is no drawing");
    KIcons::addSearchPath(m_dir.path());
}

void TestSvgProvider::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    m_provider = std::make_unique<KSvgImageProvider>();
}

QImage TestSvgProvider::request(const char *id, const QSize &size)
{
    QSize reported;
    const QImage image = m_provider->requestImage(QString::fromLatin1(id), &reported, size);
    return reported == image.size() ? image : QImage();
}

void TestSvgProvider::write(const QString &name, const char *svg)
{
    const QString path = m_dir.filePath(name + QStringLiteral(".svg"));
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(svg) > 0);
}

void TestSvgProvider::colors_data()
{
    QTest::addColumn<QByteArray>("color");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("opaque") << QByteArray("#12ab9f") << QColor(0x12, 0xab, 0x9f);
    QTest::newRow("with alpha") << QByteArray("#80ff0000") << QColor(255, 0, 0, 0x80);
    QTest::newRow("by name") << QByteArray("steelblue") << QColor(QStringLiteral("steelblue"));
    QTest::newRow("transparent") << QByteArray("transparent") << QColor(0, 0, 0, 0);
}

void TestSvgProvider::colors()
{
    QFETCH(QByteArray, color);
    QFETCH(QColor, expected);
    const QImage image = request(color + "/group/solid");
    QCOMPARE(image.size(), QSize(20, 20));
    for (const QPoint &at : {QPoint(0, 0), QPoint(10, 10), QPoint(19, 19)})
        QCOMPARE(image.pixelColor(at), expected);
}

void TestSvgProvider::onlyTheShapeCounts()
{
    const QImage image = request("#336699/mixed", {40, 20});
    const QColor color(0x33, 0x66, 0x99);
    QCOMPARE(image.pixelColor(5, 5), color);       // black
    QCOMPARE(image.pixelColor(5, 15), color);      // white
    QCOMPARE(image.pixelColor(22, 10), color);     // the line of a frame
    QCOMPARE(image.pixelColor(30, 10).alpha(), 0); // its inside, not filled
    QCOMPARE(image.pixelColor(15, 10).alpha(), 0);
}

void TestSvgProvider::sizes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QSize>("requested");
    QTest::addColumn<QSize>("expected");
    QTest::addColumn<QRect>("drawn");
    QTest::newRow("as drawn") << QByteArray("mixed") << QSize(40, 20) << QSize(40, 20) << QRect(0, 0, 10, 20);
    QTest::newRow("in thrice the pixels")
        << QByteArray("mixed") << QSize(120, 60) << QSize(120, 60) << QRect(0, 0, 30, 60);
    QTest::newRow("too high, centred") << QByteArray("mixed") << QSize(40, 60) << QSize(40, 60) << QRect(0, 20, 10, 20);
    QTest::newRow("too wide, centred") << QByteArray("mixed") << QSize(100, 20) << QSize(100, 20)
                                       << QRect(30, 0, 10, 20);
    QTest::newRow("width only") << QByteArray("mixed") << QSize(80, 0) << QSize(80, 40) << QRect(0, 0, 20, 40);
    QTest::newRow("height only") << QByteArray("mixed") << QSize(0, 10) << QSize(20, 10) << QRect(0, 0, 5, 10);
    QTest::newRow("no size") << QByteArray("group/solid") << QSize() << QSize(16, 16) << QRect(0, 0, 16, 16);
    QTest::newRow("null size") << QByteArray("group/solid") << QSize(0, 0) << QSize(16, 16) << QRect(0, 0, 16, 16);
    QTest::newRow("no size at ratio 4") << QByteArray("group/solid") << QSize(-4, -4) << QSize(64, 64)
                                        << QRect(0, 0, 64, 64);
    QTest::newRow("a single pixel") << QByteArray("group/solid") << QSize(1, 1) << QSize(1, 1) << QRect(0, 0, 1, 1);
}

void TestSvgProvider::sizes()
{
    QFETCH(QByteArray, name);
    QFETCH(QSize, requested);
    QFETCH(QSize, expected);
    QFETCH(QRect, drawn);
    const QImage image = request("#000000/" + name, requested);
    QCOMPARE(image.size(), expected);
    QCOMPARE(image.devicePixelRatio(), 1.0);
    // The edges are hard: the drawing is rendered at this size, not scaled to it.
    const QRect inside = drawn.adjusted(0, 0, -1, -1);
    QCOMPARE(image.pixelColor(drawn.topLeft()).alpha(), 255);
    QCOMPARE(image.pixelColor(drawn.bottomRight()).alpha(), 255);
    QVERIFY(!inside.isValid() || image.pixelColor(inside.center()).alpha() == 255);
    for (const QPoint &at : {drawn.topLeft() + QPoint(-1, 0), drawn.topLeft() + QPoint(0, -1),
                             drawn.bottomRight() + QPoint(1, 0), drawn.bottomRight() + QPoint(0, 1)}) {
        if (image.rect().contains(at))
            QCOMPARE(image.pixelColor(at).alpha(), 0);
    }
}

void TestSvgProvider::badInput_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("warning");
    const QSize size(20, 20);
    QTest::newRow("nothing") << QByteArray() << size << QStringLiteral("bad colour \"\" in \"image://svg/\"");
    QTest::newRow("no name") << QByteArray("#ff0000") << size
                             << QStringLiteral("no icon name in \"image://svg/#ff0000\"");
    QTest::newRow("empty name") << QByteArray("#ff0000/") << size
                                << QStringLiteral("no icon name in \"image://svg/#ff0000/\"");
    QTest::newRow("no colour") << QByteArray("check-bold") << size
                               << QStringLiteral("bad colour \"check-bold\" in \"image://svg/check-bold\"");
    QTest::newRow("half a colour") << QByteArray("#ff00/check-bold") << size
                                   << QStringLiteral("bad colour \"#ff00\" in \"image://svg/#ff00/check-bold\"");
    QTest::newRow("undefined colour") << QByteArray("undefined/check-bold") << size
                                      << QStringLiteral("bad colour \"undefined\" in "
                                                        "\"image://svg/undefined/check-bold\"");
    QTest::newRow("negative size") << QByteArray("#ff0000/check-bold") << QSize(-5, 20)
                                   << QStringLiteral("negative size -5x20 for \"image://svg/#ff0000/check-bold\"");
}

void TestSvgProvider::badInput()
{
    QFETCH(QByteArray, id);
    QFETCH(QSize, size);
    QFETCH(QString, warning);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("KSvgImageProvider: ") + warning));
    QImage image = request(id, size);
    QVERIFY(!image.isNull());
    QVERIFY(isEmpty(image));
    image = request(id, size); // reported once only
    QVERIFY(!image.isNull());
}

void TestSvgProvider::unknownIcon()
{
    QTest::ignoreMessage(QtWarningMsg, "KSvgImageProvider: unknown icon \"no-such-icon\"");
    const QImage image = request("#ff0000/no-such-icon");
    QCOMPARE(image.size(), QSize(20, 20));
#ifdef QT_NO_DEBUG
    QVERIFY(isEmpty(image));
#else
    QVERIFY(!isEmpty(image));
#endif
    request("#00ff00/no-such-icon", {40, 40});

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^KSvgImageProvider: icon \"broken\" is no "
                                                           "readable SVG: .*broken\\.svg$")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot read file .*broken\\.svg")));
    QCOMPARE(request("#ff0000/broken").size(), QSize(20, 20));

    // A huge size is drawn as large as is reasonable, and said so.
    QTest::ignoreMessage(QtWarningMsg,
                         "KSvgImageProvider: size 2000000000x8 for \"image://svg/red/group/solid\" is "
                         "too large, 4096x8 is drawn");
    QCOMPARE(request("red/group/solid", {2000000000, 8}).size(), QSize(4096, 8));
}

void TestSvgProvider::namesStayInsideTheSearchPaths()
{
    QFile::copy(m_dir.filePath(QStringLiteral("mixed.svg")), m_dir.path() + QStringLiteral("-outside.svg"));
    const QString outside = QStringLiteral("../%1-outside").arg(QFileInfo(m_dir.path()).fileName());
    QVERIFY(QFileInfo::exists(m_dir.filePath(outside + QStringLiteral(".svg"))));
    QCOMPARE(KIcons::find(outside), QString());
    QCOMPARE(KIcons::find(QStringLiteral("group/../") + outside), QString());
    QCOMPARE(KIcons::find(m_dir.path() + QStringLiteral("-outside")), QString());
    QVERIFY(!KIcons::find(QStringLiteral("group/solid")).isEmpty());
    QFile::remove(m_dir.path() + QStringLiteral("-outside.svg"));
}

void TestSvgProvider::searchPaths()
{
    const QPoint corner(0, 0);
    QCOMPARE(request("#ff0000/contrast-bold").pixelColor(corner).alpha(), 0);

    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("contrast-bold.svg"));
    QVERIFY(QFile::copy(m_dir.filePath(QStringLiteral("group/solid.svg")), file));
    KIcons::addSearchPath(dir.path());
    QCOMPARE(KIcons::searchPaths().first(), dir.path());
    QCOMPARE(KIcons::find(QStringLiteral("contrast-bold")), file);
    QCOMPARE(request("#ff0000/contrast-bold").pixelColor(corner), QColor(Qt::red));

    // The shape is kept: in another colour it needs no file any more.
    QVERIFY(QFile::remove(file));
    QCOMPARE(request("#00ff00/contrast-bold").pixelColor(corner), QColor(Qt::green));

    const QStringList names = KIcons::names();
    QVERIFY(names.contains(QStringLiteral("mixed")));
    QCOMPARE(names.count(QStringLiteral("contrast-bold")), 1);
}

void TestSvgProvider::manyThreads()
{
    const QImage expected = request("#123456/settings-filled", {21, 21});
    std::vector<std::unique_ptr<QThread>> threads;
    std::vector<int> wrong(4, 0);
    for (int &count : wrong) {
        threads.emplace_back(QThread::create([this, &count, &expected] {
            for (int round = 0; round < 200; ++round) {
                m_provider->requestImage(QStringLiteral("red/check-bold"), nullptr, QSize(10 + round, 10));
                if (m_provider->requestImage(QStringLiteral("#123456/settings-filled"), nullptr, {21, 21}) != expected)
                    ++count;
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait());
    QCOMPARE(wrong, std::vector<int>(4, 0));
}

// Hands out what the provider draws, and keeps it.
class RecordingProvider : public KSvgImageProvider
{
public:
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override
    {
        const QImage image = KSvgImageProvider::requestImage(id, size, requestedSize);
        const QMutexLocker lock(&m_mutex);
        m_drawn.insert(id, image);
        return image;
    }

    QImage drawn(const char *id)
    {
        const QMutexLocker lock(&m_mutex);
        return m_drawn.value(QString::fromLatin1(id));
    }

private:
    QMutex m_mutex;
    QHash<QString, QImage> m_drawn;
};

void TestSvgProvider::inQml()
{
    QQmlEngine engine;
    auto *provider = new RecordingProvider;
    engine.addImageProvider(KSvgImageProvider::providerId(), provider);
    QQmlComponent component(&engine);
    component.setData(R"(import QtQuick
        Row {
            property bool ready: late.status === Image.Ready
            Image { sourceSize: Qt.size(20, 20); source: "image://svg/%1/%2".arg(Qt.rgba(1, 0, 0, 1)).arg("mixed") }
            Image { sourceSize: Qt.size(20, 20); source: "image://svg/%1/mixed".arg(Qt.rgba(0, 0, 1, 0.5)) }
            Image { id: late; asynchronous: true; sourceSize.width: 20; source: "image://svg/#00ff00/mixed" }
            Image { objectName: "plain"; source: "image://svg/#000000/mixed" }
            Image { objectName: "bad"; source: "image://svg/#000000" }
        })",
                      QUrl());
    // The message of the bad one is ours alone.
    QTest::ignoreMessage(QtWarningMsg, "KSvgImageProvider: no icon name in \"image://svg/#000000\"");
    const std::unique_ptr<QObject> row(component.create());
    QVERIFY2(row, qPrintable(component.errorString()));
    QTRY_VERIFY(row->property("ready").toBool());

    QCOMPARE(provider->drawn("#ff0000/mixed").pixelColor(0, 10), QColor(Qt::red));
    QCOMPARE(provider->drawn("#800000ff/mixed").pixelColor(0, 10), QColor(0, 0, 255, 0x80));
    const qreal ratio = qGuiApp->devicePixelRatio();
    QCOMPARE(provider->drawn("#00ff00/mixed").size(), QSize(20, 10) * ratio);
    QCOMPARE(row->findChild<QObject *>(QStringLiteral("plain"))->property("implicitWidth").toReal(), 16.0);
}

QTEST_MAIN(TestSvgProvider)
#include "tst_svgprovider.moc"
