#include "GalleryEngine.h"

#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QQmlComponent>

using namespace Qt::StringLiterals;

GalleryEngine::GalleryEngine()
{
    QLoggingCategory::setFilterRules(u"korvu.colorsets.warning=true"_s);
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString &directory : QStringLiteral(GALLERY_QML_DIRS).split(u':')) {
        if (const QString path = program.absoluteFilePath(directory); QFileInfo(path).isDir())
            m_engine.addImportPath(QDir::cleanPath(path));
    }
    m_engine.addImportPath(u":/qt/qml"_s);
}

bool GalleryEngine::load(bool takesInput)
{
    QQmlComponent component(&m_engine, QUrl(u"qrc:/qt/qml/Gallery/Shell/GalleryWindow.qml"_s));
    std::unique_ptr<QObject> object(component.create());
    m_window.reset(qobject_cast<QQuickWindow *>(object.get()));
    if (!m_window) {
        qCritical().noquote() << component.errorString();
        return false;
    }
    object.release();
    m_window->setFlag(Qt::WindowTransparentForInput, !takesInput);
    m_window->show();
    return true;
}
