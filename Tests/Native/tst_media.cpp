#include "DynamicImageProvider.h"
#include "DynamicSource.h"
#include "KMovieImage.h"
#include "KMovieProvider.h"
#include "MediaPolicy.h"

#include <QBuffer>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <memory>

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
                const QByteArray request = socket->readAll();
                m_requests << request;
                socket->write(m_answers.value(request.split(' ').value(1)));
                if (m_answers.contains(request.split(' ').value(1)))
                    socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, this, [this] { ++m_closed; });
        });
    }

    QString host() const { return u"127.0.0.1:%1"_s.arg(serverPort()); }
    QString url(const QByteArray &path) const { return "http://"_L1 + host() + QString::fromLatin1(path); }
    void answer(const QByteArray &path, const QByteArray &body, const QByteArray &status = "200 OK")
    {
        m_answers[path] = "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + body;
    }
    void serve(const QByteArray &path, const QByteArray &data) { answer(path, "\r\n" + data); }
    void redirect(const QByteArray &path, const QString &target)
    {
        answer(path, "Location: " + target.toLatin1() + "\r\n\r\n", "302 Found");
    }

    QHash<QByteArray, QByteArray> m_answers;
    QList<QByteArray> m_requests;
    int m_closed = 0;
};

} // namespace

class tst_Media : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void policy_data();
    void policy();
    void sources_data();
    void sources();
    void fetching_data();
    void fetching();
    void decoding_data();
    void decoding();
    void films();
    void filmItem();
    void underWay();

private:
    QSize shownSize(const QString &url, const QSize &sourceSize = {});
    void expectOnce(const QString &pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Media: .* is not shown: "_L1 + pattern));
    }

    QQmlEngine m_engine;
    std::unique_ptr<Server> m_server;
};

void tst_Media::initTestCase()
{
    m_engine.addImageProvider(DynamicSource::providerId(), new DynamicImageProvider);
}

void tst_Media::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_server = std::make_unique<Server>(); // on a port of its own, so that each address is new to the log
    MediaPolicy &policy = *MediaPolicy::instance();
    policy.setProperty("allowedHosts", QStringList{m_server->host()});
    policy.setProperty("allowedSchemes", QStringList{u"http"_s});
    policy.setProperty("localFilesAllowed", true);
    policy.setProperty("maximumBytes", 100'000);
    policy.setProperty("maximumRedirects", 3);
    policy.setProperty("timeout", 15'000);
}

// What an Image gets to see of \a url.
QSize tst_Media::shownSize(const QString &url, const QSize &sourceSize)
{
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nImage { cache: false }", QUrl());
    std::unique_ptr<QObject> image(
        component.createWithInitialProperties({{u"sourceSize"_s, sourceSize}, {u"source"_s, url}}));
    const bool isReady = QTest::qWaitFor([&image] { return image->property("status").toInt() == 1; });
    return isReady
        ? QSizeF(image->property("implicitWidth").toReal(), image->property("implicitHeight").toReal()).toSize()
        : QSize();
}

void tst_Media::policy_data()
{
    QTest::addColumn<QString>("hosts");
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("isAllowed");

    QTest::newRow("nothing by default") << "" << "https://a.org/x" << false;
    QTest::newRow("host") << "b.org a.org" << "https://a.org/x" << true;
    QTest::newRow("case") << "A.org" << "https://a.ORG/x" << true;
    QTest::newRow("other host") << "a.org" << "https://b.org/a.org" << false;
    QTest::newRow("host below") << "a.org" << "https://x.a.org/" << false;
    QTest::newRow("user like the host") << "a.org" << "https://a.org@b.org/" << false;
    QTest::newRow("domain") << "*.a.org" << "https://x.y.a.org/" << true;
    QTest::newRow("domain itself") << "*.a.org" << "https://a.org/" << false;
    QTest::newRow("end of a name") << "*.a.org" << "https://evila.org/" << false;
    QTest::newRow("every host") << "*" << "https://b.org:9/" << true;
    QTest::newRow("port") << "a.org:8443" << "https://a.org:8443/" << true;
    QTest::newRow("usual port") << "a.org" << "https://a.org:443/" << true;
    QTest::newRow("other port") << "a.org" << "https://a.org:8443/" << false;
    QTest::newRow("empty entry") << " " << "https:///x" << false;
    QTest::newRow("scheme not allowed") << "*" << "http://a.org/" << false;
    QTest::newRow("scheme unknown") << "*" << "ftp://a.org/" << false;
    QTest::newRow("no scheme") << "*" << "a.org/x" << false;
    QTest::newRow("resource") << "" << "qrc:/x" << true;
    QTest::newRow("data") << "" << "data:,x" << true;
    QTest::newRow("file") << "" << "file:///x" << true;
    QTest::newRow("file elsewhere") << "*" << "file://server/x" << false;
}

void tst_Media::policy()
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

void tst_Media::sources_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("fallback");
    QTest::addColumn<bool>("isFaulty");

    const auto url = [](const QString &source, const char *isDark, const QString &fallback) {
        return u"image://dynamic/?imageProviderUrl=%1&isDark=%2&fallbackImage=%3"_s.arg(
            source, QLatin1StringView(isDark), fallback);
    };
    const QString both = MediaPolicy::encode(u"x:light"_s, u"x:dark"_s);
    QTest::newRow("light") << url(both, "false", u"qrc:/f"_s) << "x:light" << "qrc:/f" << false;
    QTest::newRow("dark") << url(both, "true", {}) << "x:dark" << "" << false;
    QTest::newRow("light for dark") << url(MediaPolicy::encode(u"x:light"_s), "true", {}) << "x:light" << "" << false;
    QTest::newRow("dark for light") << url(MediaPolicy::encode({}, u"x:dark"_s), "false", {}) << "x:dark" << ""
                                    << false;
    QTest::newRow("fallback with items") << url(both, "false", u"x:f?a=1&isDark=true#b"_s) << "x:light"
                                         << "x:f?a=1&isDark=true#b" << false;
    QTest::newRow("none") << url({}, "true", u"qrc:/f"_s) << "" << "qrc:/f" << false;
    QTest::newRow("no variant") << url(MediaPolicy::encode({}), "true", {}) << "" << "" << true;
    QTest::newRow("no base64") << url(u"%%%"_s, "true", u"qrc:/f"_s) << "" << "qrc:/f" << true;
    QTest::newRow("nothing at all") << "image://dynamic/" << "" << "" << false;
    QTest::newRow("address itself") << "qrc:/a.gif" << "qrc:/a.gif" << "" << false;
}

