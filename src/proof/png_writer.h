#pragma once

#include "app/file.h"
#include "proof/canvas.h"

namespace Glyphor {

// Gives the sink a PNG picture with the palette of proofs, piece by piece. `level` is that of zlib,
// from 0 to 9. The same canvas gives the same bytes.
void ComposePng(const Canvas& canvas, int level, const File::Sink& sink);

} // namespace Glyphor
