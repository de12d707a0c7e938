#include "PageIndex.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

// Reads a property of the page's root from the source, for opening thirty pages only to list them would take long.
QString declaredText(const QString &source, const QString &property, const QString &context)
{
    const QRegularExpression declaration(uR"re(^    %1: qsTr\("((?:[^"\\]|\\.)*)"\)$)re"_s.arg(property),
                                         QRegularExpression::MultilineOption);
    const QString text = declaration.match(source).captured(1).replace("\\\""_L1, "\""_L1);
    return QCoreApplication::translate(context.toUtf8().constData(), text.toUtf8().constData());
}

QList<PageInfo> readPages()
{
    const QDir directory(u":/qt/qml/Gallery/Pages"_s);
    const QString suffix = u"Page.qml"_s;

    QList<PageInfo> pages;
    for (const QString &fileName : directory.entryList({u'*' + suffix}, QDir::Files)) {
        QFile file(directory.filePath(fileName));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString source = QString::fromUtf8(file.readAll());
        const QString type = fileName.chopped(QLatin1StringView(".qml").size());
        pages.append({fileName.chopped(suffix.size()), declaredText(source, u"category"_s, type),
                      declaredText(source, u"description"_s, type), QUrl(u"qrc"_s + file.fileName())});
    }

    const auto start = std::find_if(pages.cbegin(), pages.cend(),
                                    [](const PageInfo &page) { return page.name == PageIndex::startPage(); });
    const QString firstCategory = start == pages.cend() ? QString() : start->category;
    const auto place = [&firstCategory](const PageInfo &page) {
        return std::tuple(page.category != firstCategory, page.category, page.name);
    };
    std::sort(pages.begin(), pages.end(),
              [&place](const PageInfo &a, const PageInfo &b) { return place(a) < place(b); });
    return pages;
}

} // namespace

const QList<PageInfo> &PageIndex::pages()
{
    static const QList<PageInfo> all = readPages();
    return all;
}

const PageInfo *PageIndex::find(const QString &name)
{
    const auto found =
        std::find_if(pages().cbegin(), pages().cend(), [&name](const PageInfo &page) { return page.name == name; });
    return found == pages().cend() ? nullptr : &*found;
}

QString PageIndex::startPage()
{
    return u"Overview"_s;
}
