#include "KorvuPlugin.h"

#include "KorvuHost.h"

extern void qml_register_types_Korvu();
Q_GHS_KEEP_REFERENCE(qml_register_types_Korvu)

KorvuPlugin::KorvuPlugin(QObject *parent)
    : QQmlEngineExtensionPlugin(parent)
{
    // A linker must not drop the registration of the types.
    volatile auto registration = &qml_register_types_Korvu;
    Q_UNUSED(registration)
}

void KorvuPlugin::initializeEngine(QQmlEngine *engine, const char *uri)
{
    Q_UNUSED(uri)
    KorvuHost::install(engine);
}
