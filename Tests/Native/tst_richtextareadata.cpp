#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <memory>

#include "UIToolKitUtils.h"
#include "UTRichTextAreaData.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char sceneSource[] = R"(
import QtQuick
import QtQuick.Controls.Basic
import RichTextTest
Window {
    width: 400; height: 300
    visible: true
    TextArea {
        id: area
        objectName: "area"
        anchors.fill: parent
        focus: true
        textFormat: TextEdit.RichText
        wrapMode: TextEdit.Wrap
        persistentSelection: true
        UTRichTextAreaData.textArea: area
        UTRichTextAreaData.textDocument: area.textDocument
        UTRichTextAreaData.cursorPosition: area.cursorPosition
        UTRichTextAreaData.selectionStart: area.selectionStart
        UTRichTextAreaData.selectionEnd: area.selectionEnd
        UTRichTextAreaData.linkColor: "#00ff00"
    }
}
)";

const QSet<int> supportedCharProperties = {
    QTextFormat::FontWeight,         QTextFormat::FontItalic,   QTextFormat::FontUnderline,
    QTextFormat::TextUnderlineStyle, QTextFormat::IsAnchor,     QTextFormat::AnchorHref,
    QTextFormat::ForegroundBrush,    QTextFormat::UserProperty, QTextFormat::FontPointSize,
};

} // namespace

//! Drives the compose area as a user does. What is done is written as steps: see perform().
class tst_RichTextAreaData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void edits_data();
    void edits();
    void state();
    void links_data();
    void links();
    void limits();
    void clipboardKinds();
    void hostilePastes_data();
    void hostilePastes();
    void headings();
    void bulletsAreUndoneWithTheEdit();
    void documentDies();
    void nothingThere();
    void anySequence_data();
    void anySequence();

private:
    void open();
    void perform(const QStringList &steps);
    void performStep(const QString &step);
    QString unsupported() const;
    QString html() const { return m_data->getStdHtml(); }
    QTextDocument *document() const { return m_data->textDocument()->textDocument(); }
    QTextCharFormat formatBefore(int position) const;

    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_area = nullptr;
    UTRichTextAreaData *m_data = nullptr;
};

void tst_RichTextAreaData::initTestCase()
{
    qmlRegisterUncreatableType<UTRichTextAreaData>("RichTextTest", 1, 0, "UTRichTextAreaData", u"attached"_s);
}

void tst_RichTextAreaData::init()
{
    // Qt's own, when something is redone that put less in place of a selection.
    QTest::failOnWarning(QRegularExpression(u"^(?!QTextCursor::setPosition: Position '\\d+' out of range$)"_s));
    open();
}

void tst_RichTextAreaData::open()
{
    m_window.reset();
    QQmlComponent component(&m_engine);
    component.setData(sceneSource, {});
    m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
    QVERIFY2(m_window, qPrintable(component.errorString()));
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_area = m_window->findChild<QQuickItem *>(u"area"_s);
    m_data = m_area->findChild<UTRichTextAreaData *>();
    QVERIFY(m_data && m_data->textDocument());
}

void tst_RichTextAreaData::perform(const QStringList &steps)
{
    for (const QString &step : steps) {
        performStep(step);
        QCoreApplication::processEvents();
        m_window->grabWindow(); // draws, which needs a whole layout
    }
}

//! "verb argument"; a comma separates two arguments.
void tst_RichTextAreaData::performStep(const QString &step)
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
        QInputMethodEvent preedit(argument, {});
        QCoreApplication::sendEvent(m_area, &preedit);
        QInputMethodEvent commit;
        commit.setCommitString(argument);
        QCoreApplication::sendEvent(m_area, &commit);
    } else if (verb == "html"_L1 || verb == "text"_L1) {
        auto *data = new QMimeData;
        if (verb == "html"_L1)
            data->setHtml(argument);
        else
            data->setText(argument);
        QGuiApplication::clipboard()->setMimeData(data);
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
    } else if (verb == "limit"_L1) {
        m_data->setMaxLength(argument.toInt());
    } else if (verb == "bullets"_L1) {
        m_data->setAutomaticBullets(true);
    } else if (verb == "sanitise"_L1) {
        m_data->removeUnsupportedFormats();
    } else if (verb == "undo"_L1 || verb == "redo"_L1) {
        QMetaObject::invokeMethod(m_area, qPrintable(verb));
    } else {
        QFAIL(qPrintable(u"no step: "_s + step));
    }
}

