#include "DynamicImageProvider.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QImage>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QPromise>
#include <QThreadPool>

#include <memory>

#include "DynamicSource.h"
#include "MediaDecoder.h"
#include "MediaFetch.h"
#include "MediaPolicy.h"

namespace {

class DynamicImageResponse;

// Holds the two ends of a request together: the response, which QML deletes on a thread of its own, and the job, on the
// thread of the user interface. Either may go at any time.
struct Tie
{
    QMutex mutex;
    DynamicImageResponse *response = nullptr; // guarded by the mutex
    QPointer<QObject> job;                    // for the thread of the user interface only
};

class DynamicImageResponse : public QQuickImageResponse
{
public:
    DynamicImageResponse(const QString &id, const QSize &requestedSize);
    ~DynamicImageResponse() override;

    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    void cancel() override;

    static void deliver(Tie &tie, const QImage &image);

private:
    static void stop(const std::shared_ptr<Tie> &tie);

    std::shared_ptr<Tie> m_tie = std::make_shared<Tie>();
    QImage m_image;
};

struct Decoded
{
    QImage image;
    QString fault;
};

Decoded decode(const QByteArray &data, const QSize &size, bool local)
{
    Decoded result{{}, MediaDecoder::fault(data, local)};
    if (result.fault.isEmpty())
        result.image = MediaDecoder::picture(data, size);
    if (result.fault.isEmpty() && result.image.isNull())
        result.fault = QStringLiteral("it is damaged");
    return result;
}

// Never null: for a null image QML adds a warning of its own that names no culprit.
QImage nothing()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// Tries one address after the other.
class ImageJob : public QObject
{
public:
    ImageJob(std::shared_ptr<Tie> tie, const QString &id, const QSize &size)
        : QObject(MediaPolicy::instance())
        , m_tie(std::move(tie))
        , m_size(size)
    {
        const DynamicSource source = DynamicSource::fromId(id);
        if (!source.fault.isEmpty())
            MediaFetch::report(QUrl(id), source.fault);
        for (const QUrl &address : {source.address, source.fallback}) {
            if (!address.isEmpty())
                m_addresses << address;
        }
    }

    void tryNext()
    {
        if (m_addresses.isEmpty()) {
            finish(nothing());
            return;
        }
        auto *fetch = new MediaFetch(m_addresses.takeFirst(), this);
        connect(fetch, &MediaFetch::finished, this, [this, fetch](const QByteArray &data, const QString &fault) {
            fetch->deleteLater();
            if (fault.isEmpty())
                decodeInBackground(data, *fetch);
            else
                reject(fetch->address(), fault);
        });
        fetch->start();
    }

private:
    void decodeInBackground(const QByteArray &data, const MediaFetch &fetch)
    {
        auto *watcher = new QFutureWatcher<Decoded>(this);
        connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, address = fetch.address()] {
            watcher->deleteLater();
            const Decoded result = watcher->result();
            if (result.fault.isEmpty())
                finish(result.image);
            else
                reject(address, result.fault);
        });
        auto promise = std::make_shared<QPromise<Decoded>>();
        watcher->setFuture(promise->future());
        QThreadPool::globalInstance()->start([promise, data, size = m_size, local = fetch.isLocal()] {
            promise->start();
            promise->addResult(decode(data, size, local));
            promise->finish();
        });
    }

    void reject(const QUrl &address, const QString &fault)
    {
        MediaFetch::report(address, fault);
        tryNext();
    }

    void finish(const QImage &image)
    {
        DynamicImageResponse::deliver(*m_tie, image);
        deleteLater();
    }

    std::shared_ptr<Tie> m_tie;
    QSize m_size;
    QList<QUrl> m_addresses;
};

DynamicImageResponse::DynamicImageResponse(const QString &id, const QSize &requestedSize)
{
    m_tie->response = this;
    QMetaObject::invokeMethod(
        qApp,
        [tie = m_tie, id, requestedSize] {
            auto *job = new ImageJob(tie, id, requestedSize);
            tie->job = job;
            job->tryNext();
        },
        Qt::QueuedConnection);
}

DynamicImageResponse::~DynamicImageResponse()
{
    {
        const QMutexLocker lock(&m_tie->mutex);
        m_tie->response = nullptr;
    }
    stop(m_tie);
}

void DynamicImageResponse::stop(const std::shared_ptr<Tie> &tie)
{
    if (qApp)
        QMetaObject::invokeMethod(qApp, [tie] { delete tie->job.data(); }, Qt::QueuedConnection);
}

void DynamicImageResponse::cancel()
{
    stop(m_tie);
    // QML deletes a response only when it has finished.
    deliver(*m_tie, nothing());
}

void DynamicImageResponse::deliver(Tie &tie, const QImage &image)
{
    const QMutexLocker lock(&tie.mutex);
    if (!tie.response)
        return;
    tie.response->m_image = image;
    QMetaObject::invokeMethod(tie.response, &QQuickImageResponse::finished, Qt::QueuedConnection);
    tie.response = nullptr;
}

} // namespace

QQuickImageResponse *DynamicImageProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    return new DynamicImageResponse(id, requestedSize);
}
