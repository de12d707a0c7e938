#include "UTRichTextAreaData.h"

#include "RichTextBullets.h"
#include "RichTextExporter.h"
#include "RichTextFormat.h"
#include "RichTextInput.h"
#include "RichTextSanitizer.h"
#include "TextRunGuard.h"
#include "UntrustedHtml.h"

#include <UIToolKitUtils.h>

#include <QClipboard>
#include <QCursor>
#include <QDebug>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QStringBuilder>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextLayout>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal indentWidth = 20;
constexpr qreal pointsPerInch = 72;
constexpr QPoint belowPointer{0, 10};

// Paragraphs of text that may join a list. The text engine's time grows with the square of a list's length.
constexpr int longestList = 1000;

QString normaliseLink(const QString &link)
{
    constexpr auto mailScheme = "mailto:"_L1;
    if (link.contains("://"_L1) || link.startsWith(mailScheme))
        return link;
    static const QRegularExpression mailAddress(u"^[A-Za-z0-9._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,}$"_s);
    return (mailAddress.match(link).hasMatch() ? mailScheme : "https://"_L1) % link;
}

bool isLaidOut(const QTextBlock &block)
{
    const QTextLayout *layout = block.layout();
    if (layout->lineCount() == 0)
        return false;
    const QTextLine lastLine = layout->lineAt(layout->lineCount() - 1);
    return lastLine.textStart() + lastLine.textLength() >= block.length() - 1;
}

} // namespace

UTRichTextAreaData::UTRichTextAreaData(QObject *parent)
    : KObject(parent)
{
    using Self = UTRichTextAreaData;
    connect(this, &Self::textAreaChanged, this, &Self::onTextAreaChanged);
    connect(this, &Self::textDocumentChanged, this, &Self::onTextDocumentChanged);
    connect(this, &Self::cursorPositionChanged, this, &Self::onCursorPositionChanged);
    connect(this, &Self::selectionStartChanged, this, &Self::onSelectionStartChanged);
    connect(this, &Self::selectionEndChanged, this, &Self::onSelectionEndChanged);
    connect(this, &Self::maxLengthChanged, this, &Self::onMaxLengthChanged);
    connect(this, &Self::automaticBulletsChanged, this, &Self::onAutomaticBulletsChanged);
    connect(this, &Self::bulletListDirtyChanged, this, &Self::onBulletListDirtyChanged);
    connect(this, &Self::modifiedChanged, this, &Self::onModifiedChanged);
    connect(this, &Self::shouldApplyNewFormattingChanged, this, &Self::onShouldApplyNewFormattingChanged);
    connect(this, &Self::linkColorChanged, this, &Self::onLinkColorChanged);
}

UTRichTextAreaData *UTRichTextAreaData::qmlAttachedProperties(QObject *attachee)
{
    return new UTRichTextAreaData(attachee);
}

// Properties -------------------------------------------------------------------------------------------

void UTRichTextAreaData::setTextArea(QObject *textArea)
{
    set(m_textArea, QPointer<QObject>(textArea), &UTRichTextAreaData::textAreaChanged);
}

void UTRichTextAreaData::setTextDocument(QQuickTextDocument *textDocument)
{
    set(m_textDocument, QPointer<QQuickTextDocument>(textDocument), &UTRichTextAreaData::textDocumentChanged);
}

void UTRichTextAreaData::setCursorPosition(int cursorPosition)
{
    set(m_cursorPosition, cursorPosition, &UTRichTextAreaData::cursorPositionChanged);
}

void UTRichTextAreaData::setSelectionStart(int selectionStart)
{
    set(m_selectionStart, selectionStart, &UTRichTextAreaData::selectionStartChanged);
}

void UTRichTextAreaData::setSelectionEnd(int selectionEnd)
{
    set(m_selectionEnd, selectionEnd, &UTRichTextAreaData::selectionEndChanged);
}

void UTRichTextAreaData::setBold(bool bold)
{
    set(m_bold, bold, &UTRichTextAreaData::boldChanged);
}

void UTRichTextAreaData::setItalic(bool italic)
{
    set(m_italic, italic, &UTRichTextAreaData::italicChanged);
}

void UTRichTextAreaData::setUnderline(bool underline)
{
    set(m_underline, underline, &UTRichTextAreaData::underlineChanged);
}

void UTRichTextAreaData::setHeading1(bool heading1)
{
    set(m_heading1, heading1, &UTRichTextAreaData::heading1Changed);
}