QTextCharFormat tst_RichTextAreaData::formatBefore(int position) const
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    return cursor.charFormat();
}

//! What the document holds beyond the formats of the compose area.
QString tst_RichTextAreaData::unsupported() const
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

void tst_RichTextAreaData::edits_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QStringList &steps, const QString &expected) {
        QTest::newRow(name) << steps << expected;
    };
    row("plain", {u"type ab"_s, u"key Return"_s, u"type c"_s}, u"<p>ab</p><p>c</p>"_s);
    row("line separator", {u"type a"_s, u"key Shift+Return"_s, u"type b"_s}, u"<p>a<br/>b</p>"_s);
    row("pending bold", {u"type a "_s, u"key Ctrl+B"_s, u"type bc"_s}, u"<p>a <b>bc</b></p>"_s);
    row("pending bold and italic", {u"key Ctrl+B"_s, u"key Ctrl+I"_s, u"type x"_s}, u"<p><b><i>x</i></b></p>"_s);
    row("pending keeps the rest", {u"key Ctrl+I"_s, u"type a "_s, u"key Ctrl+B"_s, u"type b"_s},
        u"<p><i>a </i><b><i>b</i></b></p>"_s);
    row("pending off again", {u"type a "_s, u"key Ctrl+B"_s, u"key Ctrl+B"_s, u"type b"_s}, u"<p>a b</p>"_s);
    row("pending new paragraph", {u"key Ctrl+B"_s, u"key Return"_s, u"type b"_s}, u"<p></p><p><b>b</b></p>"_s);
    row("underline typed", {u"type a "_s, u"key Ctrl+U"_s, u"type b"_s}, u"<p>a <u>b</u></p>"_s);
    row("word at the caret", {u"type one two"_s, u"caret 1"_s, u"key Ctrl+B"_s}, u"<p><b>one</b> two</p>"_s);
    row("selection", {u"type one two"_s, u"select 2,5"_s, u"key Ctrl+U"_s}, u"<p>on<u>e t</u>wo</p>"_s);
    row("composed text", {u"type a "_s, u"key Ctrl+B"_s, u"compose \u00e9\U0001F600"_s},
        u"<p>a <b>\u00e9\U0001F600</b></p>"_s);
    row("composed in the middle", {u"type ab"_s, u"caret 1"_s, u"compose \u05d0"_s}, u"<p>a\u05d0b</p>"_s);
    row("unescaped", {u"type 1<2"_s}, u"<p>1<2</p>"_s);
    row("only blanks", {u"type  "_s}, u"<p> </p>"_s);
    row("empty", {}, QString());
    row("no-break and zero-width", {u"text a\u00a0b\u200bc"_s}, u"<p>a bc</p>"_s);

    row("link", {u"link two,example.org"_s},
        u"<p><a href=\"https://example.org\" target=\"_blank\"><u>two</u></a></p>"_s);
    row("link ends", {u"link l,x.y"_s, u"type z"_s},
        u"<p><a href=\"https://x.y\" target=\"_blank\"><u>l</u></a><u>z</u></p>"_s);
    row("link replaces", {u"type one two"_s, u"select 0,3"_s, u"link 1,a@b.org"_s},
        u"<p><a href=\"mailto:a@b.org\" target=\"_blank\"><u>1</u></a> two</p>"_s);
    row("mention", {u"html <a href='%1'>me</a>!"_s.arg(UIToolKitUtils::mentionLink())}, u"<p><b>me</b>!</p>"_s);

    row("headings", {u"html <h2>a</h2><h4>b</h4>c"_s}, u"<h2><b>a</b></h2><p><b>b</b></p><p>c</p>"_s);
    row("heading set and cleared", {u"type a"_s, u"heading 1,1"_s, u"heading 1,0"_s}, u"<p>a</p>"_s);
    row("heading over blocks", {u"text a\nb\nc"_s, u"select 1,3"_s, u"heading 3,1"_s},
        u"<h3><b>a</b></h3><h3><b>b</b></h3><p>c</p>"_s);
    row("typed into a heading", {u"heading 2,1"_s, u"type ab"_s}, u"<h2><b>ab</b></h2>"_s);

    row("numbers become bullets", {u"html <ol><li>a<li><i>b</i></ol>c"_s},
        u"<ul><li><p>a</p></li><li><p><i>b</i></p></li></ul><p>c</p>"_s);
    row("bullets", {u"bullets"_s, u"type a"_s, u"key Return"_s, u"type b"_s},
        u"<ul><li><p>a</p></li><li><p>b</p></li></ul>"_s);
    row("bullets for pasted text", {u"bullets"_s, u"text a\nb"_s}, u"<ul><li><p>a</p></li><li><p>b</p></li></ul>"_s);
    row("lost bullet comes back", {u"bullets"_s, u"type a"_s, u"key Return"_s, u"key Backspace"_s, u"type b"_s},
        u"<ul><li><p>a</p></li><li><p>b</p></li></ul>"_s);

    row("paste over a selection", {u"type abcd"_s, u"select 1,3"_s, u"html <b>x</b>"_s}, u"<p>a<b>x</b>d</p>"_s);
    row("one undo for both", {u"type abcd"_s, u"select 1,3"_s, u"html <b>x</b>"_s, u"undo"_s}, u"<p>abcd</p>"_s);
    row("paste text with pending format", {u"key Ctrl+B"_s, u"text x\r\ny"_s}, u"<p><b>x</b></p><p><b>y</b></p>"_s);
    row("replace", {u"type abc"_s, u"caret 0"_s, u"replace <p>x</p><p></p><p>y</p>"_s}, u"<p>x</p><p></p><p>y</p>"_s);
    row("replace is undone", {u"type abc"_s, u"replace x"_s, u"undo"_s}, u"<p>abc</p>"_s);
    row("replace by nothing", {u"type abc"_s, u"caret 0"_s, u"replace "_s, u"type d"_s}, u"<p>d</p>"_s);
    row("sanitise", {u"html <h1>a</h1><ul><li>b</ul>"_s, u"sanitise"_s},
        u"<h1><b>a</b></h1><ul><li><p>b</p></li></ul>"_s);
    row("right to left", {u"html <p dir=rtl><b>\u05e9\u05dc\u05d5\u05dd</b> ab</p>"_s},
        u"<p><b>\u05e9\u05dc\u05d5\u05dd</b> ab</p>"_s);
}

