#pragma once

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

/*! The library's own files, for tests that compare what is written with what there is. */
namespace Sources {

inline QString text(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

//! Where \a path lies, which is given from the top of the project.
inline QString path(const char *path)
{
    return QStringLiteral(UITOOLKIT_SOURCE_DIR "/") + QLatin1StringView(path);
}

//! What the first two groups of \a pattern captured, together, for each match in \a text.
inline QStringList captures(const QRegularExpression &pattern, const QString &text)
{
    QStringList list;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        list << match.captured(1) + match.captured(2);
    return list;
}

//! The types that the library's module lists, each with a file of its own name.
inline QStringList listedTypes()
{
    const QString listing = text(QStringLiteral(UITOOLKIT_QML_DIR "/UIToolkitQml/qmldir"));
    static const QRegularExpression entry(QStringLiteral("^(?:singleton )?(\\w+) 1\\.0 \\1\\.qml$"),
                                          QRegularExpression::MultilineOption);
    QStringList names = captures(entry, listing);
    // Qt 6.4 lists internal types twice.
    names.removeIf([&](const QString &name) { return listing.contains(QStringLiteral("\ninternal %1 ").arg(name)); });
    return names;
}

//! Calls \a visit with path and text of every source file of the library and the gallery.
template<typename Visitor>
void visitAll(Visitor visit)
{
    const QStringList kinds = QStringLiteral("*.qml *.js *.h *.cpp *.def").split(QLatin1Char(' '));
    for (const char *folder : {"UIToolkit", "Gallery"}) {
        QDirIterator files(path(folder), kinds, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            visit(file, text(file));
        }
    }
}

} // namespace Sources
