#pragma once

#include <QList>
#include <QString>
#include <QUrl>

//! What a page says of itself.
struct PageInfo
{
    QString name; //!< "KText" of "KTextPage.qml"
    QString category;
    QString description;
    QUrl url;
};

//! All pages compiled into the program.
namespace PageIndex {

//! Sorted by category and name, with the start page's category first.
const QList<PageInfo> &pages();

//! The page called \a name, null when there is none.
const PageInfo *find(const QString &name);

//! Name of the page that shows first.
QString startPage();

} // namespace PageIndex
