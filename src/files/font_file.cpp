#include "files/font_file.h"

#include "app/critical_exception.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

void ThrowUnsupportedFormat()
{
    throw CriticalException(u"Unsupported format!"_s, u"Given file format is not supported!"_s);
}

std::unique_ptr<Font> FontFile::Read()
{
    throw CriticalException(u"Unsupported format!"_s,
                            u"Reading %1 is not available in this version yet."_s.arg(fileName()));
}

void FontFile::Write(const Font&)
{
    ThrowUnsupportedFormat();
}

} // namespace Glyphor