void tst_Media::sources()
{
    QFETCH(QString, url);
    const DynamicSource source = DynamicSource::fromUrl(url);
    QTEST(source.address.toString(), "address");
    QTEST(source.fallback.toString(), "fallback");
    QTEST(!source.fault.isEmpty(), "isFaulty");
}

void tst_Media::fetching_data()
{
    QTest::addColumn<QString>("setting"); // property=value
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("fault"); // empty for none
    QTest::addColumn<int>("requests");

    QTest::newRow("allowed") << "" << QByteArray("/ok") << "" << 1;
    QTest::newRow("host refused") << "allowedHosts=" << QByteArray("/ok") << "the host \"127.0.0.1:\\d+\" is not" << 0;
    QTest::newRow("scheme refused") << "allowedSchemes=https" << QByteArray("/ok") << "the scheme \"http\" is not" << 0;
    QTest::newRow("not found") << "" << QByteArray("/missing") << ".*" << 1;
    QTest::newRow("too large") << "maximumBytes=10" << QByteArray("/ok") << "it is larger than 10 bytes" << 1;
    QTest::newRow("silent") << "timeout=50" << QByteArray("/silent") << "it took longer than 50 ms" << 1;
    QTest::newRow("redirected") << "" << QByteArray("/near") << "" << 2;
    QTest::newRow("redirected to another host") << "" << QByteArray("/far") << "the host \"a.example\" is not" << 1;
    QTest::newRow("redirected to a file") << "" << QByteArray("/inside") << "it redirects to the scheme \"file\"" << 1;
    QTest::newRow("redirected for ever") << "" << QByteArray("/round") << "it redirects more than 3 times" << 4;
    QTest::newRow("no picture") << "" << QByteArray("/text") << "it is no picture" << 1;
    QTest::newRow("damaged") << "" << QByteArray("/damaged") << "it is damaged" << 1;
    QTest::newRow("drawing") << "" << QByteArray("/drawing") << "it is a drawing" << 1;
}

