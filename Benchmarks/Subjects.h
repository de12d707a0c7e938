#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

//! A thing of which instances are measured: a QML document of one line.
struct Subject
{
    QString name;
    QByteArray document;
    bool isComponent = false; //!< of the library; the others are what it is compared with
    QString plain;            //!< name of the Qt Quick item that this component is a form of; may be empty
    QString control;          //!< name of the Qt Quick Controls type that does the same; may be empty
};

struct Subjects
{
    QList<Subject> list;
    struct Skipped
    {
        QString name;
        QString reason;
    };
    QList<Skipped> skipped;
};

namespace SubjectNames {

inline const QString handWritten = QStringLiteral("hand-written button");
inline const QString basic = QStringLiteral("Basic");
inline const QString material = QStringLiteral("Material");
//! Always among the subjects, whether or not a component has it for its counterpart.
inline const QString button = QStringLiteral("Button");

//! Name of the subject that is \a control in \a style.
QString styled(const QString &style, const QString &control);

} // namespace SubjectNames

/*!
    Every component that the module's directory listing and its bundle hold, as far as its name matches \a filter, and
    what they are compared with. The module must have been imported before. A component is taken with the properties
    that subjects.json gives it, or with its defaults.
*/
Subjects findSubjects(const QRegularExpression &filter);
