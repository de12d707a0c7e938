#include "Subjects.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <private/qqmlmetatype_p.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString bundle = u":/qt/qml/UIToolkitQml"_s;

struct Listing
{
    QStringList components;
    QStringList singletons;
};

// The QML files that the module's directory listing names.
Listing readListing()
{
    Listing listing;
    QFile file(QStringLiteral(UITOOLKIT_QML_DIR "/UIToolkitQml/qmldir"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList words = line.simplified().split(u' ');
        if (!words.last().endsWith(".qml"_L1))
            continue;
        if (words.first() == "singleton"_L1)
            listing.singletons << words.value(1);
        else if (words.first() == "internal"_L1)
            listing.components.removeOne(words.value(1)); // Qt 6.4 lists these twice
        else
            listing.components << words.first();
    }
    return listing;
}

bool isCompanion(const QString &name)
{
    const QList<QQmlType> types = QQmlMetaType::qmlTypes();
    return std::any_of(types.begin(), types.end(), [&name](const QQmlType &type) {
        return type.elementName() == name && type.module().startsWith("UIToolkitQml_"_L1);
    });
}

QJsonObject readTable()
{
    QFile file(u":/uitoolkit_bench/subjects.json"_s);
    QJsonParseError error;
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The table of subjects is not compiled in");
    const QJsonObject table = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (table.isEmpty())
        qFatal("subjects.json: %s", qPrintable(error.errorString()));
    return table;
}

// The table's row for a component: its own, or else that of the longest pattern that its name matches.
QJsonObject rowFor(const QString &component, const QJsonObject &rows)
{
    if (rows.contains(component))
        return rows[component].toObject();
    QString best;
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        if (row.key().size() > best.size() && row.key().contains(u'*')
            && QRegularExpression::fromWildcard(row.key()).match(component).hasMatch())
            best = row.key();
    }
    return rows[best].toObject();
}

QByteArray document(const QStringList &imports, const QString &type, const QString &properties)
{
    QString text;
    for (const QString &import : imports)
        text += "import "_L1 + import + u'\n';
    return (text + type + " { "_L1 + properties + " }\n"_L1).toUtf8();
}

} // namespace

QString SubjectNames::styled(const QString &style, const QString &control)
{
    return style + u' ' + control;
}

Subjects findSubjects(const QRegularExpression &filter)
{
    const QJsonObject table = readTable();
    const QJsonObject plain = table["plain"_L1].toObject();
    const QJsonObject controls = table["controls"_L1].toObject();
    const QJsonObject rows = table["components"_L1].toObject();
    const Listing listing = readListing();

    // What is in the bundle but not in the listing belongs to the companion modules, or is a part of another component.
    QStringList components = listing.components;
    QSet<QString> companions;
    const QStringList files = QDir(bundle).entryList({u"*.qml"_s}, QDir::Files);
    for (const QString &file : files) {
        const QString name = file.chopped(4);
        if (!listing.components.contains(name) && !listing.singletons.contains(name) && isCompanion(name)) {
            components << name;
            companions << name;
        }
    }
    components.removeDuplicates();
    components.sort();

    Subjects subjects;
    for (const QString &singleton : listing.singletons) {
        if (filter.match(singleton).hasMatch())
            subjects.skipped.append({singleton, u"singleton"_s});
    }

    QStringList wantedPlain = {u"Item"_s, u"Rectangle"_s, u"Text"_s};
    QStringList wantedControls = {SubjectNames::button};
    QList<Subject> found;
    for (const QString &component : std::as_const(components)) {
        if (!filter.match(component).hasMatch())
            continue;
        const QJsonObject row = rowFor(component, rows);
        QStringList imports = {u"Korvu 1.0"_s, u"UIToolkitQml 1.0"_s};
        if (companions.contains(component))
            imports += {u"UIToolkitQml_Private 1.0"_s, u"UIToolkitQml_Experimental 1.0"_s};
        const Subject subject = {component, document(imports, component, row["set"_L1].toString()), true,
                                 row["plain"_L1].toString(), row["control"_L1].toString()};
        found << subject;
        if (!subject.plain.isEmpty())
            wantedPlain << subject.plain;
        if (!subject.control.isEmpty())
            wantedControls << subject.control;
    }
    wantedPlain.removeDuplicates();
    wantedControls.removeDuplicates();

    for (const QString &type : std::as_const(wantedPlain))
        subjects.list.append({type, document({u"QtQuick"_s}, type, plain[type].toString()), false, {}, {}});
    subjects.list.append({SubjectNames::handWritten,
                          document({u"UIToolkitBench"_s}, u"HandWrittenButton"_s, u"text: \"Button\""_s),
                          false,
                          {},
                          {}});
    for (const QString &style : {SubjectNames::basic, SubjectNames::material}) {
        for (const QString &type : std::as_const(wantedControls)) {
            const QByteArray text = document({"QtQuick.Controls."_L1 + style}, type, controls[type].toString());
            subjects.list.append({SubjectNames::styled(style, type), text, false, {}, {}});
        }
    }
    subjects.list += found;
    return subjects;
}
