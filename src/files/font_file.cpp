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
    const int rows = IsLegacyFormat(font.format) ? font.height : metrics.height;
    return BytesPerLine<qint64>(metrics.width, font.bitsPerPixel) * rows * PlaneCount(font.format);
}

} // namespace Glyphor
