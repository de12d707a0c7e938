#pragma once

#include "Results.h"

class InstanceStage;

/*!
    Measures what a change of theme costs for each item that is alive, and what reading one colour set costs. An item
    that stays as it was when the theme changes costs nothing and counts as failed.
*/
namespace ThemeBench {

//! Appends to results.theme and results.calls.
void run(InstanceStage &stage, Results &results);

} // namespace ThemeBench
