#pragma once

#include <QRect>

class QWidget;

/// Where a modal window lies, in screen coordinates: over the window of `parent`, or in the middle
/// of the screen, as large as the test set's display, with a null parent. Internal to the toolkit.
QRect modalArea(const QWidget* parent);
