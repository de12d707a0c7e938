#include "NativeTest.h"
#include "Sources.h"

#include <QJSEngine>

using namespace Qt::StringLiterals;

//! What the theme script reports through the console. A library's console cannot be replaced from QML, and each piece of
//! a report counts, so the script runs in an engine with a console that takes notes.
class tst_ThemeUtils : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString pragma = u".pragma library"_s;
        QString source = Sources::text(Sources::path("UIToolkit/Qt/Qml/Components/Scripts/ThemeUtils.js"));
        QVERIFY(source.startsWith(pragma));
        source.remove(0, pragma.size());

        const QString setUp = uR"(
            var noted = [];
            var console = { error: (...pieces) => noted.push(pieces) };
            var widget = { enabled: true };
            var good = { isValid: true, name: 'good', normal: 'red' };
            var bad = { isValid: false, name: 'bad' };
            var empty = { isValid: true, name: 'empty', normal: '' };
            var none = { isValid: true, name: 'none', normal: null };
            function notes(call) {
                noted = [];
                call();
                return noted.map(pieces => pieces.map(piece => piece === widget ? 'W' : String(piece)).join('|')).join('\n');
            })"_s;
        for (const QString &script : {setUp, source}) {
            const QJSValue result = m_engine.evaluate(script);
            QVERIFY2(!result.isError(), qPrintable(result.toString()));
        }
    }

    void reports_data()
    {
        const Table<QString, QString> row{"call", "expected"};
        row("getColor never reports",
            "getColor(widget, bad); getColor(null, good); getColor(widget, null); getColor(widget, none)", "");
        row("a good call", "getTextFieldColor(widget, good)", "");
        row("no widget", "getTextFieldColor(null, good)",
            "getTextFieldColor|: null widget when getting color for colorSet:|good");
        row("no set", "getTextFieldColor(widget, null)",
            "getTextFieldColor|: null colorset for widget:|W\n"
            "getTextFieldColor|unexpected color:|transparent|colorSet.name:|undefined|for widget:|W");
        row("invalid set", "getTextFieldColor(widget, bad)",
            "getTextFieldColor|: invalid colorset:|bad|for widget:|W\n"
            "getTextFieldColor|unexpected color:|transparent|colorSet.name:|bad|for widget:|W");
        row("empty colour", "getTextFieldColor(widget, empty)",
            "getTextFieldColor|unexpected color:||colorSet.name:|empty|for widget:|W");
        row("null colour", "getTextFieldColor(widget, none)",
            "getTextFieldColor|unexpected color:|null|colorSet.name:|none|for widget:|W");
    }

    void reports()
    {
        QFETCH(QString, call);
        QFETCH(QString, expected);
        const QJSValue result = m_engine.evaluate(u"notes(() => { %1 })"_s.arg(call));
        QVERIFY2(!result.isError(), qPrintable(result.toString()));
        QCOMPARE(result.toString(), expected);
    }

private:
    QJSEngine m_engine;
};

QTEST_GUILESS_MAIN(tst_ThemeUtils)
#include "tst_themeutils.moc"
