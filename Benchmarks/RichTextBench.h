#pragma once

#include "Results.h"

class InstanceStage;

/*!
    Measures the compose area: a key typed into a long document, beside a text area without it; the export; and what
    pasted HTML costs, that which is meant to stop the text engine included.
*/
namespace RichTextBench {

//! Appends to results.richText.
void run(InstanceStage &stage, Results &results);

} // namespace RichTextBench