void UTRichTextAreaData::setHeading2(bool heading2)
{
    set(m_heading2, heading2, &UTRichTextAreaData::heading2Changed);
}

void UTRichTextAreaData::setHeading3(bool heading3)
{
    set(m_heading3, heading3, &UTRichTextAreaData::heading3Changed);
}

void UTRichTextAreaData::setMaxLength(int maxLength)
{
    set(m_maxLength, maxLength, &UTRichTextAreaData::maxLengthChanged);
}

void UTRichTextAreaData::setAutomaticBullets(bool automaticBullets)
{
    set(m_automaticBullets, automaticBullets, &UTRichTextAreaData::automaticBulletsChanged);
}

void UTRichTextAreaData::setBulletListDirty(bool bulletListDirty)
{
    set(m_bulletListDirty, bulletListDirty, &UTRichTextAreaData::bulletListDirtyChanged);
}

void UTRichTextAreaData::setModified(bool modified)
{
    set(m_modified, modified, &UTRichTextAreaData::modifiedChanged);
}

void UTRichTextAreaData::setShouldApplyNewFormatting(bool shouldApplyNewFormatting)
{
    set(m_shouldApplyNewFormatting, shouldApplyNewFormatting, &UTRichTextAreaData::shouldApplyNewFormattingChanged);
}

void UTRichTextAreaData::setShouldRemoveLinkFormatting(bool shouldRemoveLinkFormatting)
{
    set(m_shouldRemoveLinkFormatting, shouldRemoveLinkFormatting,
        &UTRichTextAreaData::shouldRemoveLinkFormattingChanged);
}

void UTRichTextAreaData::setReadOnly(bool readOnly)
{
    set(m_readOnly, readOnly, &UTRichTextAreaData::readOnlyChanged);
}

void UTRichTextAreaData::setLinkColor(const QVariant &linkColor)
{
    set(m_linkColor, linkColor, &UTRichTextAreaData::linkColorChanged);
}

void UTRichTextAreaData::setCharFormat(const QTextCharFormat &charFormat)
{
    m_charFormat = charFormat;
}

// The document and its caret ---------------------------------------------------------------------------

QTextDocument *UTRichTextAreaData::document() const
{
    return m_document;
}

int UTRichTextAreaData::documentLength() const
{
    return RichText::length(m_document);
}

QTextCursor UTRichTextAreaData::makeCursor() const
{
    const int length = documentLength();
    const auto isStale = [length](int position) { return position < 0 || position > length; };
    if (!m_document || isStale(m_cursorPosition) || isStale(m_selectionStart) || isStale(m_selectionEnd))
        return {};
    QTextCursor cursor(m_document);
    if (m_selectionStart == m_selectionEnd) {
        cursor.setPosition(m_cursorPosition);
    } else if (m_selectionStart >= m_cursorPosition) {
        cursor.setPosition(m_selectionEnd);
        cursor.setPosition(m_selectionStart, QTextCursor::KeepAnchor);
    } else {
        cursor.setPosition(m_selectionStart);
        cursor.setPosition(m_selectionEnd, QTextCursor::KeepAnchor);
    }
    return cursor;
}

qreal UTRichTextAreaData::basePointSize() const
{
    if (!m_document)
        return 1;
    const QFont font = m_document->defaultFont();
    qreal size = font.pointSizeF();
    if (size < 0) {
        const auto *item = qobject_cast<QQuickItem *>(m_textArea.data());
        const QScreen *screen = item && item->window() ? item->window()->screen() : nullptr;
        if (screen)
            size = font.pixelSize() * pointsPerInch / screen->logicalDotsPerInch();
    }
    return size < 0 ? 1 : size;
}

void UTRichTextAreaData::onTextAreaChanged()
{
    if (m_watchedArea)
        m_watchedArea->removeEventFilter(this);
    m_watchedArea = m_textArea;
    m_followsTextArea = false;
    if (m_textArea)
        m_textArea->installEventFilter(this);
}

