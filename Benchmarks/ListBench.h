#pragma once

#include "Results.h"

class QQmlEngine;

/*!
    Measures what a list's groups and descriptions cost: finding the groups of a long list in models of several kinds,
    beside only reading each row's kind from them, then one change and one description.
*/
namespace ListBench {

//! Appends to results.lists.
void run(QQmlEngine *engine, Results &results);

} // namespace ListBench