void tst_RichTextAreaData::edits()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, expected);
    perform(steps);
    QCOMPARE(html(), expected);
    QCOMPARE(unsupported(), QString());
    QCOMPARE(m_area->property("preeditText").toString(), QString());
}

void tst_RichTextAreaData::state()
{
    perform({u"html <h2>ab</h2><p><i>c</i><u>d</u></p>"_s, u"caret 1"_s});
    QVERIFY(m_data->bold() && m_data->heading2() && !m_data->italic());
    perform({u"caret 4"_s});
    QVERIFY(m_data->italic() && !m_data->bold() && !m_data->heading2() && !m_data->underline());
    perform({u"caret 5"_s});
    QVERIFY(m_data->underline() && !m_data->italic());

    perform({u"type x "_s, u"key Ctrl+B"_s});
    QVERIFY(m_data->shouldApplyNewFormatting());
    perform({u"key Left"_s});
    QVERIFY(!m_data->shouldApplyNewFormatting() && m_data->charFormat().isEmpty());
    m_data->setReadOnly(true);
    perform({u"key Ctrl+B"_s});
    QVERIFY(!m_data->shouldApplyNewFormatting());

    QVERIFY(m_data->modified());
    m_data->setModified(false);
    QVERIFY(!document()->isModified());
    QCOMPARE(document()->indentWidth(), 20.0);
    QCOMPARE(document()->defaultStyleSheet(), u"a { color: #00ff00; text-decoration: none; }"_s);
}

