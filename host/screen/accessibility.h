#pragma once

namespace testset {

/// Gives assistive technology the data that Qt does not have: which pages are pictures, and the
/// busy mark. For as long as the application object lives; GUI thread only.
void installAccessibility();

} // namespace testset
