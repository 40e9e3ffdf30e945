#pragma once

#include <QRect>

class QWidget;

// Helpers for a widget's surroundings. Internal to the toolkit.

/// Where a modal window lies, in screen coordinates: over the window of `parent`, or in the middle
/// of the screen, as large as the test set's display, with a null parent.
QRect modalArea(const QWidget* parent);

/// Gives the keyboard focus to the nearest visible widget around `widget` that takes it by a click;
/// false when there is no such widget.
bool focusAround(const QWidget* widget);