void UTRichTextAreaData::onTextDocumentChanged()
{
    using Self = UTRichTextAreaData;
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = m_textDocument ? m_textDocument->textDocument() : nullptr;
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    if (m_textDocument) {
        connect(m_textDocument, &QQuickTextDocument::textDocumentChanged, this, &Self::onTextDocumentChanged,
                Qt::UniqueConnection);
    }
#endif
    if (!m_document)
        return;
    m_document->setIndentWidth(indentWidth);
    connect(m_document, &QTextDocument::contentsChange, this, &Self::onDocumentContentsChange);
    connect(m_document, &QTextDocument::contentsChanged, this, &Self::onDocumentContentsChanged);
    connect(m_document, &QTextDocument::cursorPositionChanged, this, &Self::onDocumentCursorPositionChanged);
    connect(m_document, &QTextDocument::modificationChanged, this, &Self::onDocumentModifiedChanged);
    onLinkColorChanged();
    QTimer::singleShot(0, this, &Self::syncFormattingState);
}

void UTRichTextAreaData::onCursorPositionChanged()
{
    compareWithTextArea();
    setShouldApplyNewFormatting(false);
    syncFormattingState();
    updateLinkBoundaryState();
}

// When many edits are undone in one step Qt can tell a wrong range of what has changed, and its text area crashes as soon
// as it draws a paragraph that is not laid out.
void UTRichTextAreaData::layOutUntoldChanges()
{
    if (!std::exchange(m_mayHideChanges, false) || !m_document)
        return;
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        if (!isLaidOut(block)) {
            m_document->markContentsDirty(block.position(), documentLength() - block.position());
            return;
        }
    }
}

void UTRichTextAreaData::onDocumentContentsChanged()
{
    layOutUntoldChanges();
    // Text that is being composed is shown in the document, but is none of its contents yet.
    if (!std::exchange(m_isComposing, false))
        setShouldApplyNewFormatting(false);
    syncFormattingState();
    updateLinkBoundaryState();
    if (m_followsTextArea)
        QMetaObject::invokeMethod(this, &UTRichTextAreaData::followTextArea, Qt::QueuedConnection);
}

int UTRichTextAreaData::shownPosition(const char *name) const
{
    return m_textArea ? m_textArea->property(name).toInt() : -1;
}

// Whether the positions are those of the text area. Somebody may set them to others, which then are not to be touched.
void UTRichTextAreaData::compareWithTextArea()
{
    m_followsTextArea = shownPosition("cursorPosition") == m_cursorPosition
        && shownPosition("selectionStart") == m_selectionStart && shownPosition("selectionEnd") == m_selectionEnd;
}

// Qt's text area does not tell of all it does. Selecting everything moves its caret.
void UTRichTextAreaData::followCaret()
{
    const bool isSameSelection =
        shownPosition("selectionStart") == m_selectionStart && shownPosition("selectionEnd") == m_selectionEnd;
    if (isSameSelection && (m_followsTextArea || m_selectionStart != m_selectionEnd))
        setCursorPosition(shownPosition("cursorPosition"));
    compareWithTextArea();
}

// And undo moves the caret and takes the selection.
void UTRichTextAreaData::followTextArea()
{
    if (!m_textArea)
        return;
    const int caret = shownPosition("cursorPosition");
    const int start = shownPosition("selectionStart");
    const int end = shownPosition("selectionEnd");
    // It tells of its next selection only if that differs from the last that it told of.
    if (start != m_selectionStart || end != m_selectionEnd)
        QMetaObject::invokeMethod(m_textArea, "select", Q_ARG(int, caret == start ? end : start), Q_ARG(int, caret));
    setSelectionStart(start);
    setSelectionEnd(end);
    setCursorPosition(caret);
}

void UTRichTextAreaData::onSelectionStartChanged()
{
    followCaret();
    syncFormattingState();
}

void UTRichTextAreaData::onSelectionEndChanged()
{
    followCaret();
    syncFormattingState();
}

void UTRichTextAreaData::onDocumentCursorPositionChanged(const QTextCursor &) {}

void UTRichTextAreaData::onModifiedChanged()
{
    if (m_document)
        m_document->setModified(m_modified);
}

void UTRichTextAreaData::onDocumentModifiedChanged()
{
    const auto read = [this] {
        if (m_document)
            setModified(m_document->isModified());
    };
    // A document calls itself modified while it is loaded, and does not always say when that is over.
    if (m_document && m_document->isUndoRedoEnabled())
        read();
    else
        QMetaObject::invokeMethod(this, read, Qt::QueuedConnection);
}

void UTRichTextAreaData::onLinkColorChanged()
{
    if (m_document)
        m_document->setDefaultStyleSheet(u"a { color: %1; text-decoration: none; }"_s.arg(linkQColor().name()));
}

