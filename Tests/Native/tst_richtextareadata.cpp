#include "NativeTest.h"
#include "UIToolKitUtils.h"
#include "UTRichTextAreaData.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QQuickTextDocument>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
import QtQuick.Controls.Basic
import RichTextTest
Window {
    width: 400; height: 300
    TextArea {
        id: area
        objectName: "area"
        anchors.fill: parent
        focus: true
        textFormat: TextEdit.RichText
        wrapMode: TextEdit.Wrap
        persistentSelection: true
        function paste() { UTRichTextAreaData.pasteText() }
        UTRichTextAreaData.textArea: area
        UTRichTextAreaData.textDocument: area.textDocument
        UTRichTextAreaData.cursorPosition: area.cursorPosition
        UTRichTextAreaData.selectionStart: area.selectionStart
        UTRichTextAreaData.selectionEnd: area.selectionEnd
        UTRichTextAreaData.linkColor: "#00ff00"
    }
}
)";

const QString separator = u" | "_s; // between two steps

const QSet<int> supportedCharProperties = {
    QTextFormat::FontWeight,         QTextFormat::FontItalic,   QTextFormat::FontUnderline,
    QTextFormat::TextUnderlineStyle, QTextFormat::IsAnchor,     QTextFormat::AnchorHref,
    QTextFormat::ForegroundBrush,    QTextFormat::UserProperty, QTextFormat::FontPointSize,
};

} // namespace

