#include "UIToolKitUtils.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTextLayout>
#include <QTimer>
#include <QUrl>

#include "Announcer.h"
#include "App.h"
#include "ApplicationObject.h"
#include "PlainText.h"

using namespace Qt::StringLiterals;

namespace {

//! Wider than any line; the text engine cannot count much further.
constexpr qreal unlimitedWidth = 1 << 22;

bool sendKey(QObject *receiver, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QKeyEvent event(type, key, modifiers, text);
    const QPointer<QObject> guard(receiver);
    event.accept();
    QCoreApplication::sendEvent(receiver, &event);
    // The window's root item would move the focus on from itself, not from the receiver.
    auto *item = qobject_cast<QQuickItem *>(guard.data());
    const QQuickItem *root = item && item->window() ? item->window()->contentItem() : nullptr;
    QPointer<QQuickItem> parent = item ? item->parentItem() : nullptr;
    while (!event.isAccepted() && parent && parent != root) {
        event.accept();
        QCoreApplication::sendEvent(parent, &event);
        if (parent)
            parent = parent->parentItem();
    }
    return event.isAccepted();
}

//! What a window does with a Tab that no item takes.
bool moveFocusFrom(QQuickItem *item, int key)
{
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab)
        return false;
    const bool forward = key == Qt::Key_Tab;
    QQuickItem *next = item->nextItemInFocusChain(forward);
    if (!next || next == item)
        return false;
    next->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace

UIToolKitUtils *UIToolKitUtils::instance()
{
    return applicationObject<UIToolKitUtils>();
}

QString UIToolKitUtils::mentionLink()
{
    return u"https://mention.invalid/"_s;
}

UIToolKitUtils::UIToolKitUtils(QObject *parent)
    : QObject(parent)
    , m_linkSchemes{u"http"_s, u"https"_s, u"mailto"_s, u"tel"_s}
{
    connect(Announcer::instance(), &Announcer::announced, this, &UIToolKitUtils::announced);
}

void UIToolKitUtils::sayAccessible(QObject *item, const QString &text, int delay)
{
    if (delay <= 0) {
        Announcer::instance()->announce(item, text);
        return;
    }
    QTimer::singleShot(delay, item ? item : this, [item, text] { Announcer::instance()->announce(item, text); });
}

bool UIToolKitUtils::simulateKeyEvent(QObject *receiver, int key, int modifiers, const QString &text)
{
    if (!receiver)
        return false;
    const auto keyModifiers = Qt::KeyboardModifiers::fromInt(modifiers);
    const QPointer<QObject> guard(receiver);
    bool taken = false;
    App::instance()->withSimulatedKey(key, [&] {
        taken = sendKey(receiver, QEvent::KeyPress, key, keyModifiers, text);
        if (auto *item = qobject_cast<QQuickItem *>(guard.data()); item && !taken)
            taken = moveFocusFrom(item, key);
        if (guard)
            sendKey(guard, QEvent::KeyRelease, key, keyModifiers, text);
    });
    return taken;
}

int UIToolKitUtils::getScreenIndexFromPoint(const QPointF &point) const
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (qsizetype i = 0; i < screens.size(); ++i) {
        // Neighbours share an edge: it belongs to the screen that begins there.
        const QRectF geometry = screens.at(i)->geometry();
        if (point.x() >= geometry.left() && point.x() < geometry.right() && point.y() >= geometry.top()
            && point.y() < geometry.bottom())
            return int(i);
    }
    return -1;
}

bool UIToolKitUtils::isAncestorOf(QWindow *window, QWindow *otherWindow) const
{
    return window && otherWindow && window->isAncestorOf(otherWindow, QWindow::IncludeTransients);
}

QRectF UIToolKitUtils::getTextBoundingRect(const QString &text, const QFont &font, qreal maximumWidth) const
{
    QRectF bounds;
    for (const QStringView paragraph : QStringView(text).tokenize(u'\n')) {
        QTextLayout layout(paragraph.toString(), font);
        QTextOption option;
        option.setWrapMode(maximumWidth > 0 ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(maximumWidth > 0 ? maximumWidth : unlimitedWidth);
            bounds.setWidth(qMax(bounds.width(), line.naturalTextWidth()));
            bounds.setHeight(bounds.height() + line.height());
        }
        layout.endLayout();
    }
    return bounds;
}

QString UIToolKitUtils::htmlToPlainText(const QString &html) const
{
    return PlainText::fromHtml(html);
}

bool UIToolKitUtils::hasLinkInText(const QString &html) const
{
    return PlainText::hasLink(html);
}

bool UIToolKitUtils::openLink(const QString &link) const
{
    if (link.trimmed().isEmpty())
        return false;
    const QUrl url = QUrl::fromUserInput(link);
    if (!m_linkSchemes.contains(url.scheme())) {
        qWarning("UIToolKitUtils: links of the scheme \"%ls\" are not opened", qUtf16Printable(url.scheme()));
        return false;
    }
    return QDesktopServices::openUrl(url);
}

void UIToolKitUtils::addLinkScheme(const QString &scheme)
{
    // Schemes are case-insensitive, and QUrl gives them in lower case.
    const QString lowerCase = scheme.toLower();
    if (!lowerCase.isEmpty() && !m_linkSchemes.contains(lowerCase))
        m_linkSchemes.append(lowerCase);
}