void UTRichTextAreaData::onMaxLengthChanged()
{
    if (m_maxLength <= 0 || !m_document)
        return;
    qDebug() << "UTRichTextAreaData::onMaxLengthChanged, maxLength=" << m_maxLength;
    startOver();
}

void UTRichTextAreaData::clearUndoRedoStacks()
{
    if (m_document)
        m_document->clearUndoRedoStacks();
}

void UTRichTextAreaData::startOver()
{
    clearUndoRedoStacks();
    setModified(false);
}

// Formats ----------------------------------------------------------------------------------------------

void UTRichTextAreaData::syncFormattingState()
{
    const QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    const QTextCharFormat format = cursor.charFormat();
    const int level = cursor.blockFormat().headingLevel();
    setBold(RichText::isBold(format));
    setItalic(format.fontItalic());
    setUnderline(format.fontUnderline());
    setHeading1(level == 1);
    setHeading2(level == 2);
    setHeading3(level == 3);
}

void UTRichTextAreaData::updateLinkBoundaryState()
{
    const QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    if (!cursor.charFormat().isAnchor()) {
        setShouldRemoveLinkFormatting(false);
        return;
    }
    bool isAtEdge = cursor.atBlockStart();
    const QTextBlock block = cursor.block();
    for (auto it = block.begin(); !isAtEdge && !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        isAtEdge = fragment.charFormat().isAnchor()
            && (cursor.position() == fragment.position()
                || cursor.position() == fragment.position() + fragment.length());
    }
    setShouldRemoveLinkFormatting(isAtEdge);
}

void UTRichTextAreaData::onShouldApplyNewFormattingChanged()
{
    qDebug() << "UTRichTextAreaData::onShouldApplyNewFormattingChanged, shouldApply=" << m_shouldApplyNewFormatting;
    if (!m_shouldApplyNewFormatting)
        m_charFormat = QTextCharFormat();
}

void UTRichTextAreaData::notePendingProperty(int property, const QVariant &value)
{
    if (!m_shouldApplyNewFormatting)
        return;
    const QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    const QTextCharFormat format = cursor.charFormat();
    if (format.property(property) == value) {
        setShouldApplyNewFormatting(false);
        return;
    }
    // Nothing else that is in force at the caret may get lost.
    if (m_charFormat.isEmpty())
        m_charFormat = format;
    m_charFormat.setProperty(property, value);
}

void UTRichTextAreaData::mergeFormat(const QTextCharFormat &format)
{
    setShouldApplyNewFormatting(true);
    QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    if (!cursor.hasSelection())
        cursor.select(QTextCursor::WordUnderCursor);
    cursor.mergeCharFormat(format);
}

void UTRichTextAreaData::onBoldChanged()
{
    QTextCharFormat format;
    format.setFontWeight(m_bold ? RichText::boldWeight : RichText::normalWeight);
    mergeFormat(format);
    notePendingProperty(QTextFormat::FontWeight, format.fontWeight());
}

void UTRichTextAreaData::onItalicChanged()
{
    QTextCharFormat format;
    format.setFontItalic(m_italic);
    mergeFormat(format);
    notePendingProperty(QTextFormat::FontItalic, format.fontItalic());
}

void UTRichTextAreaData::onUnderlineChanged()
{
    QTextCharFormat format;
    format.setUnderlineStyle(m_underline ? QTextCharFormat::SingleUnderline : QTextCharFormat::NoUnderline);
    mergeFormat(format);
    // Another property than the one just merged, on purpose.
    notePendingProperty(QTextFormat::FontUnderline, format.fontUnderline());
    m_charFormat.clearProperty(QTextFormat::TextUnderlineStyle); // the caret's would go before it
}

void UTRichTextAreaData::onHeading1Changed()
{
    setHeadingLevel(m_heading1 ? 1 : 0);
}

void UTRichTextAreaData::onHeading2Changed()
{
    setHeadingLevel(m_heading2 ? 2 : 0);
}

void UTRichTextAreaData::onHeading3Changed()
{
    setHeadingLevel(m_heading3 ? 3 : 0);
}

