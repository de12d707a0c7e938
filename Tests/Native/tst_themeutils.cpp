#include <QFile>
#include <QJSEngine>
#include <QRegularExpression>
#include <QtTest>

//! What the theme script reports through the console. A library's console cannot be replaced from QML, and each piece of
//! a report counts, so the script runs in an engine with a console that takes notes.
class tst_ThemeUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void initTestCase();
    void reports_data();
    void reports();

private:
    QJSEngine m_engine;
};

void tst_ThemeUtils::initTestCase()
{
    QFile file(QStringLiteral(UITOOLKIT_SOURCE_DIR "/UIToolkit/Qt/Qml/Components/Scripts/ThemeUtils.js"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString pragma = QStringLiteral(".pragma library");
    QString source = QString::fromUtf8(file.readAll());
    QVERIFY(source.startsWith(pragma));
    source.remove(0, pragma.size());

    const QString setUp = QStringLiteral(R"(
        var noted = [];
        var console = { error: (...pieces) => noted.push(pieces.map(piece => piece === undefined ? "undefined" : piece)) };
        var widget = { enabled: true };
        var good = { isValid: true, name: "good", normal: "red" };
        var bad = { isValid: false, name: "bad" };
        var empty = { isValid: true, name: "empty", normal: "" };
        var none = { isValid: true, name: "none", normal: null };
        function notes(call) {
            noted = [];
            call();
            return JSON.stringify(noted).split(JSON.stringify(widget)).join("W");
        }
    )");
    for (const QString &script : {setUp, source}) {
        const QJSValue result = m_engine.evaluate(script);
        QVERIFY2(!result.isError(), qPrintable(result.toString()));
    }
}

void tst_ThemeUtils::reports_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("expected");

    QTest::newRow("getColor never reports")
        << QStringLiteral("getColor(widget, bad); getColor(null, good); getColor(widget, null); getColor(widget, none)")
        << QStringLiteral("[]");
    QTest::newRow("a good call") << QStringLiteral("getTextFieldColor(widget, good)") << QStringLiteral("[]");
    QTest::newRow("no widget")
        << QStringLiteral("getTextFieldColor(null, good)")
        << QStringLiteral(R"([["getTextFieldColor",": null widget when getting color for colorSet:","good"]])");
    QTest::newRow("no set")
        << QStringLiteral("getTextFieldColor(widget, null)")
        << QStringLiteral(
               R"([["getTextFieldColor",": null colorset for widget:",W],)"
               R"(["getTextFieldColor","unexpected color:","transparent","colorSet.name:","undefined","for widget:",W]])");
    QTest::newRow("invalid set")
        << QStringLiteral("getTextFieldColor(widget, bad)")
        << QStringLiteral(
               R"([["getTextFieldColor",": invalid colorset:","bad","for widget:",W],)"
               R"(["getTextFieldColor","unexpected color:","transparent","colorSet.name:","bad","for widget:",W]])");
    QTest::newRow("empty colour")
        << QStringLiteral("getTextFieldColor(widget, empty)")
        << QStringLiteral(R"([["getTextFieldColor","unexpected color:","","colorSet.name:","empty","for widget:",W]])");
    QTest::newRow("null colour")
        << QStringLiteral("getTextFieldColor(widget, none)")
        << QStringLiteral(
               R"([["getTextFieldColor","unexpected color:",null,"colorSet.name:","none","for widget:",W]])");
}

void tst_ThemeUtils::reports()
{
    QFETCH(QString, call);
    QFETCH(QString, expected);
    const QJSValue result = m_engine.evaluate(QStringLiteral("notes(() => { %1 })").arg(call));
    QVERIFY2(!result.isError(), qPrintable(result.toString()));
    QCOMPARE(result.toString(), expected);
}

QTEST_GUILESS_MAIN(tst_ThemeUtils)
#include "tst_themeutils.moc"
