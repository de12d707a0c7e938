// An application that knows nothing but the installed package: it picks a theme and shows a component.
#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <ThemeManager.h>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    ThemeManager::instance()->setTheme(QStringLiteral("dark"));

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(IMPORT_PATH));
    engine.loadData(R"(
        import QtQuick
        import UIToolkitQml 1.0
        import Korvu 1.0

        Window {
            visible: true
            KFrame {
                anchors.fill: parent
                KText { id: label; text: "Hello" }
            }
            readonly property bool themed: ThemeManager.isDarkTheme && label.color.a > 0
        }
    )");
    return engine.rootObjects().isEmpty() || !engine.rootObjects().first()->property("themed").toBool();
}