void UTRichTextAreaData::setHeadingLevel(int level)
{
    setHeading1(level == 1);
    setHeading2(level == 2);
    setHeading3(level == 3);
    // Their positions stay the same while only formats change, and the selection as well.
    const int from = m_selectionStart;
    const int to = m_selectionEnd;
    QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    cursor.beginEditBlock();
    const qreal pointSize = basePointSize();
    for (QTextBlock block = RichText::firstBlock(m_document, from); RichText::inRange(block, to); block = block.next())
        RichText::applyHeading(block, level, pointSize);
    cursor.endEditBlock();
    // A text area that is still empty would type in the format that it began with.
    if (cursor.block().length() == 1) {
        setShouldApplyNewFormatting(true);
        m_charFormat = cursor.charFormat();
    }
}

void UTRichTextAreaData::addLink(const QString &text, const QString &link)
{
    if (exceedsLimit(text.size()))
        return;
    QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorHref(normaliseLink(link));
    format.setForeground(linkQColor());
    format.setUnderlineStyle(QTextCharFormat::SingleUnderline);

    int start = cursor.position();
    cursor.beginEditBlock();
    if (cursor.hasSelection()) {
        start = cursor.selectionStart();
        if (cursor.selectedText() != text)
            cursor.insertText(text);
    } else {
        cursor.insertText(text);
    }
    cursor.setPosition(start);
    cursor.setPosition(int(qMin<qsizetype>(start + text.size(), documentLength())), QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
    cursor.endEditBlock();
}

QString UTRichTextAreaData::getLinkUnderCursor()
{
    const QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return {};
    if (!cursor.hasSelection()) {
        const QTextCharFormat format = cursor.charFormat();
        return format.isAnchor() ? format.anchorHref() : QString();
    }
    const QString html = cursor.selection().toHtml();
    if (html.count("<a href="_L1) != 1)
        return {};
    static const QRegularExpression target(u"<a href=\"(.*?)\">"_s);
    return target.match(html).captured(1);
}

// Bullets ----------------------------------------------------------------------------------------------

void UTRichTextAreaData::onDocumentContentsChange(int from, int charsRemoved, int charsAdded)
{
    // Typing one character does not.
    m_mayHideChanges = m_mayHideChanges || charsRemoved != 0 || charsAdded != 1;
    if (!m_automaticBullets)
        return;
    // After the text area has finished its own edit.
    QMetaObject::invokeMethod(
        this, [this, from, charsRemoved, charsAdded] { maintainBullets(from, charsRemoved, charsAdded); },
        Qt::QueuedConnection);
}

void UTRichTextAreaData::maintainBullets(int from, int removed, int added)
{
    const QTextCursor cursor = makeCursor();
    if (!m_automaticBullets || cursor.isNull())
        return;
    // As many characters as before: a change of format.
    if (removed == added && cursor.atBlockStart() && !cursor.hasSelection()) {
        if (!m_bulletListDirty)
            checkBulletsInRange(from, from + added);
        return;
    }
    if (m_bulletListDirty)
        applyBulletsInRange(0, documentLength());
    else if (removed < added)
        applyBulletsInRange(from, from + added);
}

void UTRichTextAreaData::checkBulletsInRange(int from, int to)
{
    if (!RichTextBullets::areWhole(m_document, from, to))
        setBulletListDirty(true);
}

void UTRichTextAreaData::applyBulletsInRange(int from, int to)
{
    if (!m_automaticBullets)
        return;
    if (m_document)
        RichTextBullets::apply(m_document, from, to);
    setBulletListDirty(false);
}

void UTRichTextAreaData::addBulletPoints()
{
    applyBulletsInRange(0, documentLength());
}

void UTRichTextAreaData::onAutomaticBulletsChanged()
{
    if (!m_automaticBullets || !m_document)
        return;
    qDebug() << "UTRichTextAreaData::onAutomaticBulletsChanged, automaticBullets=" << m_automaticBullets;
    applyBulletsInRange(0, documentLength());
    startOver();
}

void UTRichTextAreaData::onBulletListDirtyChanged()
{
    if (m_automaticBullets)
        qDebug() << "UTRichTextAreaData::onBulletListDirtyChanged, bulletListDirty=" << m_bulletListDirty;
}

// Keys and typed text ----------------------------------------------------------------------------------

bool UTRichTextAreaData::eventFilter(QObject *watched, QEvent *event)
{
    bool isHandled = false;
    if (watched == m_textArea && watched) {
        if (event->type() == QEvent::KeyPress)
            isHandled = handleKey(*static_cast<QKeyEvent *>(event));
        else if (event->type() == QEvent::InputMethod)
            isHandled = handleInputMethod(*static_cast<QInputMethodEvent *>(event));
        else if (event->type() == QEvent::MouseButtonRelease)
            isHandled = handleMouse(*static_cast<QMouseEvent *>(event));
    }
    return isHandled || KObject::eventFilter(watched, event);
}

bool UTRichTextAreaData::handleKey(const QKeyEvent &event)
{
    m_isComposing = false;
    if (m_readOnly)
        return false;
    const RichTextInput input = RichTextInput::fromKey(event);
    switch (input.action) {
    case RichTextInput::None:
        return false;
    case RichTextInput::Type:
        return insertTypedText(input.text, makeCursor());
    case RichTextInput::Paste:
        pasteText();
        break;
    case RichTextInput::Bold:
        setBold(!m_bold);
        onBoldChanged();
        break;
    case RichTextInput::Italic:
        setItalic(!m_italic);
        onItalicChanged();
        break;
    case RichTextInput::Underline:
        setUnderline(!m_underline);
        onUnderlineChanged();
        break;
    }
    return true;
}

bool UTRichTextAreaData::handleInputMethod(const QInputMethodEvent &event)
{
    m_isComposing = event.commitString().isEmpty();
    if (m_readOnly || m_isComposing)
        return false;
    QTextCursor cursor = makeCursor();
    if (event.replacementLength() > 0 && !cursor.isNull()) {
        const int start = qBound(0, cursor.position() + event.replacementStart(), documentLength());
        cursor.setPosition(start);
        cursor.setPosition(qMin(start + event.replacementLength(), documentLength()), QTextCursor::KeepAnchor);
    }
    if (!insertTypedText(event.commitString(), cursor))
        return false;
    // The text area has not seen the end of the composition, and would go on showing it.
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    QCoreApplication::sendEvent(m_textArea, &rest);
    m_isComposing = false;
    return true;
}

bool UTRichTextAreaData::handleMouse(const QMouseEvent &event)
{
    // The text area would paste the selection as it is, with whatever is in it.
    if (m_readOnly || event.button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection())
        return false;
    int position = m_cursorPosition;
    QMetaObject::invokeMethod(m_textArea, "positionAt", Q_RETURN_ARG(int, position), Q_ARG(qreal, event.position().x()),
                              Q_ARG(qreal, event.position().y()));
    m_textArea->setProperty("cursorPosition", position);
    paste(QGuiApplication::clipboard()->mimeData(QClipboard::Selection));
    return true;
}

bool UTRichTextAreaData::exceedsLimit(qsizetype addedLength) const
{
    return m_maxLength > 0 && documentLength() + addedLength - (m_selectionEnd - m_selectionStart) > m_maxLength;
}

bool UTRichTextAreaData::insertTypedText(const QString &text, QTextCursor cursor)
{
    if (exceedsLimit(text.size()))
        return true;
    std::optional<QTextCharFormat> format = formatToInsert(cursor);
    // The bullets that come with it are to be undone with it; they cannot join a character that a text area types.
    const bool bringsBullets = m_automaticBullets && m_bulletListDirty && !cursor.isNull();
    if (!format && bringsBullets)
        format = cursor.charFormat();
    if (!format)
        return false;
    // Elsewhere without an edit block, for what is typed next would not join that.
    if (bringsBullets)
        cursor.beginEditBlock();
    cursor.insertText(text, *format);
    if (bringsBullets)
        cursor.endEditBlock();
    return true;
}

std::optional<QTextCharFormat> UTRichTextAreaData::formatToInsert(const QTextCursor &cursor) const
{
    if (!cursor.isNull() && m_shouldRemoveLinkFormatting)
        return RichText::withoutLink(cursor.charFormat());
    if (!cursor.isNull() && m_shouldApplyNewFormatting)
        return m_charFormat;
    return std::nullopt;
}

// Whole documents --------------------------------------------------------------------------------------

std::unique_ptr<QTextDocument> UTRichTextAreaData::scratchDocument() const
{
    auto scratch = std::make_unique<QTextDocument>();
    scratch->setUndoRedoEnabled(false);
    return scratch;
}

std::unique_ptr<QTextDocument> UTRichTextAreaData::sanitized(const QTextDocument &source) const
{
    return RichTextSanitizer::sanitized(source, m_document ? m_document->defaultFont() : QFont(), linkQColor());
}

void UTRichTextAreaData::removeUnsupportedFormats()
{
    if (!m_document)
        return;
    const auto scratch = sanitized(*m_document);
    const int count = scratch->characterCount();
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    RichTextSanitizer::removeSelection(cursor);
    RichTextSanitizer::insert(*scratch, cursor);
    RichText::restoreHeadings(m_document, 0, count - 1, basePointSize());
    cursor.endEditBlock();
    syncFormattingState();
}

void UTRichTextAreaData::pasteText()
{
    paste(QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard));
}

