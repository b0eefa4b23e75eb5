#include "files/font_file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"

namespace Glyphor {

void ThrowUnsupportedFormat()
{
    throw CriticalException(Engine::tr("Unsupported format!"),
                            Engine::tr("Given file format is not supported!"));
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
