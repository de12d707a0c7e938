#include "Session.h"

#include "PageIndex.h"

#include <KIcons.h>

#include <QGuiApplication>
#include <QPointer>

Session::Session(QObject *parent)
    : QObject(parent)
    , m_page(PageIndex::startPage())
{
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Session::rightToLeftChanged);
}

Session *Session::instance()
{
    static QPointer<Session> session;
    if (!session)
        session = new Session(qGuiApp);
    return session;
}

Session *Session::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(instance(), QJSEngine::CppOwnership);
    return instance();
}

void Session::setPage(const QString &page)
{
    if (m_page == page)
        return;
    if (!PageIndex::find(page)) {
        qWarning("There is no gallery page \"%ls\".", qUtf16Printable(page));
        return;
    }
    m_page = page;
    Q_EMIT pageChanged();
}

QUrl Session::pageUrl() const
{
    const PageInfo *info = PageIndex::find(m_page);
    return info ? info->url : QUrl();
}

QString Session::pageDescription() const
{
    const PageInfo *info = PageIndex::find(m_page);
    return info ? info->description : QString();
}

bool Session::rightToLeft() const
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

void Session::setRightToLeft(bool rightToLeft)
{
    QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

QStringList Session::iconNames() const
{
    return KIcons::names();
}
