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

// Bytes of the C file's font on a target with 32-bit addresses: pixels, tables and the structure.
[[nodiscard]] qint64 FlashSize(const Font& font);

} // namespace Glyphor
