#include "files/font_file.h"

#include "app/critical_exception.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

void ThrowUnsupportedFormat()
{
    throw CriticalException(u"Unsupported format!"_s, u"Given file format is not supported!"_s);
}

void FontFile::Write(const Font&)
{
    ThrowUnsupportedFormat();
}

qint64 BitmapSize(const CharMetrics& metrics, const FontMetrics& font)
{
    const qint64 bytesPerLine = (qint64(font.bitsPerPixel) * metrics.width + 7) / 8;
    const int rows = IsLegacyFormat(font.format) ? font.height : metrics.height;
    return bytesPerLine * rows * PlaneCount(font.format);
}

} // namespace Glyphor
