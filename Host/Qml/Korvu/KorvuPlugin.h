#pragma once

#include <QQmlEngineExtensionPlugin>

//! Loads the QML module Korvu: importing it installs the host in the engine.
class KorvuPlugin : public QQmlEngineExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid)

public:
    explicit KorvuPlugin(QObject *parent = nullptr);

    void initializeEngine(QQmlEngine *engine, const char *uri) override;
};
