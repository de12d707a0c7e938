#pragma once

#include "Results.h"

#include <QString>

/*!
    Measures how long it takes from the first import of a module to its first component, and until all components are
    loaded. A module is loaded once in a process, so each time is taken in a process of its own.
*/
namespace LoadBench {

//! Appends to results.load.
void run(Results &results);

//! The work of one such process: loads what \a what names, prints the microseconds; returns the exit status.
int loadOnce(const QString &what);

} // namespace LoadBench
