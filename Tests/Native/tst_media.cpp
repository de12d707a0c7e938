#include "DynamicImageProvider.h"
#include "DynamicSource.h"
#include "KMovieImage.h"
#include "KMovieProvider.h"
#include "MediaPolicy.h"
#include "NativeTest.h"

#include <QBuffer>
#include <QImage>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView fallback("qrc:/Resources/sample-landscape.png");
const QSize fallbackSize(320, 240);
constexpr QSize nothing(1, 1);

QByteArray picture(const QSize &size = {8, 4})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

// A server that answers each path with what it was told, and counts the requests. Without an answer it keeps silent.
class Server : public QTcpServer
{
public:
    Server()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                m_requests << socket->readAll();
                const QByteArray path = m_requests.last().split(' ').value(1);
                socket->write(m_answers.value(path));
                if (m_answers.contains(path))
                    socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++m_closed; });
        });
    }

    QString host() const { return u"127.0.0.1:%1"_s.arg(serverPort()); }
    QString url(const QByteArray &path) const { return "http://"_L1 + host() + QString::fromLatin1(path); }
    void serve(const QByteArray &path, const QByteArray &data, const QByteArray &status = "200 OK")
    {
        m_answers[path] = "HTTP/1.1 " + status + "\r\nConnection: close\r\nSet-Cookie: seen=1\r\n\r\n" + data;
    }
    void redirect(const QByteArray &path, const QString &target)
    {
        serve(path, {}, "302 Found\r\nLocation: " + target.toLatin1());
    }

    QHash<QByteArray, QByteArray> m_answers;
    QList<QByteArray> m_requests;
    int m_closed = 0;
};

} // namespace

