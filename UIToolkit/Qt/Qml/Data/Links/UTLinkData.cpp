#include "UTLinkData.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QMetaMethod>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QUrl>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// What stands for a picture is not read, and a line break in a link separates words.
QString toReadableText(QString text)
{
    text.remove(QChar::ObjectReplacementCharacter);
    text.replace(QChar::LineSeparator, u' ');
    text.replace(QChar::Nbsp, u' ');
    return text;
}

bool isLink(const QTextFormat &format)
{
    return format.isCharFormat() && !format.toCharFormat().anchorHref().isEmpty();
}

QVariantMap toMap(const QRectF &rectangle)
{
    return {{u"x"_s, rectangle.x()},
            {u"y"_s, rectangle.y()},
            {u"width"_s, rectangle.width()},
            {u"height"_s, rectangle.height()}};
}

} // namespace

UTLinkData::UTLinkData(QObject *parent)
    : KObject(parent)
{
}

void UTLinkData::setTextItem(QQuickItem *item)
{
    if (m_textItem == item)
        return;
    if (m_textItem)
        m_textItem->disconnect(this);
    m_textItem = item;
    if (item) {
        connect(item, &QObject::destroyed, this, [this] {
            Q_EMIT textItemChanged();
            updateLinkInfoList();
        });
    }
    Q_EMIT textItemChanged();
    updateLinkInfoList();
}

QTextDocument *UTLinkData::document() const
{
    const QVariant value = m_textItem ? m_textItem->property("textDocument") : QVariant();
    const auto *document = qobject_cast<QQuickTextDocument *>(value.value<QObject *>());
    return document ? document->textDocument() : nullptr;
}

int UTLinkData::endOfText() const
{
    const QTextDocument *text = document();
    return text ? text->characterCount() - 1 : 0;
}

void UTLinkData::updateLinkInfoList()
{
    const QList<Link> oldLinks = std::exchange(m_links, {});
    const QTextDocument *text = document();
    // Most texts never had a link, which their formats tell without a look at every paragraph.
    const QList<QTextFormat> formats = text ? text->allFormats() : QList<QTextFormat>();
    if (std::any_of(formats.begin(), formats.end(), isLink)) {
        for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
            int lastEnd = -1;
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                if (!isLink(fragment.charFormat()))
                    continue;
                const QString target = fragment.charFormat().anchorHref();
                const int end = fragment.position() + fragment.length();
                // A link in several formats, a word of it in bold, is one link.
                if (fragment.position() != lastEnd || m_links.last().target != target)
                    m_links.append({fragment.position(), end, target, {}});
                m_links.last().end = lastEnd = end;
                m_links.last().text += toReadableText(fragment.text());
            }
        }
    }
    const bool hadLink = std::exchange(m_hasLink, !m_links.isEmpty());

    const bool isInLink = m_state.start < m_state.end;
    const Link link = sameLinkAs(m_state.link);
    State state = m_state;
    state.link = link;
    state.start = isInLink && !link.target.isEmpty() ? link.start : std::min(m_state.start, endOfText());
    state.end = isInLink && !link.target.isEmpty() ? link.end : state.start;
    state.area = areaOf(state.start, state.end);
    if (hadLink != m_hasLink)
        Q_EMIT hasLinkChanged();
    setState(state);
}

UTLinkData::Link UTLinkData::linkAt(int position) const
{
    const auto found = std::partition_point(m_links.begin(), m_links.end(),
                                            [position](const Link &link) { return link.end <= position; });
    return found == m_links.end() || found->start > position ? Link() : *found;
}

// The first link that starts at the position or after it.
UTLinkData::Link UTLinkData::linkFrom(int position) const
{
    const auto found = std::partition_point(m_links.begin(), m_links.end(),
                                            [position](const Link &link) { return link.start < position; });
    return found == m_links.end() ? Link() : *found;
}

// The last link that ends at the position or before it.
UTLinkData::Link UTLinkData::linkBefore(int position) const
{
    const auto found = std::partition_point(m_links.begin(), m_links.end(),
                                            [position](const Link &link) { return link.end <= position; });
    return found == m_links.begin() ? Link() : *std::prev(found);
}

// The link itself or, where the text before it has changed, the first that cannot be told from it.
UTLinkData::Link UTLinkData::sameLinkAs(const Link &link) const
{
    const auto looksAlike = [&link](const Link &other) {
        return other.target == link.target && other.text == link.text;
    };
    if (m_links.contains(link))
        return link;
    const auto found = std::find_if(m_links.begin(), m_links.end(), looksAlike);
    return found == m_links.end() ? Link() : *found;
}

bool UTLinkData::handleLinkFocus(bool forward)
{
    const bool isAnywhere = m_state.start >= 0;
    const Link link =
        forward ? linkFrom(std::max(m_state.end, 0)) : linkBefore(isAnywhere ? m_state.start : endOfText());
    if (link.target.isEmpty())
        return false;
    enter(link, !std::exchange(m_isAnnouncedByFocus, false));
    return true;
}

