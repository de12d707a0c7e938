#include "KCoverImageController.h"

#include "DynamicSource.h"

void KCoverImageController::setImageSource(const QUrl &source)
{
    if (m_imageSource == source)
        return;
    m_imageSource = source;
    Q_EMIT imageSourceChanged();
}

void KCoverImageController::fetch(const QString &address, const QString &fallback)
{
    setImageSource(DynamicSource::url(address, fallback));
}