void UTRichTextAreaData::paste(const QMimeData *data)
{
    if (!data)
        return;
    const auto scratch = scratchDocument();
    const bool asHtml = data->hasHtml();
    if (asHtml) {
        qDebug() << "UTRichTextAreaData::pasteText(html)";
        scratch->setHtml(UntrustedHtml::reduced(data->html(), UIToolKitUtils::instance()->linkSchemes()));
    } else if (data->hasText()) {
        qDebug() << "UTRichTextAreaData::pasteText(text)";
        scratch->setPlainText(UntrustedText::guarded(data->text()));
    } else {
        qDebug() << "UTRichTextAreaData::pasteText(other)";
        return;
    }
    const int length = RichText::length(scratch.get());
    if (exceedsLimit(length)) {
        qDebug() << "UTRichTextAreaData::pasteText, characterCountExceeded: " << length;
        return;
    }
    insertDocument(*scratch, asHtml);
}

void UTRichTextAreaData::replaceText(const QString &html)
{
    if (!m_document)
        return;
    const auto scratch = scratchDocument();
    scratch->setHtml(UntrustedHtml::reduced(html, UIToolKitUtils::instance()->linkSchemes()));
    const int length = documentLength();
    m_selectionStart = 0;
    m_selectionEnd = length;
    // A caret that points nowhere is no reason to keep the old text.
    m_cursorPosition = qBound(0, m_cursorPosition, length);
    insertDocument(*scratch, true);
    // A text area without a selection of its own has no change of it to tell.
    if (m_selectionStart == 0 && m_selectionEnd == length) {
        m_cursorPosition = qMin(m_cursorPosition, documentLength());
        m_selectionStart = m_selectionEnd = m_cursorPosition;
    }
}