//! Drives the compose area as a user does. What is done is written as steps, see performStep().
class tst_RichTextAreaData : public SceneTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qmlRegisterUncreatableType<UTRichTextAreaData>("RichTextTest", 1, 0, "UTRichTextAreaData", u"attached"_s);
    }

    void init() override
    {
        // Qt's own, when something is redone that put less in place of a selection.
        QTest::failOnWarning(QRegularExpression(u"^(?!QTextCursor::setPosition: Position '\\d+' out of range$)"_s));
        open(sceneSource);
        m_area = item("area");
        m_data = m_area->findChild<UTRichTextAreaData *>();
        QVERIFY(m_data && m_data->textDocument());
    }

    void edits_data()
    {
        const Table<QString, QString> row{"steps", "expected"};
        row("plain", "type ab | key Return | type c", "<p>ab</p><p>c</p>");
        row("line separator", "type a | key Shift+Return | type b", "<p>a<br/>b</p>");
        row("pending bold and italic", "key Ctrl+B | key Ctrl+I | type x", "<p><b><i>x</i></b></p>");
        row("pending keeps the rest", "key Ctrl+I | type a  | key Ctrl+B | type b", "<p><i>a </i><b><i>b</i></b></p>");
        row("pending off again", "type a  | key Ctrl+B | key Ctrl+B | type b", "<p>a b</p>");
        row("pending new paragraph", "key Ctrl+B | key Return | type b", "<p></p><p><b>b</b></p>");
        row("underline once more", "type a  | key Ctrl+U | type b | key Ctrl+U | type c  | key Ctrl+U | type d",
            "<p>a bc <u>d</u></p>");
        row("word at the caret", "type one two | caret 1 | key Ctrl+B", "<p><b>one</b> two</p>");
        row("selection", "type one two | select 2,5 | key Ctrl+U", "<p>on<u>e t</u>wo</p>");
        row("composed text", "type a  | key Ctrl+B | compose \u00e9\U0001F600", "<p>a <b>\u00e9\U0001F600</b></p>");
        row("composed anew", "type ab | key Return | key Ctrl+B | compose x,1", "<p>ab<b>x</b></p>");
        row("composed in the middle", "type ab | caret 1 | compose \u05d0", "<p>a\u05d0b</p>");
        row("unescaped", "type 1<2", "<p>1<2</p>");
        row("only blanks", "type  ", "<p> </p>");
        row("empty", "", "");
        row("no-break and zero-width", "text a\u00a0b\u200bc", "<p>a bc</p>");

        row("link", "link two,example.org", "<p><a href=\"https://example.org\" target=\"_blank\"><u>two</u></a></p>");
        row("link ends", "link l,x.y | type z",
            "<p><a href=\"https://x.y\" target=\"_blank\"><u>l</u></a><u>z</u></p>");
        row("link replaces", "type one two | select 0,3 | link 1,a@b.org",
            "<p><a href=\"mailto:a@b.org\" target=\"_blank\"><u>1</u></a> two</p>");
        row("mention", u"html <a href='%1'>me</a>!"_s.arg(UIToolKitUtils::mentionLink()), "<p><b>me</b>!</p>");

        row("headings", "html <h2>a</h2><h4>b</h4>c", "<h2><b>a</b></h2><p><b>b</b></p><p>c</p>");
        row("heading over blocks", "text a\nb\nc | select 1,3 | heading 3,1",
            "<h3><b>a</b></h3><h3><b>b</b></h3><p>c</p>");
        row("typed into a heading", "heading 2,1 | type ab", "<h2><b>ab</b></h2>");
        row("typed into a heading later", "heading 2,1 | key Return | caret 0 | type ab",
            "<h2><b>ab</b></h2><h2></h2>");

        row("numbers become bullets", "html <ol><li>a<li><i>b</i></ol>c",
            "<ul><li><p>a</p></li><li><p><i>b</i></p></li></ul><p>c</p>");
        row("bullets", "bullets | type a | key Return | type b", "<ul><li><p>a</p></li><li><p>b</p></li></ul>");
        row("lost bullet comes back", "bullets | type a | key Return | key Backspace | type b",
            "<ul><li><p>a</p></li><li><p>b</p></li></ul>");

        row("one undo for both", "type abcd | select 1,3 | html <b>x</b> | undo", "<p>abcd</p>");
        row("paste text with pending format", "key Ctrl+B | text x\r\ny", "<p><b>x</b></p><p><b>y</b></p>");
        row("replace", "type abc | caret 0 | replace <p>x</p><p></p><p>y</p>", "<p>x</p><p></p><p>y</p>");
        row("replace by nothing", "type abc | caret 0 | replace  | type d", "<p>d</p>");
        row("undo takes the selection", "text ab\ncd | select 0,4 | heading 2,1 | undo | text x",
            "<p>ab</p><p>cxd</p>");
        row("caret at the end of everything", "type ab | caret 0 | key Ctrl+A | key Right | text c", "<p>abc</p>");
        row("pending in one undo", "type a  | key Ctrl+B | type xy | undo", "<p>a </p>");
        row("lost bullet in one undo", "bullets | type a | key Home | key Backspace | type b | undo", "<p>a</p>");
        row("pictures go alone", "text a | picture | sanitise", "<p>a</p>");
        row("sanitise", "html <h1>a</h1><ul><li>b</ul> | sanitise", "<h1><b>a</b></h1><ul><li><p>b</p></li></ul>");
        row("right to left", "html <p dir=rtl><b>\u05e9\u05dc\u05d5\u05dd</b> ab</p>",
            "<p><b>\u05e9\u05dc\u05d5\u05dd</b> ab</p>");
    }

    void edits()
    {
        QFETCH(QString, steps);
        perform(steps);
        QTEST(html(), "expected");
        QCOMPARE(unsupported(), QString());
        QCOMPARE(m_area->property("preeditText").toString(), QString());
    }

    void state()
    {
        QVERIFY(!m_data->modified());
        perform("html <h2>ab</h2><p><i>c</i><u>d</u></p> | caret 1");
        QVERIFY(m_data->bold() && m_data->heading2() && !m_data->italic());
        perform("caret 4");
        QVERIFY(m_data->italic() && !m_data->bold() && !m_data->heading2() && !m_data->underline());
        perform("caret 5");
        QVERIFY(m_data->underline() && !m_data->italic());

        perform("type x  | key Ctrl+B");
        QVERIFY(m_data->shouldApplyNewFormatting());
        perform("key Left");
        QVERIFY(!m_data->shouldApplyNewFormatting() && m_data->charFormat().isEmpty());
        m_data->setReadOnly(true);
        perform("key Ctrl+B");
        QVERIFY(!m_data->shouldApplyNewFormatting());

        QVERIFY(m_data->modified());
        m_data->setModified(false);
        QVERIFY(!document()->isModified());
        QCOMPARE(document()->indentWidth(), 20.0);
        QCOMPARE(document()->defaultStyleSheet(), u"a { color: #00ff00; text-decoration: none; }"_s);
    }

    void links()
    {
        for (const auto &[link, target] : {std::pair("a.b@c-d.org", "mailto:a.b@c-d.org"),
                                           {"a@b.c", "https://a@b.c"},
                                           {"example.org", "https://example.org"},
                                           {"ftp://x", "ftp://x"},
                                           {"mailto:x", "mailto:x"}}) {
            perform(u"replace  | link one,%1"_s.arg(QLatin1StringView(link)));
            QCOMPARE(m_data->getLinkUnderCursor(), QLatin1StringView(target));
        }
        perform("type  ");
        QCOMPARE(m_data->getLinkUnderCursor(), QString());
        perform("link two,other.org | select 0,3");
        QCOMPARE(m_data->getLinkUnderCursor(), u"mailto:x"_s);
        perform("select 0,7");
        QCOMPARE(m_data->getLinkUnderCursor(), QString());
    }

    void limits()
    {
        m_data->setMaxLength(10);
        perform("type 123456789012 | key Return | key Shift+Return | compose abc | link x,y");
        QCOMPARE(html(), u"<p>1234567890</p>"_s);
        QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText, characterCountExceeded:  1");
        perform("text x");
        QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText, characterCountExceeded:  4");
        perform("select 0,3 | html <b>four</b>");
        QCOMPARE(html(), u"<p>1234567890</p>"_s);
        perform("html <b>abc</b>");
        QCOMPARE(html(), u"<p><b>abc</b>4567890</p>"_s);
        // Not printable ASCII: left to the text area.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, u"\u00e9"_s);
        QCoreApplication::sendEvent(m_area, &press);
        QVERIFY(html().contains(u'\u00e9'));
    }

    void clipboardKinds()
    {
        copy({{u"text/html"_s, "<i>rich</i>"}, {u"text/plain"_s, "plain"}});
        QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(html)");
        QMetaObject::invokeMethod(m_area, "paste");
        QCOMPARE(html(), u"<p><i>rich</i></p>"_s);

        copy({{u"application/x-thing"_s, "x"}});
        QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(other)");
        m_data->pasteText();
        QGuiApplication::clipboard()->clear();
        m_data->pasteText();
        QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(text)");
        perform("text <b>");
        QCOMPARE(html(), u"<p><i>rich<b></i></p>"_s);
    }

    void hostilePastes_data()
    {
        const Table<QString> row{"step"};
        row("nested tables", u"html "_s + u"<table><tr><td>"_s.repeated(25) + u'x');
        row("nested divisions", u"html "_s + u"<div>"_s.repeated(20000) + u'x');
        row("ampersands", u"html "_s + QString(1000000, u'&'));
        row("plain ampersands", u"text "_s + QString(1000000, u'&'));
        row("list", u"html <ul>"_s + u"<li>x"_s.repeated(10000));
        row("changes of format", u"html "_s + u"<b>x</b>y"_s.repeated(10000));
        row("lines into a list", u"text "_s + u"x\n"_s.repeated(20000));
    }

    //! As they are, each would take the text engine half a minute or more.
    void hostilePastes()
    {
        QFETCH(QString, step);
        QElapsedTimer timer;
        timer.start();
        perform(u"bullets | "_s + step);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!html().isEmpty());
        QCOMPARE(unsupported(), QString());
    }

    void headings()
    {
        constexpr qreal topMargins[] = {0, 14, 10, 8};
        constexpr qreal scales[] = {1, 2, 1.5, 1.2};
        QFont font = document()->defaultFont();
        font.setPointSizeF(10);
        document()->setDefaultFont(font);
        perform("html <p>o</p><h1>a</h1><h2>b</h2><h3>c</h3>");
        for (int level = 1; level <= 3; ++level) {
            const QTextBlock block = document()->findBlockByNumber(level);
            QCOMPARE(block.blockFormat().headingLevel(), level);
            QCOMPARE(block.blockFormat().topMargin(), topMargins[level]);
            QCOMPARE(block.blockFormat().bottomMargin(), 6.0);
            QCOMPARE(formatBefore(block.position() + 1).fontPointSize(), 10 * scales[level]);
        }
        perform("select 0,7 | heading 1,0");
        QCOMPARE(formatBefore(3).fontPointSize(), 10.0);
        QCOMPARE(document()->findBlockByNumber(1).blockFormat().topMargin(), 0.0);
        // In pixels it is converted by the screen's resolution.
        font.setPixelSize(20);
        document()->setDefaultFont(font);
        perform("caret 0 | heading 1,1");
        QCOMPARE(formatBefore(1).fontPointSize(), 2 * 20 * 72 / m_window->screen()->logicalDotsPerInch());
    }

    void bulletsAreUndoneWithTheEdit()
    {
        perform("bullets | type a");
        const QString before = html();
        perform("text x\ny");
        QCOMPARE(html(), u"<ul><li><p>ax</p></li><li><p>y</p></li></ul>"_s);
        perform("undo");
        QCOMPARE(html(), before);

        QTextCursor cursor(document());
        cursor.currentList()->remove(cursor.block());
        perform("caret 0");
        QTRY_VERIFY(m_data->bulletListDirty());
        m_data->addBulletPoints();
        QVERIFY(!m_data->bulletListDirty());
        QCOMPARE(html(), before);
    }

    void documentDies()
    {
        // The data object belongs to the text area, and outlives its document by a few steps of the destruction; a text area
        // that is not its own may die any time.
        const auto other = std::make_unique<UTRichTextAreaData>();
        other->setTextArea(m_area);
        other->setTextDocument(m_data->textDocument());
        other->setAutomaticBullets(true);
        other->setSelectionEnd(3);
        perform("type abc");
        m_window.reset();
        QCOMPARE(other->textDocument(), nullptr);
        QCOMPARE(other->textArea(), nullptr);
        other->replaceText(u"x"_s);
        other->addBulletPoints();
        QCoreApplication::processEvents();
        QCOMPARE(other->getStdHtml(), QString());
    }

    void nothingThere()
    {
        UTRichTextAreaData data;
        for (int i = data.metaObject()->methodOffset(); i < data.metaObject()->methodCount(); ++i) {
            const QMetaMethod method = data.metaObject()->method(i);
            if (method.methodType() == QMetaMethod::Slot && method.parameterCount() == 0)
                QVERIFY2(method.invoke(&data), method.methodSignature());
        }
        data.replaceText(u"x"_s);
        data.addLink(u"x"_s, u"y"_s);
        QCOMPARE(data.getLinkUnderCursor(), QString());

        // Positions behind the end: nothing is done, and typed text is the text area's.
        perform("type abc");
        m_data->setSelectionEnd(99);
        m_data->setBold(true);
        m_data->onBoldChanged();
        m_data->onHeading1Changed();
        m_data->addLink(u"x"_s, u"y"_s);
        m_data->pasteText();
        QCOMPARE(html(), u"<p>abc</p>"_s);
        m_data->setShouldApplyNewFormatting(true);
        perform("type d");
        QCOMPARE(html(), u"<p>abcd</p>"_s);
    }

    void anySequence_data()
    {
        const Table<int> row{"seed"};
        const int count = qEnvironmentVariableIntValue("UITOOLKIT_FUZZ_SEQUENCES");
        for (int seed = 1; seed <= (count > 0 ? count : 40); ++seed)
            row(QString::number(seed), seed);
    }

    //! Whatever is done, the document holds only what it may, its export loads as itself, and undo leads to the start.
    void anySequence()
    {
        QFETCH(int, seed);
        const QStringList steps =
            u"type ab c | type x | key Return | key Return | key Shift+Return | key Backspace | key Delete"
            " | key Ctrl+B | key Ctrl+I | key Ctrl+U | heading 1,1 | heading 2,1 | heading 3,0 | link l,x.y"
            " | compose \u05d0e\u0301\U0001F600 | text p\n\nq | text r | undo | redo | sanitise"
            " | html <h2>h</h2><ol><li>i<li><b>j</b></ol> | html <table><td>t<td><img src=x></table>"
            " | html <a href='https://z'>z</a><a href='javascript:y'>y</a><s style='color:red;font-size:40pt'>s</s>"
            " | html <p align=right>m<br>n<p><a href='%1'>me | replace <p>k</p><ul><li><p><i>l</i></p></li></ul>"_s
                .arg(UIToolKitUtils::mentionLink())
                .split(separator);
        QRandomGenerator random(seed);
        if (seed % 2 == 0)
            perform("bullets");
        const QString start = document()->toHtml();
        QStringList done;
        for (int i = 0; i < 25; ++i) {
            if (random.bounded(3) == 0) {
                const auto position = [&] {
                    const int any = random.bounded(document()->characterCount());
                    return document()->characterAt(any).isLowSurrogate() ? any - 1 : any;
                };
                done << (random.bounded(2) ? u"select %1,%2"_s.arg(position()).arg(position())
                                           : u"caret %1"_s.arg(position()));
            } else {
                done << steps.at(random.bounded(int(steps.size())));
            }
            perform(done.constLast());
            QVERIFY2(unsupported().isEmpty(), qPrintable(unsupported() + u" after\n"_s + done.join(u'\n')));
        }

        perform("sanitise");
        m_data->addBulletPoints();
        // HTML has no double blanks, nor any at the edges of a line, and not every change of format can be seen in it.
        const auto simplified = [](QString html) {
            static const QRegularExpression seam(u"<([biu])></\\1>|</([biu])><\\2>"_s);
            static const QRegularExpression linkSeam(u"(</[biu]>)*</a><ahref=\"https://z\"[^>]*>(<[biu]>)*"_s);
            html.remove(u' ');
            while (html.contains(seam))
                html.remove(seam);
            return html.remove(linkSeam);
        };
        const QString exported = html();
        perform(u"replace "_s + exported);
        QVERIFY2(simplified(html()) == simplified(exported),
                 qPrintable(exported + u"\nbecame\n"_s + html() + u"\nafter\n"_s + done.join(u'\n')));

        for (int i = 0; i < 1000 && m_area->property("canUndo").toBool(); ++i)
            perform("undo");
        QVERIFY(!m_area->property("canUndo").toBool());
        QVERIFY2(document()->toHtml() == start,
                 qPrintable(document()->toHtml() + start + u"\nafter\n"_s + done.join(u'\n')));
    }