void tst_RichTextAreaData::links_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target");
    QTest::newRow("mail address") << u"a.b@c-d.org"_s << u"mailto:a.b@c-d.org"_s;
    QTest::newRow("one letter") << u"a@b.c"_s << u"https://a@b.c"_s;
    QTest::newRow("domain") << u"example.org"_s << u"https://example.org"_s;
    QTest::newRow("scheme") << u"ftp://x"_s << u"ftp://x"_s;
    QTest::newRow("mail scheme") << u"mailto:x"_s << u"mailto:x"_s;
}

void tst_RichTextAreaData::links()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    m_data->addLink(u"one"_s, link);
    QCOMPARE(m_data->getLinkUnderCursor(), target);
    perform({u"type  "_s});
    QCOMPARE(m_data->getLinkUnderCursor(), QString());
    m_data->addLink(u"two"_s, link + u'2');
    perform({u"select 0,3"_s});
    QCOMPARE(m_data->getLinkUnderCursor(), target);
    perform({u"select 0,7"_s});
    QCOMPARE(m_data->getLinkUnderCursor(), QString());
}

void tst_RichTextAreaData::limits()
{
    perform({u"limit 10"_s, u"type 123456789012"_s, u"key Return"_s, u"key Shift+Return"_s, u"compose abc"_s,
             u"link x,y"_s});
    QCOMPARE(html(), u"<p>1234567890</p>"_s);
    QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText, characterCountExceeded:  1");
    perform({u"text x"_s});
    QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText, characterCountExceeded:  4");
    perform({u"select 0,3"_s, u"html <b>four</b>"_s});
    QCOMPARE(html(), u"<p>1234567890</p>"_s);
    perform({u"html <b>abc</b>"_s});
    QCOMPARE(html(), u"<p><b>abc</b>4567890</p>"_s);
    // Not printable ASCII: left to the text area.
    QTest::keyEvent(QTest::Click, m_window.get(), Qt::Key_Eacute, Qt::NoModifier);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, u"\u00e9"_s);
    QCoreApplication::sendEvent(m_area, &press);
    QVERIFY(html().contains(u'\u00e9'));
}

void tst_RichTextAreaData::clipboardKinds()
{
    auto *both = new QMimeData;
    both->setHtml(u"<i>rich</i>"_s);
    both->setText(u"plain"_s);
    QGuiApplication::clipboard()->setMimeData(both);
    QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(html)");
    m_data->pasteText();
    QCOMPARE(html(), u"<p><i>rich</i></p>"_s);

    auto *other = new QMimeData;
    other->setData(u"application/x-thing"_s, "x");
    QGuiApplication::clipboard()->setMimeData(other);
    QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(other)");
    m_data->pasteText();
    QGuiApplication::clipboard()->clear();
    m_data->pasteText();
    QTest::ignoreMessage(QtDebugMsg, "UTRichTextAreaData::pasteText(text)");
    perform({u"text <b>"_s});
    QCOMPARE(html(), u"<p><i>rich<b></i></p>"_s);
}

void tst_RichTextAreaData::hostilePastes_data()
{
    QTest::addColumn<QString>("step");
    QTest::newRow("nested tables") << u"html "_s + u"<table><tr><td>"_s.repeated(25) + u'x';
    QTest::newRow("nested divisions") << u"html "_s + u"<div>"_s.repeated(20000) + u'x';
    QTest::newRow("ampersands") << u"html "_s + QString(1000000, u'&');
    QTest::newRow("plain ampersands") << u"text "_s + QString(1000000, u'&');
    QTest::newRow("list") << u"html <ul>"_s + u"<li>x"_s.repeated(10000);
    QTest::newRow("changes of format") << u"html "_s + u"<b>x</b>y"_s.repeated(10000);
    QTest::newRow("lines into a list") << u"text "_s + u"x\n"_s.repeated(20000);
}

