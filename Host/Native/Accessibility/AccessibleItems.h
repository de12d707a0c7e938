#pragma once

/*!
    What assistive technology learns of Qt Quick items, mended where Qt keeps something to itself: a disabled item is known
    as disabled, and a control with an integer property accessibleRole, a value of QAccessible::Role, has that role.
*/
namespace AccessibleItems {

//! Takes over from Qt who describes items to assistive technology. Further calls do nothing.
void install();

} // namespace AccessibleItems
