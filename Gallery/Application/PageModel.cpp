#include "PageModel.h"

#include <algorithm>

PageModel::PageModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_pages(PageIndex::pages())
{
}

void PageModel::setFilter(const QString &filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;

    const QStringList words = filter.split(u' ', Qt::SkipEmptyParts);
    beginResetModel();
    m_pages.clear();
    for (const PageInfo &page : PageIndex::pages()) {
        if (matches(page, words))
            m_pages.append(page);
    }
    endResetModel();
    Q_EMIT filterChanged();
    Q_EMIT countChanged();
}

bool PageModel::matches(const PageInfo &page, const QStringList &words)
{
    const QString text = page.name + u' ' + page.category + u' ' + page.description;
    return std::all_of(words.cbegin(), words.cend(),
                       [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

int PageModel::indexOf(const QString &name) const
{
    const auto found =
        std::find_if(m_pages.cbegin(), m_pages.cend(), [&name](const PageInfo &page) { return page.name == name; });
    return found == m_pages.cend() ? -1 : int(found - m_pages.cbegin());
}

QString PageModel::nameAt(int row) const
{
    return row >= 0 && row < count() ? m_pages.at(row).name : QString();
}

int PageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant PageModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PageInfo &page = m_pages.at(index.row());
    switch (role) {
    case NameRole:
    case Qt::DisplayRole:
        return page.name;
    case CategoryRole:
        return page.category;
    case DescriptionRole:
        return page.description;
    default:
        return {};
    }
}

QHash<int, QByteArray> PageModel::roleNames() const
{
    return {{NameRole, "name"}, {CategoryRole, "category"}, {DescriptionRole, "description"}};
}