class tst_Media : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine.addImageProvider(DynamicSource::providerId(), new DynamicImageProvider); }

    void init() override
    {
        NativeTest::init();
        m_server = std::make_unique<Server>(); // on a port of its own, so that each address is new to the log
        MediaPolicy &policy = *MediaPolicy::instance();
        policy.setProperty("allowedHosts", QStringList{m_server->host()});
        policy.setProperty("allowedSchemes", QStringList{u"http"_s});
        policy.setProperty("localFilesAllowed", true);
        policy.setProperty("maximumBytes", 100'000);
        policy.setProperty("maximumRedirects", 3);
        policy.setProperty("timeout", 15'000);
    }

    void policy_data()
    {
        const Table<QString, QString, bool> row{"hosts", "url", "isAllowed"};
        row("nothing by default", "", "https://a.org/x", false);
        row("host", "b.org a.org", "https://a.org/x", true);
        row("case", "A.org", "https://a.ORG/x", true);
        row("other host", "a.org", "https://b.org/a.org", false);
        row("host below", "a.org", "https://x.a.org/", false);
        row("user like the host", "a.org", "https://a.org@b.org/", false);
        row("domain", "*.a.org", "https://x.y.a.org/", true);
        row("domain itself", "*.a.org", "https://a.org/", false);
        row("end of a name", "*.a.org", "https://evila.org/", false);
        row("every host", "*", "https://b.org:9/", true);
        row("port", "a.org:8443", "https://a.org:8443/", true);
        row("usual port", "a.org", "https://a.org:443/", true);
        row("other port", "a.org", "https://a.org:8443/", false);
        row("empty entry", " ", "https:///x", false);
        row("scheme not allowed", "*", "http://a.org/", false);
        row("scheme unknown", "*", "ftp://a.org/", false);
        row("no scheme", "*", "a.org/x", false);
        row("resource", "", "qrc:/x", true);
        row("data", "", "data:,x", true);
        row("file", "", "file:///x", true);
        row("file elsewhere", "*", "file://server/x", false);
    }

    void policy()
    {
        QFETCH(QString, hosts);
        QFETCH(QString, url);
        MediaPolicy *policy = MediaPolicy::instance();
        policy->setProperty("allowedSchemes", QStringList{u"https"_s});
        policy->setProperty("allowedHosts", hosts.split(u' '));
        QTEST(policy->allows(QUrl(url)), "isAllowed");
        policy->setProperty("localFilesAllowed", false);
        QVERIFY(!policy->allows(QUrl(u"file:///x"_s)));
    }

    void sources_data()
    {
        const Table<QString, QString, QString, bool> row{"url", "address", "fallback", "isFaulty"};
        const auto url = [](const QString &source, const QString &isDark, const QString &fallback = {}) {
            return u"image://dynamic/?imageProviderUrl=%1&isDark=%2&fallbackImage=%3"_s.arg(source, isDark, fallback);
        };
        const QString both = MediaPolicy::encode(u"x:light"_s, u"x:dark"_s);
        row("light", url(both, u"false"_s, u"qrc:/f"_s), "x:light", "qrc:/f", false);
        row("dark", url(both, u"true"_s), "x:dark", "", false);
        row("light for dark", url(MediaPolicy::encode(u"x:light"_s), u"true"_s), "x:light", "", false);
        row("dark for light", url(MediaPolicy::encode({}, u"x:dark"_s), u"false"_s), "x:dark", "", false);
        row("fallback with items", url(both, u"false"_s, u"x:f?a=1&isDark=true#b"_s), "x:light",
            "x:f?a=1&isDark=true#b", false);
        row("none", url({}, u"true"_s, u"qrc:/f"_s), "", "qrc:/f", false);
        row("no variant", url(MediaPolicy::encode({}), u"true"_s), "", "", true);
        row("no base64", url(u"%%%"_s, u"true"_s, u"qrc:/f"_s), "", "qrc:/f", true);
        row("nothing at all", "image://dynamic/", "", "", false);
        row("address itself", "qrc:/a.gif", "qrc:/a.gif", "", false);
    }

    void sources()
    {
        QFETCH(QString, url);
        const DynamicSource source = DynamicSource::fromUrl(url);
        QTEST(source.address.toString(), "address");
        QTEST(source.fallback.toString(), "fallback");
        QTEST(!source.fault.isEmpty(), "isFaulty");
    }

    void fetching_data()
    {
        const Table<QString, QByteArray, QString, int> row{"setting", "path", "fault",
                                                           "requests"}; // a setting is property=value
        row("allowed", "", "/ok", "", 1);
        row("host refused", "allowedHosts=", "/ok", "the host \"127.0.0.1:\\d+\" is not", 0);
        row("scheme refused", "allowedSchemes=https", "/ok", "the scheme \"http\" is not", 0);
        row("not found", "", "/missing", ".*", 1);
        row("too large", "maximumBytes=10", "/ok", "it is larger than 10 bytes", 1);
        row("silent", "timeout=50", "/silent", "it took longer than 50 ms", 1);
        row("redirected", "", "/near", "", 2);
        row("redirected to another host", "", "/far", "the host \"a.example\" is not", 1);
        row("redirected to a file", "", "/inside", "it redirects to the scheme \"file\"", 1);
        row("redirected for ever", "", "/round", "it redirects more than 3 times", 4);
        row("no picture", "", "/text", "it is no picture", 1);
        row("damaged", "", "/damaged", "it is damaged", 1);
        row("drawing", "", "/drawing", "it is a drawing", 1);
    }

    void fetching()
    {
        QFETCH(QString, setting);
        QFETCH(QByteArray, path);
        QFETCH(QString, fault);
        m_server->serve("/ok", picture());
        m_server->serve("/missing", {}, "404 Not Found");
        m_server->redirect("/near", m_server->url("/ok"));
        m_server->redirect("/far", u"http://a.example/"_s);
        m_server->redirect("/inside", u"file:///etc/hostname"_s);
        m_server->redirect("/round", m_server->url("/round"));
        m_server->serve("/text", "hello");
        m_server->serve("/damaged", picture({64, 64}).left(60));
        m_server->serve("/drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
        MediaPolicy::instance()->setProperty(qPrintable(setting.section(u'=', 0, 0)), setting.section(u'=', 1));
        if (!fault.isEmpty())
            expectOnce(fault);

        const QString url = DynamicSource::url(m_server->url(path), fallback).toString();
        for (int i = 0; i < 2; ++i) // a fault is told once
            QCOMPARE(shownSize(url), fault.isEmpty() ? QSize(8, 4) : fallbackSize);
        const int requests = int(m_server->m_requests.size());
        QTEST(requests / 2, "requests");
        for (const QByteArray &request : std::as_const(m_server->m_requests))
            QVERIFY(!request.toLower().contains("cookie"));
    }

    void decoding_data()
    {
        const Table<QString, QSize, QSize> row{"source", "requested", "size"};
        const auto data = [](const QByteArray &bytes) {
            return "data:;base64,"_L1 + QString::fromLatin1(bytes.toBase64());
        };
        row("as it is", data(picture()), {}, {8, 4});
        row("smaller", data(picture()), {4, 4}, {4, 2});
        row("never larger", data(picture()), {80, 80}, {8, 4});
        row("drawing grows", "qrc:/Resources/spinner.svg", {512, 512}, {512, 512});
        row("too many pixels", data(picture({8192, 2049})), {}, nothing);
        row("missing resource", "qrc:/missing.png", {}, nothing);
        row("missing file", "file:///missing.png", {}, nothing);
        row("folder", "file:///", {}, nothing);
        row("no address", "nonsense", {}, nothing);
    }

    void decoding()
    {
        QFETCH(QString, source);
        QFETCH(QSize, requested);
        QFETCH(QSize, size);
        if (size == nothing)
            expectOnce(u".*"_s);
        QCOMPARE(shownSize(DynamicSource::url(source, {}).toString(), requested), size);
    }

    void films()
    {
        QFile file(u":/Resources/coverImageSpinner.gif"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_server->serve("/film.gif", file.readAll());
        m_server->serve("/text.gif", "GIF89a");

        KMovieProvider provider;
        QSignalSpy ratio(&provider, &KMovieProvider::aspectRatioChanged);
        provider.fetch(DynamicSource::url(m_server->url("/film.gif"), fallback).toString());
        QTRY_COMPARE(provider.stackIndex(), 1);
        QCOMPARE(provider.aspectRatio(), 1.0);
        QCOMPARE(ratio.count(), 1);
        int rounds = 0;
        connect(provider.movie(), &QMovie::frameChanged, this, [&rounds](int frame) { rounds += frame == 0; });
        QTRY_VERIFY_WITH_TIMEOUT(rounds > 0, 10'000);

        expectOnce(u".*"_s);
        provider.fetch(DynamicSource::url(m_server->url("/text.gif"), fallback).toString());
        QCOMPARE(provider.movie(), nullptr);
        QCOMPARE(provider.stackIndex(), 0);
        QTRY_COMPARE(provider.stackIndex(), 2);
        QCOMPARE(shownSize(provider.fallbackSource().toString()), fallbackSize);

        MediaPolicy::instance()->setProperty("allowedHosts", QStringList());
        const int requests = int(m_server->m_requests.size());
        expectOnce(u"the host"_s);
        provider.fetch(m_server->url("/film.gif"));
        QCOMPARE(provider.stackIndex(), 2);
        QCOMPARE(provider.fallbackSource(), QUrl());
        QCOMPARE(m_server->m_requests.size(), requests);
    }

    void filmItem()
    {
        KMovieProvider provider;
        provider.fetch(u"qrc:/Resources/coverImageSpinner.gif"_s);
        QTRY_VERIFY(provider.movie());
        QQuickWindow window;
        window.resize(100, 50);
        auto *item = new KMovieImage(window.contentItem());
        item->setSize({100, 50});
        item->setMovie(provider.movie());
        const auto state = [&provider] { return provider.movie()->state(); };
        QCOMPARE(state(), QMovie::Paused);
        window.show();
        QCOMPARE(state(), QMovie::Running);
        item->setVisible(false);
        QCOMPARE(state(), QMovie::Paused);
        item->setVisible(true);
        provider.movie()->setPaused(true);

        const auto paintedWidth = [&window] {
            return boundsOf(window.grabWindow(), [](const QColor &color) { return color != Qt::white; }).width();
        };
        for (const auto &[fillMode, minimum, maximum] :
             {std::tuple(0, 60, 100), {1, 30, 50}, {2, 60, 100}, {6, 15, 27}}) {
            item->setFillMode(fillMode);
            const int width = paintedWidth();
            QVERIFY2(width >= minimum && width <= maximum, qPrintable(u"%1: %2"_s.arg(fillMode).arg(width)));
        }
        provider.fetch({}); // the film is gone
        QVERIFY(!item->movie());
        QCOMPARE(paintedWidth(), 0);
    }

    void underWay()
    {
        auto film = std::make_unique<KMovieProvider>();
        film->fetch(m_server->url("/film")); // which the server leaves without an answer
        const auto load = [this](QQmlEngine &engine, const QByteArray &path) {
            return create(engine, "import QtQuick\nImage {}",
                          {{u"source"_s, DynamicSource::url(m_server->url(path), {})}});
        };
        auto image = load(m_engine, "/image");
        QQmlEngine engine;
        engine.addImageProvider(DynamicSource::providerId(), new DynamicImageProvider);
        auto imageOfEngine = load(engine, "/again");
        QTRY_COMPARE(m_server->m_requests.size(), 3);
        QCOMPARE(m_server->m_closed, 0);
        film.reset();
        image.reset();
        imageOfEngine.reset();
        // All gave up; before the engine goes, with which Qt may forget a response that is just being cancelled.
        QTRY_COMPARE(m_server->m_closed, 3);
    }

private:
    // What an Image gets to see of \a url.
    QSize shownSize(const QString &url, const QSize &sourceSize = {})
    {
        const auto image = create<QQuickItem>(m_engine, "import QtQuick\nImage { cache: false }",
                                              {{u"sourceSize"_s, sourceSize}, {u"source"_s, url}});
        const bool isReady = QTest::qWaitFor([&image] { return image->property("status").toInt() == 1; });
        return isReady ? QSizeF(image->implicitWidth(), image->implicitHeight()).toSize() : QSize();
    }

    void expectOnce(const QString &pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Media: .* is not shown: "_L1 + pattern));
    }

    QQmlEngine m_engine;
    std::unique_ptr<Server> m_server;
};

QTEST_MAIN(tst_Media)
#include "tst_media.moc"
