#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/*!
    What the gallery was asked to do.

    A page or theme that does not exist, or an option that is no option, leaves one sentence in message, which names the
    culprit and what would have been valid, and the exit status 2. So does --list or --help, with the answer and 0.
*/
struct CommandLine
{
    enum class Action { Show, Shot, Shots };

    Action action = Action::Show;
    QString page;
    QString theme; //!< empty: as the desktop is
    QString file;  //!< of the picture, or the folder for all of them
    bool rightToLeft = false;
    std::optional<qreal> textScale;

    QString message; //!< to be printed instead of doing anything
    int exitStatus = 0;

    static CommandLine parse(const QStringList &arguments);
    static const QStringList &themes();
};
