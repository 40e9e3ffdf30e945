#pragma once

namespace testset {

/// Lets assistive technology see the widgets that the toolkit paints by hand: labels, tabs, the
/// cells of page tables, message boxes, and pages that are pictures. For as long as the application
/// object lives; GUI thread only.
void installAccessibility();

} // namespace testset
