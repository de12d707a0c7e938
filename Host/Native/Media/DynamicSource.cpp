#include "DynamicSource.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView sourceItem("imageProviderUrl=");
constexpr QLatin1StringView darkItem("&isDark=");
// Comes last and is not encoded, so all that follows belongs to it.
constexpr QLatin1StringView fallbackItem("fallbackImage=");

constexpr QByteArray::Base64Options encoding = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

QString encoded(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toBase64(encoding));
}

QString decoded(const QString &text)
{
    return QString::fromUtf8(QByteArray::fromBase64(text.toUtf8(), encoding));
}

QString prefix()
{
    return "image://"_L1 + DynamicSource::providerId() + u'/';
}

QUrl variant(const QUrl &url, bool isDark)
{
    const QUrlQuery query(url);
    const QString light = query.queryItemValue(u"lightImage"_s, QUrl::FullyDecoded);
    const QString dark = query.queryItemValue(u"darkImage"_s, QUrl::FullyDecoded);
    const QString &wanted = isDark ? dark : light;
    return QUrl(decoded(wanted.isEmpty() ? (isDark ? light : dark) : wanted));
}

} // namespace

QString DynamicSource::providerId()
{
    return u"dynamic"_s;
}

DynamicSource DynamicSource::fromId(const QString &id)
{
    DynamicSource result;
    const qsizetype fallbackAt = id.indexOf(fallbackItem);
    const QString rest = id.left(fallbackAt);
    if (fallbackAt >= 0)
        result.fallback = QUrl(id.sliced(fallbackAt + fallbackItem.size()));

    const qsizetype sourceAt = rest.indexOf(sourceItem);
    QString source;
    if (sourceAt >= 0)
        source = rest.sliced(sourceAt + sourceItem.size()).section(u'&', 0, 0);
    if (source.isEmpty())
        return result;
    const bool isDark = rest.contains(darkItem + "true"_L1);
    result.address = variant(QUrl(decoded(QUrl::fromPercentEncoding(source.toUtf8()))), isDark);
    if (result.address.isEmpty())
        result.fault = u"it holds no image's address"_s;
    return result;
}

DynamicSource DynamicSource::fromUrl(const QString &url)
{
    if (url.startsWith(prefix()))
        return fromId(url.sliced(prefix().size()));
    DynamicSource result;
    result.address = QUrl(url);
    if (!url.isEmpty() && result.address.isEmpty())
        result.fault = u"it is no address"_s;
    return result;
}

QString DynamicSource::encode(const QString &lightImage, const QString &darkImage)
{
    QStringList items;
    if (!lightImage.isEmpty())
        items << "lightImage="_L1 + encoded(lightImage);
    if (!darkImage.isEmpty())
        items << "darkImage="_L1 + encoded(darkImage);
    return encoded("images:?"_L1 + items.join(u'&'));
}

QUrl DynamicSource::url(const QString &address, const QString &fallback)
{
    const QString source = address.isEmpty() ? QString() : encode(address, {});
    return QUrl(prefix() + u'?' + sourceItem + source + darkItem + "false&"_L1 + fallbackItem + fallback);
}
