#pragma once

//! What assistive technology learns of Qt Quick items, mended where Qt keeps something to itself.
namespace AccessibleItems {

//! Takes over from Qt who describes items to assistive technology. Further calls do nothing.
void install();

} // namespace AccessibleItems
