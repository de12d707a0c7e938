#include "KIcons.h"
#include "NativeTest.h"
#include "Sources.h"

#include <QImage>
#include <QImageReader>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Where sources name icons: by a property that takes one, or by a literal with the ending of an icon's weight.
const QRegularExpression
    namingProperty(u"\\b(?:svgName|iconName|buttonIcon|leftIcon|rightIcon|(?:left|middle|right)IconName|headerSvgName)"
                   "\\s*:\\s*\"([^\"]+)\""_s);
const QRegularExpression weightedLiteral(u"\"([a-z][a-z0-9-]*-(?:bold|filled|regular))\""_s);

QStringList iconsNamedIn(const QString &text)
{
    return Sources::captures(namingProperty, text) + Sources::captures(weightedLiteral, text);
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

class TestIcons : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsComplete()
    {
        const QStringList lines = Sources::text(Sources::path("Host/Icons/icons.txt")).split(u'\n');
        QStringList names;
        QSet<QString> drawings;
        for (const QString &line : lines) {
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            const QStringList columns = line.simplified().split(u' ');
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
            QVERIFY2(ink >= 6 && ink <= 125, qPrintable(u"%1: %2 of 144"_s.arg(name).arg(ink)));
        }
        const QStringList own = QDir(Sources::path("Host/Icons")).entryList({u"*.svg"_s});
        for (const QString &drawing : own)
            QVERIFY2(drawings.contains(drawing), qPrintable(drawing + u" is in no row"_s));
    }

    // The names that the components' interface gives to icons, wherever the sources build or keep them.
    void interfaceNames_data()
    {
        const Table<QString> row{"name"};
        const QString names =
            u"alert-active-filled alert-bold alert-muted-bold arrow-down-bold arrow-left-bold arrow-right-bold "
            "arrow-right-regular arrow-right_12 arrow-up-bold attachment-bold cancel-bold cancel-regular check-bold "
            "check_16 check_8 copy-bold delete-bold dot-divide download-bold edit-bold emoji-happy-bold favorite-bold "
            "favorite-filled help-circle-bold info-circle-filled link-bold minus-bold more-bold open-in-folder-bold "
            "outgoing-call-legacy-bold pop-in-bold pop-out-bold refresh-bold settings-bold settings-filled "
            "warning-badge-filled"_s;
        for (const QString &name : names.split(u' '))
            row(name, name);
    }

    void interfaceNames()
    {
        QFETCH(QString, name);
        QVERIFY(!KIcons::shape(name, {16, 16}).isNull());
    }

    void namesInSources()
    {
        const QString sample =
            u"KSvgIcon { svgName: \"one\" } iconName:\"two\"; f(\"three-bold\", \"four-bold-text\")"_s;
        QCOMPARE(iconsNamedIn(sample), QStringList({u"one"_s, u"two"_s, u"three-bold"_s}));
        QStringList unknown;
        Sources::visitAll([&](const QString &path, const QString &text) {
            for (const QString &name : iconsNamedIn(text)) {
                // In its emoji form a picture's name is that of a file.
                if (KIcons::find(name).isEmpty() && !QFile::exists(u":/emojis/"_s + name))
                    unknown.append(u"%1: \"%2\""_s.arg(path, name));
            }
        });
        QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(u'\n')));
    }

    void artwork()
    {
        for (const QString &path :
             {u":/Resources/spinner.svg"_s, u":/Resources/empty-inbox.svg"_s, u":/Resources/sample-landscape.png"_s,
              u":/Resources/audio-wave-0.svg"_s, u":/Resources/audio-wave-3.svg"_s, u":/emojis/smile.svg"_s,
              u":/emojis/heart.svg"_s, u":/emojis/celebrate.svg"_s}) {
            QImageReader reader(path);
            const QImage image = reader.read();
            // Qt reads SVG by a plugin, at times a package apart.
            QVERIFY2(!image.isNull(), qPrintable(path + u": "_s + reader.errorString()));
            QVERIFY2(inkOf(image) > image.width(), qPrintable(path));
        }
    }

    void spinners_data()
    {
        const Table<QString, int> row{"path", "edge"};
        row("light", ":/Resources/coverImageSpinner.gif", 27);
        row("light, dense", ":/Resources/coverImageSpinner@2x.gif", 54);
        row("dark", ":/Resources/coverImageSpinnerDark.gif", 27);
        row("dark, dense", ":/Resources/coverImageSpinnerDark@2x.gif", 54);
    }

    void spinners()
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
};

QTEST_GUILESS_MAIN(TestIcons)
#include "tst_icons.moc"
