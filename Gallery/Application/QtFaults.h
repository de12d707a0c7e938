#pragma once

#include <QRegularExpression>
#include <QString>

//! Warnings of Qt's own that no page can help.
namespace QtFaults {

//! Qt 6.8, of a picture in rich text whose loading ends at an unlucky moment, as on a busy machine. It shows all the same.
inline constexpr QLatin1StringView pictureInText("QQuickPixmap: connectFinished() called when not loading.");

//! Qt 6.4, when the last of several QML timers stops while nothing is animated; the timers fire all the same.
inline constexpr QLatin1StringView idleTimers("QUnifiedTimer::stopAnimationDriver: driver is not running");

//! Whether \a message is one of them, by its exact words.
inline bool contain(QStringView message)
{
    return message == pictureInText || message == idleTimers;
}

//! A pattern that matches every message but these.
inline QRegularExpression anythingElse()
{
    return QRegularExpression(
        QStringLiteral("^(?!(%1|%2)$)")
            .arg(QRegularExpression::escape(pictureInText), QRegularExpression::escape(idleTimers)));
}

} // namespace QtFaults
