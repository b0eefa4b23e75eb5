#pragma once

#include "model/font.h"

#include <memory>
#include <vector>

class QDataStream;

namespace Glyphor {

// A font as it was at one time. It is made fast, as it shares the pixels with the font until they
// are edited, and may be used on any thread.
class FontCopy
{
public:
    explicit FontCopy(const Font& font);

    // The characters and metrics, all that are kept in SIF files. Every character is enabled.
    [[nodiscard]] std::unique_ptr<Font> WithAllCharacters() const;

    // What SIF files do not keep.
    void WriteRest(QDataStream& out) const;

private:
    struct CopiedCharacter
    {
        quint16 code = 0;
        CharMetrics metrics;
        QByteArray pixels;
        QByteArray frame;
    };

    struct CopiedPair
    {
        quint16 left = 0;
        KerningPair pair;
    };

    using CopiedLabel = std::pair<quint16, std::shared_ptr<const CharacterLabel>>;

    FontMetrics metrics_;
    QString name_;
    QString toolText_;
    bool hasKerning_;
    CodeSet enabled_;
    CodeSet leftOut_;
    std::vector<CopiedCharacter> characters_;
    std::vector<CopiedPair> kerning_;
    std::vector<CopiedLabel> labels_;
};

// Gives the font of a SIF file the rest of what it was. False where the stream is damaged.
[[nodiscard]] bool ReadRest(QDataStream& in, Font& font);

} // namespace Glyphor
