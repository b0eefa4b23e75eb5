#pragma once

#include "render/free_type_face.h"

namespace Glyphor {

// Gives the face, set up otherwise, the size that the options ask for: where they speak of the
// pixels of a letter or a line, the em at which these come out, hinting and effects included.
// Throws a CriticalException where no em does, naming the nearest heights that can be had.
void SetFaceSize(FreeTypeFace& face, const RenderOptions& options);

} // namespace Glyphor