//! As they are, each would take the text engine half a minute or more.
void tst_RichTextAreaData::hostilePastes()
{
    QFETCH(QString, step);
    QElapsedTimer timer;
    timer.start();
    perform({u"bullets"_s, step});
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!html().isEmpty());
    QCOMPARE(unsupported(), QString());
}

void tst_RichTextAreaData::headings()
{
    const struct
    {
        qreal top, bottom, scale;
    } expected[] = {{0, 0, 1}, {14, 6, 2}, {10, 6, 1.5}, {8, 6, 1.2}};
    QFont font = document()->defaultFont();
    font.setPointSizeF(10);
    document()->setDefaultFont(font);
    perform({u"html <p>o</p><h1>a</h1><h2>b</h2><h3>c</h3>"_s});
    for (int level = 1; level <= 3; ++level) {
        const QTextBlock block = document()->findBlockByNumber(level);
        QCOMPARE(block.blockFormat().headingLevel(), level);
        QCOMPARE(block.blockFormat().topMargin(), expected[level].top);
        QCOMPARE(block.blockFormat().bottomMargin(), expected[level].bottom);
        QCOMPARE(formatBefore(block.position() + 1).fontPointSize(), 10 * expected[level].scale);
    }
    perform({u"select 0,7"_s, u"heading 1,0"_s});
    QCOMPARE(formatBefore(3).fontPointSize(), 10.0);
    QCOMPARE(document()->findBlockByNumber(1).blockFormat().topMargin(), 0.0);
    // In pixels it is converted by the screen's resolution.
    font.setPixelSize(20);
    document()->setDefaultFont(font);
    perform({u"caret 0"_s, u"heading 1,1"_s});
    QCOMPARE(formatBefore(1).fontPointSize(), 2 * 20 * 72 / m_window->screen()->logicalDotsPerInch());
}

void tst_RichTextAreaData::bulletsAreUndoneWithTheEdit()
{
    perform({u"bullets"_s, u"type a"_s});
    const QString before = html();
    perform({u"text x\ny"_s});
    QCOMPARE(html(), u"<ul><li><p>ax</p></li><li><p>y</p></li></ul>"_s);
    perform({u"undo"_s});
    QCOMPARE(html(), before);

    QTextCursor cursor(document());
    cursor.currentList()->remove(cursor.block());
    perform({u"caret 0"_s});
    QTRY_VERIFY(m_data->bulletListDirty());
    m_data->addBulletPoints();
    QVERIFY(!m_data->bulletListDirty());
    QCOMPARE(html(), before);
}

void tst_RichTextAreaData::documentDies()
{
    // The data object belongs to the text area, and outlives its document by a few steps of the destruction; a text area
    // that is not its own may die any time.
    const auto other = std::make_unique<UTRichTextAreaData>();
    other->setTextArea(m_area);
    other->setTextDocument(m_data->textDocument());
    other->setAutomaticBullets(true);
    other->setSelectionEnd(3);
    perform({u"type abc"_s});
    m_window.reset();
    QCOMPARE(other->textDocument(), nullptr);
    QCOMPARE(other->textArea(), nullptr);
    other->replaceText(u"x"_s);
    other->addBulletPoints();
    QCoreApplication::processEvents();
    QCOMPARE(other->getStdHtml(), QString());
}

void tst_RichTextAreaData::nothingThere()
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
    perform({u"type abc"_s});
    m_data->setSelectionEnd(99);
    m_data->setBold(true);
    m_data->onBoldChanged();
    m_data->onHeading1Changed();
    m_data->addLink(u"x"_s, u"y"_s);
    m_data->pasteText();
    QCOMPARE(html(), u"<p>abc</p>"_s);
    m_data->setShouldApplyNewFormatting(true);
    perform({u"type d"_s});
    QCOMPARE(html(), u"<p>abcd</p>"_s);
}

void tst_RichTextAreaData::anySequence_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("bullets");
    const int count = qEnvironmentVariableIntValue("UITOOLKIT_FUZZ_SEQUENCES");
    for (int seed = 1; seed <= (count > 0 ? count : 40); ++seed)
        QTest::addRow("%d", seed) << quint32(seed) << (seed % 2 == 0);
}