void UTRichTextAreaData::insertDocument(const QTextDocument &scratch, bool asHtml)
{
    if (asHtml) {
        insertHtml(scratch);
        return;
    }
    QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    // Unlike the plain text of a document, this keeps no-break spaces.
    const QString text = scratch.toRawText();
    QTextCharFormat format = formatToInsert(cursor).value_or(QTextCharFormat());
    if (format.isEmpty()) {
        format = cursor.charFormat();
        format.clearProperty(QTextFormat::ObjectType); // of a picture
    }
    if (scratch.blockCount() > longestList && cursor.currentList())
        RichTextSanitizer::insertOutsideList(text, cursor, format);
    else
        cursor.insertText(text, format);
}

void UTRichTextAreaData::insertHtml(const QTextDocument &scratch)
{
    // The same one throughout: the positions that it is made from follow the text area's only where they are bound.
    QTextCursor cursor = makeCursor();
    if (cursor.isNull())
        return;
    const int start = m_selectionStart;
    const bool isReplacing = m_selectionStart != m_selectionEnd;
    if (isReplacing) {
        cursor.beginEditBlock();
        RichTextSanitizer::removeSelection(cursor);
        cursor.endEditBlock();
    }
    const auto document = sanitized(scratch);
    const int end = start + document->characterCount() - 1;
    // One undo brings back what was removed, too.
    if (isReplacing)
        cursor.joinPreviousEditBlock();
    else
        cursor.beginEditBlock();
    RichTextSanitizer::insert(*document, cursor);
    RichText::restoreHeadings(m_document, start, end, basePointSize());
    cursor.endEditBlock();
}

QString UTRichTextAreaData::getStdHtml()
{
    return RichTextExporter::toStdHtml(m_document);
}

QPoint UTRichTextAreaData::getMousePosition()
{
    const QPoint position = QCursor::pos() + belowPointer;
    const auto *item = qobject_cast<QQuickItem *>(m_document ? m_document->parent() : nullptr);
    if (!item)
        return position;
    const QPointF mapped = item->mapFromGlobal(position);
    return {int(mapped.x()), int(mapped.y())};
}
