#pragma once

#include "files/c_scanner.h"
#include "files/font_file.h"

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Glyphor {

// Reads a font from its C source: no parser of the language, but a search for the names that such
// files have and for the numbers behind them, in any layout.
class CFontReader
{
public:
    explicit CFontReader(QByteArray text) : scanner_(std::move(text)) {}

    // Throws a CriticalException that tells the line and the column.
    std::unique_ptr<Font> Read();

private:
    // A row of the table of characters.
    struct Entry
    {
        CharMetrics metrics;
        std::string_view arrayName;
        int code = -1; // from the property blocks
    };

    void WarnOfOtherContents() const;
    QString ReadName();
    void ReadType(FontFormat& format, EncodingType& encoding);
    void ReadMetrics(Font& font);
    quint8 ReadMetric();

    void FindTable();
    void ReadTable(const FontMetrics& font);
    void ReadEntry(std::string_view text, const FontMetrics& font);
    int Field(std::string_view element) const;

    void ReadCodes();
    void ReadBlock();
    void AssignBlock(std::size_t at, int first, int last, int index);
    void CheckCodes();

    void FindArrays();
    [[nodiscard]] std::string_view DeclarationBefore(std::size_t brace) const;
    void ReadBitmaps(Font& font);
    void ReadBytes(std::string_view values, int bitsPerPixel, std::size_t size);

    CScanner scanner_;
    std::string tableType_; // "GUI_CHARINFO" or "GUI_CHARINFO_EXT"
    std::string_view tableName_;
    std::string blockType_;
    std::vector<Entry> entries_;
    CodeSet codes_;                                                 // of the blocks
    std::unordered_map<std::string_view, std::string_view> arrays_; // name to values
    std::vector<uchar> bytes_;
    std::size_t byteCount_ = 0; // of the last array, even those that were too many
    int strangeBytes_ = 0;      // neither numbers nor patterns
};

} // namespace Glyphor
