#include "CommandLine.h"
#include "GalleryEngine.h"
#include "PageIndex.h"
#include "Photographer.h"
#include "QtFaults.h"
#include "Session.h"

#include <App.h>
#include <ThemeManager.h>

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTextStream>
#include <QtPlugin>
#include <QtQml/qqmlextensionplugin.h>

#include <atomic>
#include <optional>

Q_IMPORT_QML_PLUGIN(GalleryPlugin)

using namespace Qt::StringLiterals;

namespace {

// Warnings since the start, of which a run that takes pictures must not have any. Those of the platform plugin say
// something about the machine, not about the pages.
std::atomic_int warnings = 0;
QtMessageHandler defaultHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && !QtFaults::contain(message) && !QLatin1StringView(context.category).startsWith("qt.qpa"_L1))
        ++warnings;
    defaultHandler(type, context, message);
}

int takePictures(const CommandLine &options, GalleryEngine &gallery)
{
    QTextStream out(stdout);
    App::instance()->setAnimationsDisabled(true);
    Photographer photographer(gallery.window());
    QString error;
    if (options.action == CommandLine::Action::Shot) {
        if (!photographer.savePage(options.file, &error))
            qCritical().noquote() << error;
    } else {
        const QStringList sheets = photographer.saveAll(options.file, &error);
        if (!error.isEmpty())
            qCritical().noquote() << error;
        for (const QString &sheet : sheets)
            out << sheet << Qt::endl;
    }
    return warnings == 0 && error.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int run(const CommandLine &options)
{
    if (options.theme.isEmpty())
        ThemeManager::instance()->setFollowSystem(options.action == CommandLine::Action::Show);
    else
        ThemeManager::instance()->setTheme(options.theme);
    if (options.textScale)
        App::instance()->setTextScale(*options.textScale);
    Session::instance()->setRightToLeft(options.rightToLeft);
    Session::instance()->setPage(options.page);

    GalleryEngine gallery;
    const bool isInteractive = options.action == CommandLine::Action::Show;
    if (!gallery.load(isInteractive))
        return EXIT_FAILURE;
    return isInteractive ? QGuiApplication::exec() : takePictures(options, gallery);
}

} // namespace

int main(int argc, char *argv[])
{
    defaultHandler = qInstallMessageHandler(countWarnings);
    QCoreApplication::setApplicationName(u"gallery"_s);
    QCoreApplication::setApplicationVersion(u"1.0"_s);

    std::optional<CommandLine> options;
    {
        // What the command line alone can answer needs no display.
        QCoreApplication application(argc, argv);
        options = CommandLine::parse(QCoreApplication::arguments());
    }
    if (!options->message.isEmpty()) {
        QTextStream(options->exitStatus == EXIT_SUCCESS ? stdout : stderr) << options->message << Qt::endl;
        return options->exitStatus;
    }

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationDisplayName(u"Component gallery"_s);
    // What was said so far was about the machine.
    warnings = 0;
    return run(*options);
}
