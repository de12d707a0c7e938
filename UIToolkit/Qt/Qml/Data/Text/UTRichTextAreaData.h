#pragma once

#include "KObject.h"

#include <QColor>
#include <QPoint>
#include <QPointer>
#include <QQuickTextDocument>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QVariant>

#include <memory>
#include <optional>

class QInputMethodEvent;
class QKeyEvent;
class QMimeData;
class QMouseEvent;

/*!
 * Makes a rich-text TextArea a compose area, as an attached object: bold, italic, underline, three levels of headings,
 * bullets and links, and nothing else that is pasted or loaded.
 *
 * The text area hands over itself, its document and its positions, and forwards the limits and colours. To format, write
 * a flag and then call its slot: the flag alone changes nothing. Operations silently do nothing while the text area or
 * its document is missing or a position lies behind the end of the document.
 *
 * The text area's own paste() would put in what the clipboard holds, whatever it is; a function of its name keeps menus
 * and callers from it, as below. Its insert() and \c text are for text that the application trusts.
 *
 * \qml
 * TextArea {
 *     id: area
 *     function paste(): void { UTRichTextAreaData.pasteText() }
 *     textFormat: TextEdit.RichText
 *     UTRichTextAreaData.textArea: area
 *     UTRichTextAreaData.textDocument: area.textDocument
 *     UTRichTextAreaData.cursorPosition: area.cursorPosition
 *     UTRichTextAreaData.selectionStart: area.selectionStart
 *     UTRichTextAreaData.selectionEnd: area.selectionEnd
 * }
 * \endqml
 */
class UTRichTextAreaData : public KObject
{
    Q_OBJECT
    //! The text area item, whose keys this object sees first.
    Q_PROPERTY(QObject *textArea READ textArea WRITE setTextArea NOTIFY textAreaChanged FINAL)
    Q_PROPERTY(
        QQuickTextDocument *textDocument READ textDocument WRITE setTextDocument NOTIFY textDocumentChanged FINAL)
    //! The caret and the selection of the text area; 0 by default.
    Q_PROPERTY(int cursorPosition READ cursorPosition WRITE setCursorPosition NOTIFY cursorPositionChanged FINAL)
    Q_PROPERTY(int selectionStart READ selectionStart WRITE setSelectionStart NOTIFY selectionStartChanged FINAL)
    Q_PROPERTY(int selectionEnd READ selectionEnd WRITE setSelectionEnd NOTIFY selectionEndChanged FINAL)
    //! The formats at the caret; all false by default.
    Q_PROPERTY(bool bold READ bold WRITE setBold NOTIFY boldChanged FINAL)
    Q_PROPERTY(bool italic READ italic WRITE setItalic NOTIFY italicChanged FINAL)
    Q_PROPERTY(bool underline READ underline WRITE setUnderline NOTIFY underlineChanged FINAL)
    Q_PROPERTY(bool heading1 READ heading1 WRITE setHeading1 NOTIFY heading1Changed FINAL)
    Q_PROPERTY(bool heading2 READ heading2 WRITE setHeading2 NOTIFY heading2Changed FINAL)
    Q_PROPERTY(bool heading3 READ heading3 WRITE setHeading3 NOTIFY heading3Changed FINAL)
    //! Number of characters that typing, pasting and links may fill; 0, the default, and less: any number.
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength NOTIFY maxLengthChanged FINAL)
    //! Keeps every paragraph a bullet item; false by default.
    Q_PROPERTY(
        bool automaticBullets READ automaticBullets WRITE setAutomaticBullets NOTIFY automaticBulletsChanged FINAL)
    //! Some paragraph has lost its bullet; the next edit gives all paragraphs theirs.
    Q_PROPERTY(bool bulletListDirty READ bulletListDirty WRITE setBulletListDirty NOTIFY bulletListDirtyChanged FINAL)
    //! The document's own flag, in both directions.
    Q_PROPERTY(bool modified READ modified WRITE setModified NOTIFY modifiedChanged FINAL)
    //! The next typed text takes charFormat.
    Q_PROPERTY(bool shouldApplyNewFormatting READ shouldApplyNewFormatting WRITE setShouldApplyNewFormatting NOTIFY
                   shouldApplyNewFormattingChanged FINAL)
    //! The caret is at the edge of a link, which typed text must not extend.
    Q_PROPERTY(bool shouldRemoveLinkFormatting READ shouldRemoveLinkFormatting WRITE setShouldRemoveLinkFormatting
                   NOTIFY shouldRemoveLinkFormattingChanged FINAL)
    //! Leaves all keys alone; false by default.
    Q_PROPERTY(bool readOnly READ readOnly WRITE setReadOnly NOTIFY readOnlyChanged FINAL)
    //! Colour of links and mentions; blue by default.
    Q_PROPERTY(QVariant linkColor READ linkColor WRITE setLinkColor NOTIFY linkColorChanged FINAL)
    Q_PROPERTY(QTextCharFormat charFormat READ charFormat WRITE setCharFormat NOTIFY charFormatChanged FINAL)

