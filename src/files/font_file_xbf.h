#pragma once

#include "files/font_file_binary.h"

namespace Glyphor {

// An external bitmap font, which firmware loads at run time: a header, a table with an entry for
// every code from the first to the last, and the data of each character, found with one seek.
class FontFileXBF final : public FontFileBinary
{
public:
    using FontFileBinary::FontFileBinary;

    // The encoding, of which the file says nothing, is that of the answer.
    std::unique_ptr<Font> Read() override;
    void Write(const Font& font) override;

protected:
    [[nodiscard]] QString FailureTitle() const override;

private:
    struct TableEntry
    {
        quint16 code;
        qint64 offset;
        qint64 size;
    };

    static void AppendTable(const Font& font, QByteArray& bytes, const Sink& sink);
    static void AppendChar(const Character& character, QByteArray& bytes);

    [[nodiscard]] std::vector<TableEntry> ReadTable(const LittleEndianBytes& bytes) const;
    void ReadChar(const LittleEndianBytes& bytes, const TableEntry& entry, Font& font) const;
};

} // namespace Glyphor
