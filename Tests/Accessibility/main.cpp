#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QUrl>

// Shows one QML scene until it is ended by a signal.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        qCritical("usage: scene FILE.qml");
        return 2;
    }
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(UITOOLKIT_QML_DIR));
    engine.load(QUrl::fromLocalFile(QString::fromLocal8Bit(argv[1])));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
