#pragma once

#include "KObject.h"

#include <QList>
#include <QPointer>
#include <QQuickItem>
#include <QVariant>

class QTextDocument;

/*!
 * The links of a text item, one of which is the current one: its target, its text and where it is to
 * be seen.
 *
 * A link is a run of text with one target within a paragraph. The positions are those of the current
 * link, or both the same where focus or caret is on none yet; the search for the next link goes on
 * from there.
 */
class UTLinkData : public KObject
{
    Q_OBJECT
    //! Whether the text has a link.
    Q_PROPERTY(bool hasLink READ hasLink NOTIFY hasLinkChanged FINAL)
    //! True when the current link was moved to within the text: no change of focus makes a screen reader speak of it.
    Q_PROPERTY(bool customAnnounce READ customAnnounce NOTIFY customAnnounceChanged FINAL)
    //! For each line of the current link a map of "x", "y", "width" and "height", in the text item's coordinates.
    Q_PROPERTY(QVariantList linkArea READ linkArea NOTIFY linkAreaChanged FINAL)
    //! Target of the current link, empty when there is none. Its signal is the last of a change, and comes as well for
    //! another link with the same target when that is to be announced.
    Q_PROPERTY(QString currentLink READ currentLink NOTIFY currentLinkChanged FINAL)
    //! What is to be read of the current link.
    Q_PROPERTY(QString currentLinkText READ currentLinkText NOTIFY currentLinkTextChanged FINAL)
    //! The item with the links, one with a \c textDocument such as a TextEdit; null by default.
    Q_PROPERTY(QQuickItem *textItem READ textItem WRITE setTextItem NOTIFY textItemChanged FINAL)
    //! Where the current link starts in the document, -1 at first.
    Q_PROPERTY(int currentLinkStartPosition READ currentLinkStartPosition NOTIFY currentLinkStartPositionChanged FINAL)
    //! Where it ends; the character there is not its own. -1 at first.
    Q_PROPERTY(int currentLinkEndPosition READ currentLinkEndPosition NOTIFY currentLinkEndPositionChanged FINAL)

public:
    explicit UTLinkData(QObject *parent = nullptr);

    bool hasLink() const { return m_hasLink; }
    bool customAnnounce() const { return m_state.customAnnounce; }
    QVariantList linkArea() const { return m_state.area; }
    QString currentLink() const { return m_state.link.target; }
    QString currentLinkText() const { return m_state.link.text; }
    QQuickItem *textItem() const { return m_textItem; }
    int currentLinkStartPosition() const { return m_state.start; }
    int currentLinkEndPosition() const { return m_state.end; }

    void setTextItem(QQuickItem *item);

    //! Moves on to the next link, or back to the one before. False, and nothing changes, when there is none: then the
    //! focus is to leave the text.
    Q_INVOKABLE bool handleLinkFocus(bool forward);
    //! To be called when the item gets the focus. \a focusLink says that a link is focused, not the text as a whole; a
    //! Tab key that is to move there follows by itself.
    Q_INVOKABLE void handleFocusInOut(Qt::FocusReason focusReason, bool focusLink);
    //! To be called when the item's width has changed.
    Q_INVOKABLE void onSizeChanged();
    //! Opens \a url, whose scheme may be missing, with the desktop's program for it. Returns whether there is one.
    Q_INVOKABLE bool openUrl(const QString &url);
    //! To be called when the caret has moved: the link there becomes the current one.
    Q_INVOKABLE void setCursorPosition(int position);
    //! To be called when the text has changed. The current link stays the current one if it is still there.
    Q_INVOKABLE void updateLinkInfoList();

Q_SIGNALS:
    void hasLinkChanged();
    void customAnnounceChanged();
    void linkAreaChanged();
    void currentLinkChanged();
    void currentLinkTextChanged();
    void textItemChanged();
    void currentLinkStartPositionChanged();
    void currentLinkEndPositionChanged();

private:
    //! Of no link, the target is empty.
    struct Link
    {
        int start = -1;
        int end = -1;
        QString target;
        QString text;
        bool operator==(const Link &other) const = default;
    };
    struct State
    {
        Link link;
        int start = -1;
        int end = -1;
        bool customAnnounce = false;
        QVariantList area;
    };

    QTextDocument *document() const;
    int endOfText() const;
    Link linkAt(int position) const;
    Link linkFrom(int position) const;
    Link linkBefore(int position) const;
    Link sameLinkAs(const Link &link) const;
    QVariantList areaOf(int start, int end) const;
    QPointF originOfDocument(int position, QPointF pointInDocument) const;
    void enter(const Link &link, bool customAnnounce = false);
    void stayAt(int position, const Link &link);
    void setState(State state, bool isAnnounced = false);

    QPointer<QQuickItem> m_textItem;
    QList<Link> m_links; // in the order of the text
    State m_state;
    bool m_hasLink = false;
    bool m_isAnnouncedByFocus = false;
};
