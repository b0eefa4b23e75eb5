#pragma once

#include "files/font_file_binary.h"

namespace Glyphor {

// A system independent font, which firmware uses straight from memory: a header, the runs of
// consecutive codes, a record for each character, and their pixels. Files of an older kind do not
// say their format; the answer has to.
class FontFileSIF final : public FontFileBinary
{
public:
    using FontFileBinary::FontFileBinary;

    [[nodiscard]] bool TellsFormat() override;
    std::unique_ptr<Font> Read() override;
    void Write(const Font& font) override;

    // What Write() writes, which may be done on any thread while nobody edits the font.
    static void Compose(const Font& font, const Sink& sink);

protected:
    [[nodiscard]] QString FailureTitle() const override;

private:
    struct CharRecord
    {
        quint16 code;
        CharMetrics metrics;
        int bytesPerLine; // of plain records; they are checked
        qint64 offset;    // of the bitmap
    };

    // The records of the characters, whose bitmaps follow from the offset on.
    static void AppendRecords(const Font& font, quint32 bitmapOffset, QByteArray& bytes,
                              const Sink& sink);

    [[nodiscard]] std::vector<CodeRange> ReadRuns(const LittleEndianBytes& bytes) const;
    [[nodiscard]] static CharRecord ReadRecord(const LittleEndianBytes& bytes, qint64 at,
                                               quint16 code, const FontMetrics& font);
    [[nodiscard]] static std::vector<CharRecord> ReadRecords(const LittleEndianBytes& bytes,
                                                             const std::vector<CodeRange>& runs,
                                                             const FontMetrics& font);
    void CheckSize(const LittleEndianBytes& bytes, qint64 expected, bool isAnswered) const;
    void AddChars(const LittleEndianBytes& bytes, const std::vector<CharRecord>& records,
                  qint64 bitmapOffset, Font& font) const;
};

} // namespace Glyphor
