#pragma once

/*!
    Counts the QObjects that are alive in the process, by the hooks that Qt has for introspection tools.
*/
namespace ObjectCounter {

//! Puts the hooks in place. Call once, before other threads run.
void install();

//! Objects made less objects destroyed since install().
int liveObjects();

} // namespace ObjectCounter