private:
    void perform(const AnyText &steps)
    {
        for (const QString &step : QString(steps).split(separator, Qt::SkipEmptyParts)) {
            performStep(step);
            QCoreApplication::processEvents();
            m_window->grabWindow(); // draws, which needs a whole layout
        }
    }

    static void copy(const QMap<QString, QByteArray> &formats)
    {
        auto *data = new QMimeData;
        for (auto format = formats.begin(); format != formats.end(); ++format)
            data->setData(format.key(), format.value());
        QGuiApplication::clipboard()->setMimeData(data);
    }

    //! "verb argument"; a comma separates two arguments.
    void performStep(const QString &step)
    {
        const QString verb = step.section(u' ', 0, 0);
        const QString argument = step.section(u' ', 1);
        const auto part = [&](int index) { return argument.section(u',', index, index); };
        if (verb == "type"_L1) {
            for (const QChar c : argument)
                QTest::keyClick(m_window.get(), c.toLatin1());
        } else if (verb == "key"_L1) {
            QTest::keySequence(m_window.get(), QKeySequence(argument));
        } else if (verb == "compose"_L1) {
            QInputMethodEvent preedit(part(0), {});
            QCoreApplication::sendEvent(m_area, &preedit);
            QInputMethodEvent commit;
            commit.setCommitString(part(0), -part(1).toInt(), part(1).toInt());
            QCoreApplication::sendEvent(m_area, &commit);
        } else if (verb == "html"_L1 || verb == "text"_L1) {
            copy({{verb == "html"_L1 ? u"text/html"_s : u"text/plain"_s, argument.toUtf8()}});
            QTest::keySequence(m_window.get(), QKeySequence(QKeySequence::Paste));
        } else if (verb == "select"_L1) {
            QMetaObject::invokeMethod(m_area, "select", Q_ARG(int, part(0).toInt()), Q_ARG(int, part(1).toInt()));
        } else if (verb == "caret"_L1) {
            m_area->setProperty("cursorPosition", argument.toInt());
        } else if (verb == "heading"_L1) {
            m_data->setProperty(qPrintable("heading"_L1 + part(0)), part(1).toInt() == 1);
            QMetaObject::invokeMethod(m_data, qPrintable("onHeading"_L1 + part(0) + "Changed"_L1));
        } else if (verb == "link"_L1) {
            m_data->addLink(part(0), part(1));
        } else if (verb == "replace"_L1) {
            m_data->replaceText(argument);
        } else if (verb == "bullets"_L1) {
            m_data->setAutomaticBullets(true);
        } else if (verb == "picture"_L1) {
            QTextCursor cursor(document());
            cursor.movePosition(QTextCursor::End);
            cursor.insertImage(u"qrc:/Resources/coverImageSpinner.gif"_s);
        } else if (verb == "sanitise"_L1) {
            m_data->removeUnsupportedFormats();
        } else if (verb == "undo"_L1 || verb == "redo"_L1) {
            QMetaObject::invokeMethod(m_area, qPrintable(verb));
        } else {
            QFAIL(qPrintable(u"no step: "_s + step));
        }
    }

    //! What the document holds beyond the formats of the compose area.
    QString unsupported() const
    {
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            if (block.userState() != -1)
                return u"user state of block %1"_s.arg(block.blockNumber());
            if (block.textList() && block.textList()->format().style() != QTextListFormat::ListDisc)
                return u"list style of block %1"_s.arg(block.blockNumber());
            if (block.blockFormat().alignment() & ~Qt::AlignLeft)
                return u"place of block %1"_s.arg(block.blockNumber());
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                if (format.objectType() != QTextFormat::NoObject || it.fragment().text().contains(QChar(0xFFFC)))
                    return u"object in block %1"_s.arg(block.blockNumber());
                const auto properties = format.properties();
                for (auto property = properties.keyBegin(); property != properties.keyEnd(); ++property) {
                    if (!supportedCharProperties.contains(*property) && property.base().value() != false)
                        return u"property %1 of \"%2\""_s.arg(*property, 0, 16).arg(it.fragment().text());
                }
                if (format.isAnchor() && !format.anchorHref().startsWith("https://"_L1)
                    && !format.anchorHref().startsWith("mailto:"_L1))
                    return u"link %1"_s.arg(format.anchorHref());
            }
        }
        return document()->rootFrame()->childFrames().isEmpty() ? QString() : u"frame"_s;
    }

    QString html() const { return m_data->getStdHtml(); }
    QTextDocument *document() const { return m_data->textDocument()->textDocument(); }

    QTextCharFormat formatBefore(int position) const
    {
        QTextCursor cursor(document());
        cursor.setPosition(position);
        return cursor.charFormat();
    }

    QQuickItem *m_area = nullptr;
    UTRichTextAreaData *m_data = nullptr;
};

QTEST_MAIN(tst_RichTextAreaData)
#include "tst_richtextareadata.moc"
