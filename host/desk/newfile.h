#pragma once

class QByteArray;
class QString;

namespace testset {

/// Opens an empty regular file for writing in the place of whatever stood under that name, but for
/// a folder. An existing file is removed, not written to, because a link might lead anywhere and a
/// pipe might block. -1 with errno when it cannot. The caller closes it.
int openNewFile(const QString& path);

/// Writes a whole file, and has it on the disk before it takes its name, in the place of whatever
/// stood there but for a folder; nothing is written through a link. Why not, and then nothing has
/// changed; empty when all is well.
QString saveFile(const QString& path, const QByteArray& content);

} // namespace testset
