#pragma once

/*! Registers everything that the plugin tells the QML engine, all at version 1.0. */
namespace TypeRegistration {

/*!
 * Runs the whole registration sequence in its fixed order. \a uri is the main module's URI; the
 * names of the experimental and the private module are formed from it.
 */
void registerAll(const char *uri);

} // namespace TypeRegistration