public:
    explicit UTRichTextAreaData(QObject *parent = nullptr);

    static UTRichTextAreaData *qmlAttachedProperties(QObject *attachee);

    QObject *textArea() const { return m_textArea; }
    QQuickTextDocument *textDocument() const { return m_textDocument; }
    int cursorPosition() const { return m_cursorPosition; }
    int selectionStart() const { return m_selectionStart; }
    int selectionEnd() const { return m_selectionEnd; }
    bool bold() const { return m_bold; }
    bool italic() const { return m_italic; }
    bool underline() const { return m_underline; }
    bool heading1() const { return m_heading1; }
    bool heading2() const { return m_heading2; }
    bool heading3() const { return m_heading3; }
    int maxLength() const { return m_maxLength; }
    bool automaticBullets() const { return m_automaticBullets; }
    bool bulletListDirty() const { return m_bulletListDirty; }
    bool modified() const { return m_modified; }
    bool shouldApplyNewFormatting() const { return m_shouldApplyNewFormatting; }
    bool shouldRemoveLinkFormatting() const { return m_shouldRemoveLinkFormatting; }
    bool readOnly() const { return m_readOnly; }
    QVariant linkColor() const { return m_linkColor; }
    QTextCharFormat charFormat() const { return m_charFormat; }

    void setTextArea(QObject *textArea);
    void setTextDocument(QQuickTextDocument *textDocument);
    void setCursorPosition(int cursorPosition);
    void setSelectionStart(int selectionStart);
    void setSelectionEnd(int selectionEnd);
    void setBold(bool bold);
    void setItalic(bool italic);
    void setUnderline(bool underline);
    void setHeading1(bool heading1);
    void setHeading2(bool heading2);
    void setHeading3(bool heading3);
    void setMaxLength(int maxLength);
    void setAutomaticBullets(bool automaticBullets);
    void setBulletListDirty(bool bulletListDirty);
    void setModified(bool modified);
    void setShouldApplyNewFormatting(bool shouldApplyNewFormatting);
    void setShouldRemoveLinkFormatting(bool shouldRemoveLinkFormatting);
    void setReadOnly(bool readOnly);
    void setLinkColor(const QVariant &linkColor);
    void setCharFormat(const QTextCharFormat &charFormat);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    // Each applies the flag of its name to the selection or to the word at the caret, and to what is typed next.
    void onBoldChanged();
    void onItalicChanged();
    void onUnderlineChanged();
    // Each gives the selected paragraphs its level if its flag is set, and none otherwise.
    void onHeading1Changed();
    void onHeading2Changed();
    void onHeading3Changed();
    //! Brings the whole document down to the supported formats.
    void removeUnsupportedFormats();
    void clearUndoRedoStacks();
    //! Pastes from the clipboard what it has of HTML or else of plain text, or nothing if that is too long.
    void pasteText();
    //! Replaces everything by \a html.
    void replaceText(const QString &html);
    //! With automatic bullets, makes every paragraph a bullet item.
    void addBulletPoints();
    //! Makes the selection a link with the text \a text, or inserts one. A target without a scheme becomes an address of
    //! mail or of the web.
    void addLink(const QString &text, const QString &link);
    //! The target of the link at the caret, or of the only link in the selection; empty if there is none.
    QString getLinkUnderCursor();
    //! What the document holds as HTML; empty for an empty one. Text is not escaped, on purpose.
    QString getStdHtml();
    //! The place of the mouse, a little lower, in the text area's coordinates.
    QPoint getMousePosition();

