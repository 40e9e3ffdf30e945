#pragma once

namespace testset {

/// Tells assistive technology what Qt cannot know: which pages are pictures, and the busy mark. For
/// as long as the application object lives; GUI thread only.
void installAccessibility();

} // namespace testset
