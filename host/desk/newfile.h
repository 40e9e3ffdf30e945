#pragma once

class QString;

namespace testset {

/// Opens an empty regular file for writing in the place of whatever stood under that name, but for
/// a folder. What stood there is taken away, not written to, since a link might lead anywhere and a
/// pipe might block. -1 with errno when it cannot. The caller closes it.
int openNewFile(const QString& path);

} // namespace testset