void UTLinkData::handleFocusInOut(Qt::FocusReason focusReason, bool focusLink)
{
    m_state.customAnnounce = false;
    m_state.area.clear();
    Q_EMIT customAnnounceChanged();
    Q_EMIT linkAreaChanged();

    // The Tab or Backtab that follows moves to the link which the screen reader names as it speaks of the focus. It does
    // not when Tab has focused the text as a whole.
    const bool isTab = focusReason == Qt::TabFocusReason;
    const bool isBacktab = focusReason == Qt::BacktabFocusReason;
    m_isAnnouncedByFocus = isBacktab || (isTab && focusLink);
    const Link first = linkFrom(0);
    if (isBacktab) {
        stayAt(endOfText(), linkBefore(endOfText()));
    } else if (isTab || focusReason == Qt::MouseFocusReason) {
        stayAt(0, first);
    } else {
        // No key follows, so the ring comes back at once where a link is focused.
        const Link same = sameLinkAs(m_state.link);
        const Link &link = same.target.isEmpty() ? first : same;
        if (focusLink && !link.target.isEmpty())
            enter(link);
        else
            stayAt(std::max(link.start, 0), link);
    }
}

void UTLinkData::setCursorPosition(int position)
{
    const Link link = linkAt(position);
    if (link.target.isEmpty())
        stayAt(std::clamp(position, 0, endOfText()), link);
    else
        enter(link);
}

void UTLinkData::onSizeChanged()
{
    State state = m_state;
    state.area = areaOf(state.start, state.end);
    setState(state);
}

bool UTLinkData::openUrl(const QString &url)
{
    return !url.isEmpty() && QDesktopServices::openUrl(QUrl::fromUserInput(url));
}

void UTLinkData::enter(const Link &link, bool customAnnounce)
{
    setState({link, link.start, link.end, customAnnounce, areaOf(link.start, link.end)}, customAnnounce);
}

// Makes \a link the current one without being in it: the next search starts at the position.
void UTLinkData::stayAt(int position, const Link &link)
{
    setState({link, position, position, false, {}});
}

// Signals come when all is in place, and that of the link last; it comes for each link that is to be announced.
void UTLinkData::setState(State state, bool isAnnounced)
{
    const State old = std::exchange(m_state, std::move(state));
    // A copy, for a listener may change the state again.
    const State now = m_state;
    if (old.customAnnounce != now.customAnnounce)
        Q_EMIT customAnnounceChanged();
    if (old.start != now.start)
        Q_EMIT currentLinkStartPositionChanged();
    if (old.end != now.end)
        Q_EMIT currentLinkEndPositionChanged();
    if (old.area != now.area)
        Q_EMIT linkAreaChanged();
    if (old.link.text != now.link.text)
        Q_EMIT currentLinkTextChanged();
    if (isAnnounced || old.link.target != now.link.target)
        Q_EMIT currentLinkChanged();
}

QVariantList UTLinkData::areaOf(int start, int end) const
{
    QVariantList area;
    const QTextDocument *text = document();
    if (!text || start < 0 || end <= start)
        return area;

    QPointF origin;
    for (QTextBlock block = text->findBlock(start); block.isValid() && block.position() < end; block = block.next()) {
        // Lays the block out, if need be.
        const QPointF blockOrigin = text->documentLayout()->blockBoundingRect(block).topLeft();
        const QTextLayout *layout = block.layout();
        for (int i = 0; i < layout->lineCount(); ++i) {
            const QTextLine line = layout->lineAt(i);
            const int lineStart = block.position() + line.textStart();
            const int from = std::max(start, lineStart);
            const int to = std::min(end, lineStart + line.textLength());
            if (from >= to)
                continue;
            const qreal x1 = line.cursorToX(from - block.position());
            const qreal x2 = line.cursorToX(to - block.position());
            if (area.isEmpty())
                origin = originOfDocument(from, blockOrigin + QPointF(x1, line.y()));
            const QRectF rectangle(std::min(x1, x2), line.y(), std::abs(x2 - x1), line.height());
            area.append(toMap(rectangle.translated(blockOrigin + origin)));
        }
    }
    return area;
}

// Where the item puts the document: paddings and alignment move it. Text items tell where a character is.
QPointF UTLinkData::originOfDocument(int position, QPointF pointInDocument) const
{
    const QMetaObject *type = m_textItem->metaObject();
    const QMetaMethod method = type->method(type->indexOfMethod("positionToRectangle(int)"));
    QRectF rectangle;
    if (method.returnMetaType() != QMetaType::fromType<QRectF>()
        || !method.invoke(m_textItem, Qt::DirectConnection, Q_RETURN_ARG(QRectF, rectangle), Q_ARG(int, position)))
        return {};
    return rectangle.topLeft() - pointInDocument;
}
