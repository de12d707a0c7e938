#pragma once

#include "PageIndex.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

//! The pages whose name, category or description holds the words of the filter.
class PageModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    //! Words in any order and case; empty shows all.
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role { NameRole = Qt::UserRole + 1, CategoryRole, DescriptionRole };

    explicit PageModel(QObject *parent = nullptr);

    QString filter() const { return m_filter; }
    void setFilter(const QString &filter);
    int count() const { return int(m_pages.size()); }

    //! The row of the page \a name, -1 when the filter hides it.
    Q_INVOKABLE int indexOf(const QString &name) const;
    //! The name of the page in \a row.
    Q_INVOKABLE QString nameAt(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void filterChanged();
    void countChanged();

private:
    static bool matches(const PageInfo &page, const QStringList &words);

    QString m_filter;
    QList<PageInfo> m_pages;
};
