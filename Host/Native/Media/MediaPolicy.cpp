#include "MediaPolicy.h"

#include <algorithm>

#include "ApplicationObject.h"
#include "DynamicSource.h"

using namespace Qt::StringLiterals;

namespace {

int usualPort(const QString &scheme)
{
    return scheme == "https"_L1 ? 443 : 80;
}

bool isNetwork(const QString &scheme)
{
    return scheme == "https"_L1 || scheme == "http"_L1;
}

bool matches(const QString &entry, const QUrl &address)
{
    constexpr QLatin1StringView below("*.");
    const bool isDomain = entry.startsWith(below);
    if (entry == "*"_L1)
        return true;
    const QUrl pattern("//"_L1 + (isDomain ? entry.sliced(below.size()) : entry));
    const int usual = usualPort(address.scheme());
    if (pattern.host().isEmpty() || pattern.port(usual) != address.port(usual))
        return false;
    return isDomain ? address.host().endsWith(u'.' + pattern.host()) : address.host() == pattern.host();
}

} // namespace

MediaPolicy *MediaPolicy::instance()
{
    return applicationObject<MediaPolicy>();
}

QString MediaPolicy::networkRefusal(const QUrl &address) const
{
    const QString scheme = address.scheme();
    if (!m_allowedSchemes.contains(scheme))
        return u"the scheme \"%1\" is not among MediaPolicy.allowedSchemes"_s.arg(scheme);
    const bool isAllowed = std::any_of(m_allowedHosts.cbegin(), m_allowedHosts.cend(),
                                       [&address](const QString &entry) { return matches(entry, address); });
    return isAllowed ? QString()
                     : u"the host \"%1\" is not among MediaPolicy.allowedHosts"_s.arg(
                           address.authority(QUrl::FullyEncoded | QUrl::RemoveUserInfo));
}

QString MediaPolicy::refusal(const QUrl &address) const
{
    const QString scheme = address.scheme();
    if (!address.isValid() || scheme.isEmpty())
        return u"it is no address"_s;
    if (isNetwork(scheme))
        return networkRefusal(address);
    if (scheme == "qrc"_L1 || scheme == "data"_L1)
        return {};
    if (scheme != "file"_L1)
        return u"the scheme \"%1\" is not known"_s.arg(scheme);
    if (!address.host().isEmpty())
        return u"the file is on another machine"_s;
    return m_localFilesAllowed ? QString() : u"MediaPolicy.localFilesAllowed is false"_s;
}

QString MediaPolicy::redirectionRefusal(const QUrl &address) const
{
    return isNetwork(address.scheme()) ? networkRefusal(address)
                                       : u"it redirects to the scheme \"%1\""_s.arg(address.scheme());
}

QString MediaPolicy::encode(const QString &lightImage, const QString &darkImage)
{
    return DynamicSource::encode(lightImage, darkImage);
}
