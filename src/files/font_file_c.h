#pragma once

#include "files/c_file_text.h"
#include "files/font_file.h"

namespace Glyphor {

// A font as C source or, by the suffix of the file's name, as a C header: an array per character,
// the table of their metrics, a property block per run of codes, and the font structure.
class FontFileC final : public FontFile
{
public:
    FontFileC(const QString& path, const CFileOptions& options);

    std::unique_ptr<Font> Read() override;
    void Write(const Font& font) override;

    void Compose(const Font& font, const Sink& sink) const;

private:
    CFileOptions options_;
};

// Bytes of the C file's font on a target with 32-bit addresses.
struct FlashParts
{
    qint64 pixels = 0;
    qint64 characters = 0; // the table of their metrics
    qint64 ranges = 0;     // the property blocks
    qint64 structure = 16; // the type, seven bytes and an address

    [[nodiscard]] qint64 Total() const { return pixels + characters + ranges + structure; }
};

[[nodiscard]] FlashParts FlashPartsOf(const Font& font);

[[nodiscard]] inline qint64 FlashSize(const Font& font)
{
    return FlashPartsOf(font).Total();
}

} // namespace Glyphor
