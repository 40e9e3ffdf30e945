#pragma once

#include <QSize>

namespace testset {

// How large the test set's display is shown on a desk's: by a whole factor, so that each of its
// pixels is a square of the desk's own and every line is crisp, while texts and slanted lines are
// drawn as finely as the desk's display allows.

const int MaxScale = 8;

/// The largest factor, 1 to MaxScale, at which the test set's display fits into that many of
/// the desk's pixels together with the window's frame.
int fittingScale(const QSize& available);

/// Makes that factor the one for the next application object, whatever scale the desktop asks for.
void useScale(int factor);

} // namespace testset
