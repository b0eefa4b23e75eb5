#include "app/error_file.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

ErrorFile::ErrorFile() : File(u"Glyphor.err"_s) {}

} // namespace Glyphor
