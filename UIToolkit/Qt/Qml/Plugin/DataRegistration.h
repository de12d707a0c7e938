#pragma once

/*! Registers the native data classes and the button and chip enumerations. */
namespace DataRegistration {

/*! One step of TypeRegistration::registerAll(); \a uri is the main module's URI. */
void registerAll(const char *uri);

} // namespace DataRegistration