void tst_Media::fetching()
{
    QFETCH(QString, setting);
    QFETCH(QByteArray, path);
    QFETCH(QString, fault);
    m_server->serve("/ok", picture());
    m_server->answer("/missing", "\r\n", "404 Not Found");
    m_server->redirect("/near", m_server->url("/ok"));
    m_server->redirect("/far", u"http://a.example/"_s);
    m_server->redirect("/inside", u"file:///etc/hostname"_s);
    m_server->redirect("/round", m_server->url("/round"));
    m_server->serve("/text", "hello");
    m_server->serve("/damaged", picture({64, 64}).left(60));
    m_server->serve("/drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    if (!setting.isEmpty())
        MediaPolicy::instance()->setProperty(setting.section(u'=', 0, 0).toLatin1().constData(),
                                             setting.section(u'=', 1));
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

void tst_Media::decoding_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QSize>("requested");
    QTest::addColumn<QSize>("size");

    const auto data = [](const QByteArray &bytes) {
        return "data:;base64,"_L1 + QString::fromLatin1(bytes.toBase64());
    };
    QTest::newRow("as it is") << data(picture()) << QSize() << QSize(8, 4);
    QTest::newRow("smaller") << data(picture()) << QSize(4, 4) << QSize(4, 2);
    QTest::newRow("never larger") << data(picture()) << QSize(80, 80) << QSize(8, 4);
    QTest::newRow("drawing grows") << u"qrc:/Resources/spinner.svg"_s << QSize(512, 512) << QSize(512, 512);
    QTest::newRow("too many pixels") << data(picture({8192, 2049})) << QSize() << nothing;
    QTest::newRow("missing resource") << u"qrc:/missing.png"_s << QSize() << nothing;
    QTest::newRow("missing file") << u"file:///missing.png"_s << QSize() << nothing;
    QTest::newRow("folder") << u"file:///"_s << QSize() << nothing;
    QTest::newRow("no address") << u"nonsense"_s << QSize() << nothing;
}

void tst_Media::decoding()
{
    QFETCH(QString, source);
    QFETCH(QSize, requested);
    QFETCH(QSize, size);
    if (size == nothing)
        expectOnce(u".*"_s);
    QCOMPARE(shownSize(DynamicSource::url(source, {}).toString(), requested), size);
}

void tst_Media::films()
{
    QFile file(u":/Resources/coverImageSpinner.gif"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_server->serve("/film.gif", file.readAll());
    m_server->serve("/text.gif", "GIF89a");

    KMovieProvider provider;
    QSignalSpy ratio(&provider, &KMovieProvider::aspectRatioChanged);
    provider.fetch({});
    QCOMPARE(provider.stackIndex(), 0);
    provider.fetch(DynamicSource::url(m_server->url("/film.gif"), fallback).toString());
    QTRY_COMPARE(provider.stackIndex(), 1);
    QCOMPARE(provider.aspectRatio(), 1.0);
    QCOMPARE(ratio.count(), 1);
    QTRY_VERIFY(provider.movie()->currentFrameNumber() > 1);
    // Over its end, to the second round.
    QTRY_VERIFY_WITH_TIMEOUT(provider.movie()->currentFrameNumber() == 0, 10'000);

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

void tst_Media::filmItem()
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

    // Where each fill mode paints: columns of the window at half its height.
    const QRgb ground = qRgb(255, 255, 255);
    const auto paintedColumns = [&window, ground](int y) {
        const QImage shot = window.grabWindow();
        int first = shot.width();
        int last = -1;
        for (int x = 0; x < shot.width(); ++x) {
            if (shot.pixel(x, y) != ground) {
                first = qMin(first, x);
                last = x;
            }
        }
        return last - first + 1;
    };
    struct
    {
        int mode;
        int minimum;
        int maximum;
    } const rows[] = {{0, 60, 100}, {1, 30, 50}, {2, 60, 100}, {6, 15, 27}};
    for (const auto &row : rows) {
        item->setFillMode(row.mode);
        int widest = 0;
        for (int y = 0; y < 50; ++y)
            widest = qMax(widest, paintedColumns(y));
        QVERIFY2(widest >= row.minimum && widest <= row.maximum, qPrintable(u"%1: %2"_s.arg(row.mode).arg(widest)));
    }
    provider.fetch({}); // the film is gone
    QVERIFY(!item->movie());
    int widest = 0;
    for (int y = 0; y < 50; ++y)
        widest = qMax(widest, paintedColumns(y));
    QVERIFY(widest <= 0);
}

void tst_Media::underWay()
{
    m_server->m_answers.clear(); // silence
    auto film = std::make_unique<KMovieProvider>();
    film->fetch(m_server->url("/film"));
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nImage {}", QUrl());
    std::unique_ptr<QObject> image(component.create());
    image->setProperty("source", DynamicSource::url(m_server->url("/image"), {}));
    QTRY_COMPARE(m_server->m_requests.size(), 2);
    QCOMPARE(m_server->m_closed, 0);
    film.reset();
    image.reset();
    QTRY_COMPARE(m_server->m_closed, 2); // both gave up

    // An engine that goes with a request under way.
    auto engine = std::make_unique<QQmlEngine>();
    engine->addImageProvider(DynamicSource::providerId(), new DynamicImageProvider);
    QQmlComponent other(engine.get());
    other.setData("import QtQuick\nImage {}", QUrl());
    image.reset(other.create());
    image->setProperty("source", DynamicSource::url(m_server->url("/again"), {}));
    QTRY_COMPARE(m_server->m_requests.size(), 3);
    image.reset();
    engine.reset();
    QTRY_COMPARE(m_server->m_closed, 3);
}

QTEST_MAIN(tst_Media)
#include "tst_media.moc"
