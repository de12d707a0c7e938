#include "UTDynamicResourceData.h"
#include "UTWatermarkData.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QByteArray &text)
{
    return text.toBase64(QByteArray::Base64UrlEncoding);
}

QString source(const QByteArray &light, const QByteArray &dark = {})
{
    return QString::fromLatin1(
        encoded(QByteArray("https://h/?darkImage=") + encoded(dark) + "&lightImage=" + encoded(light)));
}

} // namespace

class tst_ImageData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }
    void resource_data();
    void resource();
    void watermark_data();
    void watermark();
};

void tst_ImageData::resource_data()
{
    QTest::addColumn<QString>("sourceUrl");
    QTest::addColumn<int>("type"); // -1 for one that is left alone
    QTest::addColumn<bool>("warns");

    QTest::newRow("still") << source("https://h/a.png") << 1 << false;
    QTest::newRow("gif") << source("https://h/a.gif") << 2 << false;
    QTest::newRow("gif anywhere") << source("https://h/a.gif?size=1", "https://h/a.png") << 2 << false;
    QTest::newRow("upper case") << source("https://h/a.GIF") << 1 << false;
    QTest::newRow("characters of the alphabet for URLs") << source("https://h/\xfb\xff\xfe?.gif") << 2 << false;
    QTest::newRow("padding encoded") << QString::fromLatin1(encoded("x:?lightImage=YS5naWY%3D")) << 2 << false;
    QTest::newRow("dark only") << source({}, "https://h/a.gif") << -1 << false;
    QTest::newRow("no variant") << QString::fromLatin1(encoded("https://h/a.gif")) << -1 << false;
    for (const char *prefix : {"data:", "qrc:", "file:"})
        QTest::newRow(prefix) << QString::fromLatin1(prefix) + source("https://h/a.gif") << -1 << false;
    QTest::newRow("prefix in upper case") << u"QRC:/a.gif"_s << -1 << false;
    QTest::newRow("no base64") << u"%%%"_s << -1 << true;
    QTest::newRow("no URL") << QString::fromLatin1(encoded("https://h:port/")) << -1 << true;
    QTest::newRow("empty") << QString() << -1 << false;
}

void tst_ImageData::resource()
{
    QFETCH(QString, sourceUrl);
    QFETCH(int, type);
    QFETCH(bool, warns);
    for (const QByteArray &earlier : {QByteArray("https://h/a.gif"), QByteArray("https://h/a.png"), QByteArray()}) {
        UTDynamicResourceData data;
        data.setSourceUrl(u"qrc:/before"_s);
        QCOMPARE(data.type(), UTDynamicResource::None);
        data.setSourceUrl(source(earlier));
        const int before = data.type();
        if (warns)
            QTest::ignoreMessage(QtWarningMsg, "UTDynamicResourceData unable to parse source uri");
        QSignalSpy spy(&data, &UTDynamicResourceData::typeChanged);
        const bool isSame = data.sourceUrl() == sourceUrl;
        data.setSourceUrl(sourceUrl);
        QCOMPARE(int(data.type()), type < 0 ? before : type);
        QCOMPARE(spy.count(), type < 0 || isSame ? 0 : 1); // also when it is the same as before
    }
}

void tst_ImageData::watermark_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QList<int>>("metrics");

    QTest::newRow("large") << 0 << QList{20, 110, 80, -20};
    QTest::newRow("medium") << 1 << QList{16, 100, 72, -15};
    QTest::newRow("small") << 2 << QList{12, 90, 60, -10};
    QTest::newRow("unknown") << 3 << QList{16, 100, 72, -15};
    QTest::newRow("negative") << -1 << QList{16, 100, 72, -15};
}

void tst_ImageData::watermark()
{
    QFETCH(int, size);
    UTWatermarkData data;
    QSignalSpy spy(&data, &UTWatermarkData::watermarkHeightChanged);
    data.setWatermarkSize(UTWatermarkEnum::WatermarkSize(size));
    const QList<int> metrics{data.fontPointSize(), data.watermarkHeight(), data.watermarkWidth(), data.rotationAngle()};
    QTEST(metrics, "metrics");
    QCOMPARE(spy.count(), metrics[1] == 100 ? 0 : 1);
}

QTEST_GUILESS_MAIN(tst_ImageData)
#include "tst_imagedata.moc"
