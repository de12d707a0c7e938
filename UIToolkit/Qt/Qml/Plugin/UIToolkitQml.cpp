#include "UIToolkitQml.h"

#include "TypeRegistration.h"

// The static library build drops symbols that nobody names; this reference keeps the module's own
// registration object, which declares the module to the QML type system at load.
extern void qml_register_types_UIToolkitQml();

void UIToolkitQml::registerTypes(const char *uri)
{
    static const auto keepModuleRegistration = &qml_register_types_UIToolkitQml;
    Q_UNUSED(keepModuleRegistration)

    TypeRegistration::registerAll(uri);
}
