#pragma once

#include <QString>

class QAbstractScrollArea;

namespace testset {

/// The style sheet of the host's lists and of the report. The toolkit's sheet gives the rest.
QString listStyle();

/// Lets a finger drag the contents of a view.
void letFingersDrag(QAbstractScrollArea* view);

} // namespace testset
