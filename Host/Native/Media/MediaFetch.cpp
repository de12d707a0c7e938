#include "MediaFetch.h"

#include <QDebug>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSet>

#include "ApplicationObject.h"
#include "MediaPolicy.h"

using namespace Qt::StringLiterals;

namespace {

// Strangers choose addresses: neither the log nor the memory of what was reported may grow as they please.
constexpr int maximumReported = 1000;
constexpr int maximumShown = 200;

QNetworkRequest requestFor(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // Nothing that tells users apart.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    return request;
}

} // namespace

MediaFetch::MediaFetch(const QUrl &address, QObject *parent)
    : QObject(parent)
    , m_address(address)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { finish(u"it took longer than %1 ms"_s.arg(m_timer.interval())); });
}

MediaFetch::~MediaFetch()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
}

bool MediaFetch::isLocal() const
{
    return !m_address.scheme().startsWith("http"_L1);
}

void MediaFetch::report(const QUrl &address, const QString &fault)
{
    static QSet<QString> reported;
    QString shown =
        address.toString(QUrl::FullyEncoded | QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
    if (shown.size() > maximumShown)
        shown = shown.left(maximumShown) + u'\u2026';
    const QString message = u"Media: \"%1\" is not shown: %2"_s.arg(shown, fault);
    if (reported.contains(message))
        return;
    if (reported.size() >= maximumReported)
        reported.clear();
    reported.insert(message);
    qWarning().noquote() << message;
}

void MediaFetch::start()
{
    const MediaPolicy &policy = *MediaPolicy::instance();
    if (const QString refusal = policy.refusal(m_address); !refusal.isEmpty()) {
        finish(refusal);
        return;
    }
    // Opening a pipe would wait for somebody to fill it.
    if (m_address.isLocalFile() && !QFileInfo(m_address.toLocalFile()).isFile()) {
        finish(u"there is no such file"_s);
        return;
    }
    m_timer.start(policy.timeout());
    get(m_address);
}

// Follows redirections itself: Qt 6.4, asked to have each one verified, sends ever more requests for each.
void MediaFetch::get(const QUrl &target)
{
    m_reply = applicationObject<QNetworkAccessManager>()->get(requestFor(target));
    connect(m_reply, &QNetworkReply::readyRead, this, &MediaFetch::read);
    connect(m_reply, &QNetworkReply::finished, this, &MediaFetch::end);
}

void MediaFetch::end()
{
    read();
    if (m_isFinished)
        return;
    const QUrl redirection = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (m_reply->error() != QNetworkReply::NoError || redirection.isEmpty()) {
        finish(m_reply->error() == QNetworkReply::NoError ? QString() : m_reply->errorString());
        return;
    }
    const MediaPolicy &policy = *MediaPolicy::instance();
    const QUrl target = m_reply->url().resolved(redirection);
    const bool isOneTooMany = ++m_redirects > policy.maximumRedirects();
    const QString fault = isOneTooMany ? u"it redirects more than %1 times"_s.arg(policy.maximumRedirects())
                                       : policy.redirectionRefusal(target);
    if (!fault.isEmpty()) {
        finish(fault);
        return;
    }
    m_reply->disconnect(this);
    m_reply->deleteLater();
    m_data.clear();
    get(target);
}

void MediaFetch::read()
{
    if (m_isFinished)
        return;
    m_data += m_reply->readAll();
    // What is in memory already needs no limit.
    const int limit = MediaPolicy::instance()->maximumBytes();
    if (m_data.size() > limit && (!isLocal() || m_address.isLocalFile()))
        finish(u"it is larger than %1 bytes"_s.arg(limit));
}

void MediaFetch::finish(const QString &fault)
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_timer.stop();
    if (m_reply && !fault.isEmpty()) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
    if (!fault.isEmpty())
        m_data.clear();
    Q_EMIT finished(m_data, fault);
}
