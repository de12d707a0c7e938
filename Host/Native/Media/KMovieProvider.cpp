#include "KMovieProvider.h"

#include <QBuffer>

#include "DynamicSource.h"
#include "MediaDecoder.h"
#include "MediaFetch.h"

namespace {

// Null if \a data cannot be played.
std::unique_ptr<QMovie> movieOf(const QByteArray &data)
{
    auto movie = std::make_unique<QMovie>();
    auto *device = new QBuffer(movie.get());
    device->setData(data);
    device->open(QIODevice::ReadOnly);
    movie->setDevice(device);
    if (!movie->jumpToFrame(0) || movie->currentImage().isNull())
        movie.reset();
    return movie;
}

} // namespace

KMovieProvider::KMovieProvider(QObject *parent)
    : QObject(parent)
{
}

KMovieProvider::~KMovieProvider() = default;

void KMovieProvider::fetch(const QString &source)
{
    const DynamicSource parts = DynamicSource::fromUrl(source);
    m_fallback = parts.fallback.toString(QUrl::FullyEncoded);
    // Called from its own signal it must outlive the call.
    if (MediaFetch *old = m_fetch.release()) {
        old->disconnect(this);
        old->deleteLater();
    }
    show(Page::Waiting, nullptr, {});
    if (!parts.fault.isEmpty())
        MediaFetch::report(QUrl(source), parts.fault);
    if (parts.address.isEmpty()) {
        if (!parts.fault.isEmpty() || !parts.fallback.isEmpty())
            fallBack();
        return;
    }
    m_fetch = std::make_unique<MediaFetch>(parts.address, nullptr);
    connect(m_fetch.get(), &MediaFetch::finished, this, [this](const QByteArray &data, const QString &fault) {
        const MediaFetch *fetch = m_fetch.get();
        if (fault.isEmpty()) {
            take(data, *fetch);
            return;
        }
        MediaFetch::report(fetch->address(), fault);
        fallBack();
    });
    m_fetch->start();
}

void KMovieProvider::take(const QByteArray &data, const MediaFetch &fetch)
{
    QString fault = MediaDecoder::fault(data, fetch.isLocal());
    std::unique_ptr<QMovie> movie = fault.isEmpty() ? movieOf(data) : nullptr;
    if (movie) {
        show(Page::Movie, std::move(movie), {});
        return;
    }
    if (fault.isEmpty())
        fault = QStringLiteral("it cannot be played");
    MediaFetch::report(fetch.address(), fault);
    fallBack();
}

// By way of the provider, which shows only what the policy allows.
void KMovieProvider::fallBack()
{
    show(Page::Fallback, nullptr, m_fallback.isEmpty() ? QUrl() : DynamicSource::url({}, m_fallback));
}

void KMovieProvider::show(Page page, std::unique_ptr<QMovie> movie, const QUrl &fallbackSource)
{
    const bool isOtherMovie = movie != m_movie;
    const bool isOtherPage = page != m_page;
    const bool isOtherFallback = fallbackSource != m_fallbackSource;
    const QSize size = movie ? movie->currentImage().size() : QSize();
    const qreal aspectRatio = size.isEmpty() ? 0 : qreal(size.width()) / size.height();
    const bool isOtherRatio = aspectRatio != m_aspectRatio;

    // The old one goes when all have heard of it.
    std::unique_ptr<QMovie> old = std::exchange(m_movie, std::move(movie));
    m_page = page;
    m_fallbackSource = fallbackSource;
    m_aspectRatio = aspectRatio;
    if (m_movie)
        m_movie->start();
    if (isOtherMovie)
        Q_EMIT movieChanged();
    if (isOtherRatio)
        Q_EMIT aspectRatioChanged();
    if (isOtherFallback)
        Q_EMIT fallbackSourceChanged();
    if (isOtherPage)
        Q_EMIT stackIndexChanged();
}
