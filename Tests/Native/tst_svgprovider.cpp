#include "KIcons.h"
#include "KSvgImageProvider.h"
#include "NativeTest.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QMutex>
#include <QTemporaryDir>
#include <QThreadPool>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

// What black, white and current colour, no fill, and a hole must all come to: left quarter solid, then nothing.
constexpr auto mixedSvg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20' fill='none'>"
                          "<rect width='10' height='10' fill='black'/>"
                          "<rect y='10' width='10' height='10' fill='#fff'/>"
                          "<rect x='22' y='2' width='16' height='16' stroke='currentColor' stroke-width='4'/></svg>";
constexpr auto solidSvg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 10 10'><path d='M0 0H10V10H0Z'/></svg>";

// Keeps what it is asked for, on any thread.
class RecordingProvider : public KSvgImageProvider
{
public:
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override
    {
        const QMutexLocker lock(&m_mutex);
        m_asked.append(id);
        return KSvgImageProvider::requestImage(id, size, requestedSize);
    }

    bool wasAsked(const char *id)
    {
        const QMutexLocker lock(&m_mutex);
        return m_asked.contains(QLatin1StringView(id));
    }

private:
    QMutex m_mutex;
    QStringList m_asked;
};

} // namespace

class TestSvgProvider : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        write(u"mixed"_s, mixedSvg);
        write(u"group/solid"_s, solidSvg);
        write(u"broken"_s, "this is no drawing");
        KIcons::addSearchPath(m_dir.path());
    }

    void init() override
    {
        NativeTest::init();
        m_provider = std::make_unique<KSvgImageProvider>();
    }

    void colors()
    {
        for (const char *color : {"#12ab9f", "#80ff0000", "steelblue", "transparent"}) {
            const QImage image = request(QByteArray(color) + "/group/solid");
            QCOMPARE(image.size(), QSize(20, 20));
            for (const QPoint &at : {QPoint(0, 0), QPoint(10, 10), QPoint(19, 19)})
                QCOMPARE(image.pixelColor(at), QColor(QLatin1StringView(color)));
        }
    }

    void onlyTheShapeCounts()
    {
        const QImage image = request("#336699/mixed", {40, 20});
        const QColor color(0x33, 0x66, 0x99);
        QCOMPARE(image.pixelColor(5, 5), color);       // black
        QCOMPARE(image.pixelColor(5, 15), color);      // white
        QCOMPARE(image.pixelColor(22, 10), color);     // the line of a frame
        QCOMPARE(image.pixelColor(30, 10).alpha(), 0); // its inside, not filled
        QCOMPARE(image.pixelColor(15, 10).alpha(), 0);
    }

    void sizes_data()
    {
        const Table<QByteArray, QSize, QSize, QRect> row{"name", "requested", "expected", "drawn"};
        row("as drawn", "mixed", {40, 20}, {40, 20}, {0, 0, 40, 20});
        row("in thrice the pixels", "mixed", {120, 60}, {120, 60}, {0, 0, 120, 60});
        row("too high, centred", "mixed", {40, 60}, {40, 60}, {0, 20, 40, 20});
        row("too wide, centred", "mixed", {100, 20}, {100, 20}, {30, 0, 40, 20});
        row("width only", "mixed", {80, 0}, {80, 40}, {0, 0, 80, 40});
        row("height only", "mixed", {0, 10}, {20, 10}, {0, 0, 20, 10});
        row("no size", "group/solid", {}, {16, 16}, {0, 0, 16, 16});
        row("null size", "group/solid", {0, 0}, {16, 16}, {0, 0, 16, 16});
        row("no size at ratio 4", "group/solid", QSize(-4, -4), {64, 64}, {0, 0, 64, 64});
        row("a single pixel", "group/solid", {1, 1}, {1, 1}, {0, 0, 1, 1});
    }

    void sizes()
    {
        QFETCH(QByteArray, name);
        QFETCH(QSize, requested);
        const QImage image = request("#000000/" + name, requested);
        QTEST(image.size(), "expected");
        QCOMPARE(image.devicePixelRatio(), 1.0);
        // The edges are hard: the drawing is rendered at this size, not scaled to it.
        for (const int alpha : {1, 255})
            QTEST(painted(image, alpha), "drawn");
    }

    void badInput_data()
    {
        const Table<QByteArray, QByteArray> row{"id", "warning"};
        row("nothing", "", "bad colour \"\" in ");
        row("no name", "#ff0000", "no icon name in ");
        row("empty name", "#ff0000/", "no icon name in ");
        row("no colour", "check-bold", "bad colour \"check-bold\" in ");
        row("half a colour", "#ff00/check-bold", "bad colour \"#ff00\" in ");
        row("undefined colour", "undefined/check-bold", "bad colour \"undefined\" in ");
    }

    void badInput()
    {
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, warning);
        expect(warning + "\"image://svg/" + id + '"');
        for (int i = 0; i < 2; ++i) { // reported once only
            const QImage image = request(id);
            QVERIFY(!image.isNull() && painted(image).isEmpty());
        }
    }

    void notAsAsked()
    {
        expect("unknown icon \"no-such-icon\"");
        const QImage image = request("#ff0000/no-such-icon");
        QCOMPARE(image.size(), QSize(20, 20));
#ifdef QT_NO_DEBUG
        QVERIFY(painted(image).isEmpty());
#else
        QVERIFY(!painted(image).isEmpty());
#endif
        request("#00ff00/no-such-icon", {40, 40});

        for (const QString &message : {u"^KSvgImageProvider: icon \"broken\" is no readable SVG: .*broken\\.svg$"_s,
                                       u"^Cannot read file .*broken\\.svg"_s})
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(message));
        QCOMPARE(request("#ff0000/broken").size(), QSize(20, 20));

        expect("negative size -5x20 for \"image://svg/red/mixed\"");
        QVERIFY(!request("red/mixed", {-5, 20}).isNull());
        // A huge size is drawn as large as is reasonable, and said so.
        expect("size 2000000000x8 for \"image://svg/red/group/solid\" is too large, 4096x8 is drawn");
        QCOMPARE(request("red/group/solid", {2000000000, 8}).size(), QSize(4096, 8));
    }

    void namesStayInsideTheSearchPaths()
    {
        QFile::copy(m_dir.filePath(u"mixed.svg"_s), m_dir.path() + u"-outside.svg"_s);
        const QString outside = u"../%1-outside"_s.arg(QFileInfo(m_dir.path()).fileName());
        QVERIFY(QFileInfo::exists(m_dir.filePath(outside + u".svg"_s)));
        QCOMPARE(KIcons::find(outside), QString());
        QCOMPARE(KIcons::find(u"group/../"_s + outside), QString());
        QCOMPARE(KIcons::find(m_dir.path() + u"-outside"_s), QString());
        QVERIFY(!KIcons::find(u"group/solid"_s).isEmpty());
        QFile::remove(m_dir.path() + u"-outside.svg"_s);
    }

    void searchPaths()
    {
        const QPoint corner(0, 0);
        QCOMPARE(request("#ff0000/contrast-bold").pixelColor(corner).alpha(), 0);

        QTemporaryDir dir;
        const QString file = dir.filePath(u"contrast-bold.svg"_s);
        QVERIFY(QFile::copy(m_dir.filePath(u"group/solid.svg"_s), file));
        KIcons::addSearchPath(dir.path());
        QCOMPARE(KIcons::searchPaths().first(), dir.path());
        QCOMPARE(KIcons::find(u"contrast-bold"_s), file);
        QCOMPARE(request("#ff0000/contrast-bold").pixelColor(corner), QColor(Qt::red));

        // The shape is kept: in another colour it needs no file any more.
        QVERIFY(QFile::remove(file));
        QCOMPARE(request("#00ff00/contrast-bold").pixelColor(corner), QColor(Qt::green));

        const QStringList names = KIcons::names();
        QVERIFY(names.contains(u"mixed"_s));
        QCOMPARE(names.count(u"contrast-bold"_s), 1);
    }

    void manyThreads()
    {
        const QImage expected = request("#123456/settings-filled", {21, 21});
        std::atomic_int wrong = 0;
        QThreadPool threads;
        threads.setMaxThreadCount(4);
        for (int thread = 0; thread < threads.maxThreadCount(); ++thread) {
            threads.start([&] {
                for (int round = 0; round < 200; ++round) {
                    m_provider->requestImage(u"red/check-bold"_s, nullptr, QSize(10 + round, 10));
                    if (m_provider->requestImage(u"#123456/settings-filled"_s, nullptr, {21, 21}) != expected)
                        ++wrong;
                }
            });
        }
        QVERIFY(threads.waitForDone());
        QCOMPARE(wrong, 0);
    }

    void inQml()
    {
        QQmlEngine engine;
        auto *provider = new RecordingProvider;
        engine.addImageProvider(KSvgImageProvider::providerId(), provider);
        // The message of the bad one is ours alone.
        expect("no icon name in \"image://svg/#000000\"");
        const auto row = create<QQuickItem>(engine, R"(import QtQuick
        Row {
            Image { sourceSize: Qt.size(20, 20); source: 'image://svg/%1/%2'.arg(Qt.rgba(1, 0, 0, 1)).arg('mixed') }
            Image { sourceSize: Qt.size(20, 20); source: 'image://svg/%1/mixed'.arg(Qt.rgba(0, 0, 1, 0.5)) }
            Image { asynchronous: true; sourceSize.width: 20; source: 'image://svg/#00ff00/mixed' }
            Image { source: 'image://svg/#000000/mixed' }
            Image { source: 'image://svg/#000000' }
        })");
        const auto width = [&row](int child) { return row->childItems().at(child)->width(); };
        QTRY_COMPARE(width(2), 20);
        QCOMPARE(width(3), 16);
        QVERIFY(provider->wasAsked("#ff0000/mixed"));
        QVERIFY(provider->wasAsked("#800000ff/mixed"));
    }

private:
    QImage request(const char *id, const QSize &size = {20, 20})
    {
        QSize reported;
        const QImage image = m_provider->requestImage(QString::fromLatin1(id), &reported, size);
        return reported == image.size() ? image : QImage();
    }

    //! Around all pixels that are at least as opaque as \a alpha.
    static QRect painted(const QImage &image, int alpha = 1)
    {
        return boundsOf(image, [alpha](const QColor &color) { return color.alpha() >= alpha; });
    }

    static void expect(const QByteArray &warning)
    {
        QTest::ignoreMessage(QtWarningMsg, "KSvgImageProvider: " + warning);
    }

    void write(const QString &name, const char *svg)
    {
        const QString path = m_dir.filePath(name + u".svg"_s);
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(svg) > 0);
    }

    std::unique_ptr<KSvgImageProvider> m_provider;
    QTemporaryDir m_dir;
};

QTEST_MAIN(TestSvgProvider)
#include "tst_svgprovider.moc"
