#include "KIcons.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

const QString sourceDir = QStringLiteral(UITOOLKIT_SOURCE_DIR);

// Where sources name icons: by a property that takes one, or by a literal with the ending of an icon's weight.
const QRegularExpression namingProperty(
    QStringLiteral("\\b(?:svgName|iconName|buttonIcon|leftIcon|rightIcon|(?:left|middle|right)IconName|headerSvgName)"
                   "\\s*:\\s*\"([^\"]+)\""));
const QRegularExpression weightedLiteral(QStringLiteral("\"([a-z][a-z0-9-]*-(?:bold|filled|regular))\""));

QSet<QString> iconsNamedIn(const QString &text)
{
    QSet<QString> names;
    for (const QRegularExpression &pattern : {namingProperty, weightedLiteral}) {
        for (auto matches = pattern.globalMatch(text); matches.hasNext();)
            names.insert(matches.next().captured(1));
    }
    return names;
}

QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int inkOf(const QImage &image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y));
    }
    return ink / 255;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tableIsComplete();
    void interfaceNames_data();
    void interfaceNames();
    void namesInSources();
    void artwork_data();
    void artwork();
    void spinners_data();
    void spinners();
};

void TestIcons::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void TestIcons::tableIsComplete()
{
    const QStringList lines = readAll(sourceDir + QStringLiteral("/Host/Icons/icons.txt")).split(QLatin1Char('\n'));
    QStringList names;
    QSet<QString> drawings;
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QStringList columns = line.simplified().split(QLatin1Char(' '));
        QVERIFY2(columns.size() == 2, qPrintable(line));
        names.append(columns.first());
        drawings.insert(columns.last());
    }
    QVERIFY(names.size() > 100);
    names.sort();
    QCOMPARE(std::adjacent_find(names.cbegin(), names.cend()), names.cend());
    QCOMPARE(KIcons::names(), names);

    for (const QString &name : std::as_const(names)) {
        // At the smallest size in use something must still show, and never a solid block.
        const int ink = inkOf(KIcons::shape(name, {12, 12}));
        QVERIFY2(ink >= 6 && ink <= 125, qPrintable(QStringLiteral("%1: %2 of 144").arg(name).arg(ink)));
    }
    const QStringList own = QDir(sourceDir + QStringLiteral("/Host/Icons")).entryList({QStringLiteral("*.svg")});
    for (const QString &drawing : own)
        QVERIFY2(drawings.contains(drawing), qPrintable(drawing + QStringLiteral(" is in no row")));
}

// The names that the components' interface gives to icons, wherever the sources build or keep them.
void TestIcons::interfaceNames_data()
{
    QTest::addColumn<QString>("name");
    const char *const names[] = {
        "alert-active-filled",
        "alert-bold",
        "alert-muted-bold",
        "arrow-down-bold",
        "arrow-left-bold",
        "arrow-right-bold",
        "arrow-right-regular",
        "arrow-right_12",
        "arrow-up-bold",
        "attachment-bold",
        "cancel-bold",
        "cancel-regular",
        "check-bold",
        "check_16",
        "check_8",
        "copy-bold",
        "delete-bold",
        "dot-divide",
        "download-bold",
        "edit-bold",
        "emoji-happy-bold",
        "favorite-bold",
        "favorite-filled",
        "help-circle-bold",
        "info-circle-filled",
        "link-bold",
        "minus-bold",
        "more-bold",
        "open-in-folder-bold",
        "outgoing-call-legacy-bold",
        "pop-in-bold",
        "pop-out-bold",
        "refresh-bold",
        "settings-bold",
        "settings-filled",
        "warning-badge-filled",
    };
    for (const char *name : names)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestIcons::interfaceNames()
{
    QFETCH(QString, name);
    QVERIFY(!KIcons::shape(name, {16, 16}).isNull());
}

void TestIcons::namesInSources()
{
    const QString sample = QStringLiteral("KSvgIcon { svgName: \"one\" } iconName:\"two\"; "
                                          "f(\"three-bold\", \"four-bold-text\")");
    const QSet<QString> expected{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three-bold")};
    QCOMPARE(iconsNamedIn(sample), expected);

    QStringList unknown;
    const QStringList kinds{QStringLiteral("*.qml"), QStringLiteral("*.js"), QStringLiteral("*.h"),
                            QStringLiteral("*.cpp")};
    for (const char *folder : {"/UIToolkit", "/Gallery"}) {
        QDirIterator files(sourceDir + QLatin1String(folder), kinds, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QSet<QString> named = iconsNamedIn(readAll(path));
            for (const QString &name : named) {
                // In its emoji form a picture's name is that of a file.
                if (KIcons::find(name).isEmpty() && !QFile::exists(QStringLiteral(":/emojis/") + name))
                    unknown.append(QStringLiteral("%1: \"%2\"").arg(path, name));
            }
        }
    }
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QLatin1Char('\n'))));
}

void TestIcons::artwork_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path :
         {":/Resources/spinner.svg", ":/Resources/empty-inbox.svg", ":/Resources/sample-landscape.png",
          ":/Resources/audio-wave-0.svg", ":/Resources/audio-wave-3.svg", ":/emojis/smile.svg", ":/emojis/heart.svg",
          ":/emojis/celebrate.svg"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TestIcons::artwork()
{
    QFETCH(QString, path);
    QImageReader reader(path);
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString())); // Qt reads SVG by a plugin, at times a package apart
    QVERIFY(inkOf(image) > image.width());
}

void TestIcons::spinners_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("edge");
    QTest::newRow("light") << QStringLiteral(":/Resources/coverImageSpinner.gif") << 27;
    QTest::newRow("light, dense") << QStringLiteral(":/Resources/coverImageSpinner@2x.gif") << 54;
    QTest::newRow("dark") << QStringLiteral(":/Resources/coverImageSpinnerDark.gif") << 27;
    QTest::newRow("dark, dense") << QStringLiteral(":/Resources/coverImageSpinnerDark@2x.gif") << 54;
}

void TestIcons::spinners()
{
    QFETCH(QString, path);
    QFETCH(int, edge);
    QImageReader reader(path);
    QCOMPARE(reader.loopCount(), -1); // for ever
    QSet<QByteArray> different;
    int duration = 0;
    for (QImage frame = reader.read(); !frame.isNull(); frame = reader.read()) {
        QCOMPARE(frame.size(), QSize(edge, edge));
        QCOMPARE(qAlpha(frame.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(frame.pixel(edge / 2, edge / 2)), 0);
        const int ink = inkOf(frame);
        QVERIFY2(ink > edge * edge / 8 && ink < edge * edge / 2, qPrintable(QString::number(ink)));
        different.insert(QByteArray(reinterpret_cast<const char *>(frame.constBits()), frame.sizeInBytes()));
        duration += reader.nextImageDelay();
    }
    QVERIFY(different.size() >= 20);
    QVERIFY2(duration > 700 && duration < 1300, qPrintable(QString::number(duration)));
}

QTEST_GUILESS_MAIN(TestIcons)
#include "tst_icons.moc"
