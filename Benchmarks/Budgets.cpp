#include "Budgets.h"

#include <QFile>
#include <QJsonDocument>
#include <QLibraryInfo>
#include <QSaveFile>
#include <QVersionNumber>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString objectsKey = u"objects"_s;
const QString bytesKey = u"bytes"_s;

// Bytes differ a little between builds and machines: fonts, the heap's rounding.
constexpr double bytesTolerance = 1.02;
constexpr double bytesSlack = 64;
// Below this part of its limit a component has become so much lighter that the limit should follow.
constexpr double looseLimit = 0.95;

QString versionKey()
{
    const QVersionNumber version = QLibraryInfo::version();
    return u"qt%1.%2"_s.arg(version.majorVersion()).arg(version.minorVersion());
}

} // namespace

Budgets::Budgets(const QString &path)
    : m_path(path)
{
    QFile file(path);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = u"%1: %2"_s.arg(path, file.errorString());
        return;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError)
        m_error = u"%1, at byte %2: %3"_s.arg(path).arg(error.offset).arg(error.errorString());
    else if (!document.isObject())
        m_error = u"%1: holds no table of limits"_s.arg(path);
    else
        m_limits = document.object();
}

bool Budgets::knowThisQt() const
{
    return !section().isEmpty();
}

QJsonObject Budgets::section() const
{
    return m_limits[versionKey()].toObject();
}

QStringList Budgets::violations(const Results &results) const
{
    QStringList lines;
    for (const Subjects::Skipped &failed : results.failed)
        lines << u"%1 failed: %2"_s.arg(failed.name, failed.reason);
    const QJsonObject limits = section();
    for (const InstanceResult &result : results.instances) {
        if (!result.isComponent)
            continue;
        if (result.leftObjects >= ownObject) {
            lines << u"%1 leaves objects behind when it is destroyed: %2 an instance"_s.arg(result.name)
                         .arg(result.leftObjects);
        }
        if (limits.isEmpty())
            continue;
        const QJsonValue value = limits[result.name];
        if (!value.isObject()) {
            lines << u"%1 has no limits"_s.arg(result.name);
            continue;
        }
        const double objects = value[objectsKey].toDouble();
        const double bytes = value[bytesKey].toDouble();
        if (result.objects > objects + ownObject)
            lines << u"%1 has %2 objects, its limit is %3"_s.arg(result.name).arg(result.objects).arg(objects);
        if (result.bytes > bytes * bytesTolerance + bytesSlack) {
            lines << u"%1 takes %2 bytes, its limit is %3"_s.arg(result.name).arg(std::round(result.bytes)).arg(bytes);
        }
    }
    return lines;
}

QStringList Budgets::remarks(const Results &results) const
{
    QStringList lines;
    const QJsonObject limits = section();
    for (const InstanceResult &result : results.instances) {
        const QJsonValue value = limits[result.name];
        if (result.objects < value[objectsKey].toDouble() - ownObject
            || result.bytes < value[bytesKey].toDouble() * looseLimit - bytesSlack)
            lines << u"%1 has become lighter than its limits"_s.arg(result.name);
    }
    return lines;
}

bool Budgets::renew(const Results &results)
{
    QJsonObject limits = section();
    for (const InstanceResult &result : results.instances) {
        if (!result.isComponent)
            continue;
        QJsonObject limit = {{objectsKey, std::ceil(result.objects - ownObject)}};
        // Without a count of bytes the old limit stays.
        limit[bytesKey] =
            std::isnan(result.bytes) ? limits[result.name][bytesKey] : QJsonValue(std::ceil(result.bytes));
        limits[result.name] = limit;
    }
    m_limits[versionKey()] = limits;

    QSaveFile file(m_path);
    const bool written = file.open(QIODevice::WriteOnly)
        && file.write(QJsonDocument(m_limits).toJson(QJsonDocument::Indented)) > 0 && file.commit();
    if (!written)
        m_error = u"%1: %2"_s.arg(m_path, file.errorString());
    return written;
}