Q_SIGNALS:
    void textAreaChanged();
    void textDocumentChanged();
    void cursorPositionChanged();
    void selectionStartChanged();
    void selectionEndChanged();
    void boldChanged();
    void italicChanged();
    void underlineChanged();
    void heading1Changed();
    void heading2Changed();
    void heading3Changed();
    void maxLengthChanged();
    void automaticBulletsChanged();
    void bulletListDirtyChanged();
    void modifiedChanged();
    void shouldApplyNewFormattingChanged();
    void shouldRemoveLinkFormattingChanged();
    void readOnlyChanged();
    void linkColorChanged();
    //! Part of the interface and never emitted, on purpose.
    void charFormatChanged();

private Q_SLOTS:
    void onTextAreaChanged();
    void onTextDocumentChanged();
    void onCursorPositionChanged();
    void onSelectionStartChanged();
    void onSelectionEndChanged();
    void onMaxLengthChanged();
    void onAutomaticBulletsChanged();
    void onBulletListDirtyChanged();
    void onModifiedChanged();
    void onShouldApplyNewFormattingChanged();
    void onLinkColorChanged();
    void onDocumentContentsChange(int from, int charsRemoved, int charsAdded);
    void onDocumentContentsChanged();
    void onDocumentCursorPositionChanged(const QTextCursor &cursor);
    void onDocumentModifiedChanged();

private:
    QTextDocument *document() const;
    int documentLength() const;
    QTextCursor makeCursor() const;
    qreal basePointSize() const;
    QColor linkQColor() const { return m_linkColor.value<QColor>(); }

    void layOutUntoldChanges();
    int shownPosition(const char *name) const;
    void compareWithTextArea();
    void followCaret();
    void followTextArea();
    void syncFormattingState();
    void updateLinkBoundaryState();

    void mergeFormat(const QTextCharFormat &format);
    void notePendingProperty(int property, const QVariant &value);
    void setHeadingLevel(int level);

    void maintainBullets(int from, int removed, int added);
    void checkBulletsInRange(int from, int to);
    void applyBulletsInRange(int from, int to);
    void startOver();

    bool handleKey(const QKeyEvent &event);
    bool handleInputMethod(const QInputMethodEvent &event);
    bool handleMouse(const QMouseEvent &event);
    bool insertTypedText(const QString &text, QTextCursor cursor);
    std::optional<QTextCharFormat> formatToInsert(const QTextCursor &cursor) const;
    bool exceedsLimit(qsizetype addedLength) const;

    std::unique_ptr<QTextDocument> scratchDocument() const;
    std::unique_ptr<QTextDocument> sanitized(const QTextDocument &source) const;
    void paste(const QMimeData *data);
    void insertDocument(const QTextDocument &scratch, bool asHtml);
    void insertHtml(const QTextDocument &scratch);

    QPointer<QObject> m_textArea;
    QPointer<QObject> m_watchedArea;
    QPointer<QQuickTextDocument> m_textDocument;
    QPointer<QTextDocument> m_document;
    int m_cursorPosition = 0;
    int m_selectionStart = 0;
    int m_selectionEnd = 0;
    int m_maxLength = 0;
    bool m_bold = false;
    bool m_italic = false;
    bool m_underline = false;
    bool m_heading1 = false;
    bool m_heading2 = false;
    bool m_heading3 = false;
    bool m_automaticBullets = false;
    bool m_bulletListDirty = false;
    bool m_modified = false;
    bool m_shouldApplyNewFormatting = false;
    bool m_shouldRemoveLinkFormatting = false;
    bool m_readOnly = false;
    bool m_isComposing = false;
    bool m_followsTextArea = false;
    bool m_mayHideChanges = false; // the last edit of the document; see layOutUntoldChanges()
    QVariant m_linkColor = QColor(Qt::blue);
    QTextCharFormat m_charFormat;
};

QML_DECLARE_TYPEINFO(UTRichTextAreaData, QML_HAS_ATTACHED_PROPERTIES)