//! Whatever is done, the document holds only what it may, its export loads as itself, and undo leads to the start.
void tst_RichTextAreaData::anySequence()
{
    QFETCH(quint32, seed);
    QFETCH(bool, bullets);
    const QStringList steps = {
        u"type ab c"_s,
        u"type x"_s,
        u"key Return"_s,
        u"key Return"_s,
        u"key Shift+Return"_s,
        u"key Backspace"_s,
        u"key Delete"_s,
        u"key Ctrl+B"_s,
        u"key Ctrl+I"_s,
        u"key Ctrl+U"_s,
        u"compose \u05d0e\u0301\U0001F600"_s,
        u"heading 1,1"_s,
        u"heading 2,1"_s,
        u"heading 3,0"_s,
        u"link l,x.y"_s,
        u"text p\n\nq"_s,
        u"text r"_s,
        u"html <h2>h</h2><ol><li>i<li><b>j</b></ol>"_s,
        u"html <table><td>t<td><img src=x></table>"_s,
        u"html <a href='https://z'>z</a><a href='javascript:y'>y</a><s style='color:red;font-size:40pt'>s</s>"_s,
        u"html <p align=right>m<br>n<p><a href='%1'>me"_s.arg(UIToolKitUtils::mentionLink()),
        u"undo"_s,
        u"redo"_s,
        u"replace <p>k</p><ul><li><p><i>l</i></p></li></ul>"_s,
        u"sanitise"_s,
    };
    QRandomGenerator random(seed);
    if (bullets)
        perform({u"bullets"_s});
    const QString start = document()->toHtml();
    QStringList done;
    for (int i = 0; i < 25; ++i) {
        if (random.bounded(3) == 0) {
            const auto position = [&] {
                const int any = random.bounded(document()->characterCount());
                return document()->characterAt(any).isLowSurrogate() ? any - 1 : any;
            };
            const int a = position();
            const int b = position();
            done << (random.bounded(2) ? u"select %1,%2"_s.arg(a).arg(b) : u"caret %1"_s.arg(a));
        } else {
            done << steps.at(random.bounded(int(steps.size())));
        }
        perform({done.constLast()});
        QVERIFY2(unsupported().isEmpty(), qPrintable(unsupported() + u" after\n"_s + done.join(u'\n')));
    }

    perform({u"sanitise"_s});
    m_data->addBulletPoints();
    // HTML has no double blanks, nor any at the edges of a line, and not every change of format can be seen in it.
    const auto simplified = [](QString html) {
        html.remove(u' ');
        for (QLatin1StringView tag : {"u"_L1, "i"_L1, "b"_L1, "i"_L1, "u"_L1})
            html.remove(u"<%1></%1>"_s.arg(tag)).remove(u"</%1><%1>"_s.arg(tag));
        for (QLatin1StringView seam :
             {"</u></i></b><b><i><u>"_L1, "</i></b><b><i>"_L1, "</u></b><b><u>"_L1, "</u></i><i><u>"_L1})
            html.remove(seam);
        static const QRegularExpression linkSeam(u"(</[biu]>)*</a><ahref=\"https://z\"[^>]*>(<[biu]>)*"_s);
        return html.remove(linkSeam);
    };
    const QString exported = html();
    perform({u"replace "_s + exported});
    QVERIFY2(simplified(html()) == simplified(exported),
             qPrintable(exported + u"\nbecame\n"_s + html() + u"\nafter\n"_s + done.join(u'\n')));

    for (int i = 0; i < 1000 && m_area->property("canUndo").toBool(); ++i)
        perform({u"undo"_s});
    QVERIFY(!m_area->property("canUndo").toBool());
    QVERIFY2(document()->toHtml() == start,
             qPrintable(document()->toHtml() + start + u"\nafter\n"_s + done.join(u'\n')));
}

QTEST_MAIN(tst_RichTextAreaData)
#include "tst_richtextareadata.moc"
