#pragma once

#include <QtQml/QQmlExtensionPlugin>

/*!
 * The extension plugin that provides the module UIToolkitQml and its companions.
 *
 * The engine creates it on the first import of the module.
 */
class UIToolkitQml : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "UIToolkitQml/1.0")

public:
    using QQmlExtensionPlugin::QQmlExtensionPlugin;

    void registerTypes(const char *uri) override;
};
