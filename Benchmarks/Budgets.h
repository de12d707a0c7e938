#pragma once

#include "Results.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/*!
    Upper limits on the objects and bytes of one instance of each component, kept in a file: one section for each minor
    version of Qt, since the two differ. Times are no part of it, they depend on the machine.
*/
class Budgets
{
public:
    /*!
        Reads \a path. A file that is missing is an empty one; for one that cannot be understood, error() says why.
    */
    explicit Budgets(const QString &path);

    const QString &error() const { return m_error; }

    //! Whether there are limits for the Qt that is running.
    bool knowThisQt() const;

    //! What \a results have that is over its limit, has none or failed, one line for each; empty when all is well.
    QStringList violations(const Results &results) const;
    //! Components whose limits are needlessly high; nothing to fail for.
    QStringList remarks(const Results &results) const;

    //! Puts what was measured in the place of the limits for this Qt and writes the file. Others stay. False on error.
    bool renew(const Results &results);

private:
    QJsonObject section() const;

    QString m_path;
    QString m_error;
    QJsonObject m_limits; // by version, then by component
};
