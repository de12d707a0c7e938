#include "UTDynamicResourceData.h"

#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <iterator>

namespace {

QByteArray decoded(const QString &text)
{
    return QByteArray::fromBase64(text.toUtf8(), QByteArray::Base64UrlEncoding);
}

bool isDirect(const QString &source)
{
    constexpr const char *prefixes[] = {"data:", "qrc:", "file:"};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [&source](const char *prefix) { return source.startsWith(QLatin1StringView(prefix)); });
}

// The dark image counts only beside a light one, which is preferred anyway: a source with a dark image alone tells no
// type. That is on purpose.
QString variant(const QUrl &url)
{
    return QUrlQuery(url).queryItemValue(QStringLiteral("lightImage"), QUrl::FullyDecoded);
}

} // namespace

UTDynamicResourceData::UTDynamicResourceData(QObject *attachee)
    : KObject(attachee)
{
    connect(this, &UTDynamicResourceData::sourceUrlChanged, this, &UTDynamicResourceData::onImageUrlChanged);
}

void UTDynamicResourceData::onImageUrlChanged()
{
    if (m_sourceUrl.isEmpty() || isDirect(m_sourceUrl))
        return;
    const QUrl url(QString::fromUtf8(decoded(m_sourceUrl)), QUrl::TolerantMode);
    if (!url.isValid()) {
        qWarning("UTDynamicResourceData unable to parse source uri");
        return;
    }
    const QString image = variant(url);
    if (image.isEmpty())
        return;
    m_type = decoded(image).contains(".gif") ? UTDynamicResource::Gif : UTDynamicResource::Image;
    Q_EMIT typeChanged();
}
