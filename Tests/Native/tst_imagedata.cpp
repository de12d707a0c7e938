#include "DataTest.h"
#include "UTDynamicResourceData.h"
#include "UTWatermarkData.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

static QByteArray encoded(const QByteArray &text)
{
    return text.toBase64(QByteArray::Base64UrlEncoding);
}

static QByteArray source(const QByteArray &light, const QByteArray &dark = {})
{
    return encoded("https://h/?darkImage=" + encoded(dark) + "&lightImage=" + encoded(light));
}

class tst_ImageData : public DataTest
{
    Q_OBJECT

private Q_SLOTS:
    void resource_data()
    {
        const Table<QByteArray, int, bool> row{"sourceUrl", "type", "warns"}; // -1 for a type that stays
        row("still", source("https://h/a.png"), 1, false);
        row("gif", source("https://h/a.gif"), 2, false);
        row("gif anywhere", source("https://h/a.gif?size=1", "https://h/a.png"), 2, false);
        row("upper case", source("https://h/a.GIF"), 1, false);
        row("characters of the alphabet for URLs", source("https://h/\xfb\xff\xfe?.gif"), 2, false);
        row("padding encoded", encoded("x:?lightImage=YS5naWY%3D"), 2, false);
        row("dark only", source({}, "https://h/a.gif"), -1, false);
        row("no variant", encoded("https://h/a.gif"), -1, false);
        for (const char *prefix : {"data:", "qrc:", "file:"})
            row(prefix, prefix + source("https://h/a.gif"), -1, false);
        row("prefix in upper case", "QRC:/a.gif", -1, false);
        row("no base64", "%%%", -1, true);
        row("no URL", encoded("https://h:port/"), -1, true);
        row("empty", "", -1, false);
    }

    void resource()
    {
        QFETCH(QByteArray, sourceUrl);
        QFETCH(int, type);
        QFETCH(bool, warns);
        for (const QByteArray &earlier : {QByteArray("https://h/a.gif"), QByteArray("https://h/a.png"), QByteArray()}) {
            UTDynamicResourceData data;
            data.setSourceUrl(u"qrc:/before"_s);
            QCOMPARE(data.type(), UTDynamicResource::None);
            data.setSourceUrl(QString::fromLatin1(source(earlier)));
            const int before = data.type();
            if (warns)
                QTest::ignoreMessage(QtWarningMsg, "UTDynamicResourceData unable to parse source uri");
            QSignalSpy spy(&data, &UTDynamicResourceData::typeChanged);
            const bool isSame = data.sourceUrl().toLatin1() == sourceUrl;
            data.setSourceUrl(QString::fromLatin1(sourceUrl));
            QCOMPARE(int(data.type()), type < 0 ? before : type);
            QCOMPARE(spy.count(), type < 0 || isSame ? 0 : 1); // also when it is the same as before
        }
    }

    void watermark()
    {
        const QVariantList medium = {16, 100, 72, -15};
        const std::pair<int, QVariantList> rows[] = {
            {0, {20, 110, 80, -20}}, {1, medium}, {2, {12, 90, 60, -10}}, {3, medium}, {-1, medium}};
        for (const auto &[size, metrics] : rows) {
            UTWatermarkData data;
            const QSignalSpy spy(&data, &UTWatermarkData::watermarkHeightChanged);
            data.setWatermarkSize(UTWatermarkEnum::WatermarkSize(size));
            QCOMPARE(values(data, "fontPointSize watermarkHeight watermarkWidth rotationAngle"), metrics);
            QCOMPARE(spy.count(), metrics == medium ? 0 : 1);
        }
    }
};

QTEST_MAIN(tst_ImageData)
#include "tst_imagedata.moc"
