#include "files/kerning_file.h"

#include "files/file_types.h"
#include "model/code_text.h"

#include <algorithm>

namespace Glyphor {

namespace {

// Wide enough for every distance, so that they stand in columns.
int DistanceWidth(const std::vector<KerningEntry>& pairs)
{
    const bool areShort = std::ranges::all_of(
        pairs, [](const KerningEntry& pair) { return pair.distance >= -9 && pair.distance <= 9; });
    return areShort ? 2 : 3;
}

void WritePairs(CFileText& text, const std::vector<KerningEntry>& pairs)
{
    constexpr std::size_t pairsPerLine = 4;
    const int width = DistanceWidth(pairs);
    for (std::size_t index = 0; index < pairs.size(); ++index) {
        if (index % pairsPerLine == 0)
            text.Add("  ");
        const KerningEntry& pair = pairs[index];
        text.Add("0x", Hex4(pair.left), ", 0x", Hex4(pair.right), ", (U16)",
                 Decimal(pair.distance, width), ", ");
        if (index % pairsPerLine == pairsPerLine - 1 || index + 1 == pairs.size())
            text.Line();
    }
}

} // namespace

std::vector<KerningEntry> EnabledKerning(const Font& font)
{
    std::vector<KerningEntry> pairs;
    font.ForEachEnabled([&](quint16 left, const Character& character) {
        for (const KerningPair& pair : character.kerning) {
            if (font.IsEnabled(pair.right))
                pairs.push_back({left, pair.right, pair.distance});
        }
    });
    return pairs;
}

KerningFileC::KerningFileC(const QString& path, const CFileOptions& options)
    : KerningFile(path), options_(options)
{}

void KerningFileC::Write(const std::vector<KerningEntry>& pairs, const Font& font)
{
    const QByteArray array = 'a' + CName(font.Name());
    const QByteArray count = CSymbol(CName(font.Name()) + "_NumPairs");
    Replace([&](const Sink& sink) {
        CFileText text(options_, fileName(), font.Name(), sink);
        text.Begin(font.Metrics().height, "Kerning data");
        text.Triple("The following lines need to be included in any file using the kerning pairs:");
        text.Line("extern GUI_CONST_STORAGE U16 ", array, "[];");
        text.Line("extern                   U32  ", count, ";");
        text.Line();
        text.Triple("Kerning pairs");
        text.Line("GUI_CONST_STORAGE U16 ", array, "[] = {");
        if (pairs.empty())
            text.Line("  0, "); // C has no empty arrays; there are still no pairs in it
        WritePairs(text, pairs);
        text.Line("};");
        text.Line();
        text.Triple("Number of kerning pairs: ", Decimal(static_cast<int>(pairs.size())));
        text.Line("U32 ", count, " = (sizeof(", array, ") / sizeof(", array, "[0])) / 3;");
        text.Line();
        text.End();
    });
}

std::unique_ptr<KerningFile> MakeKerningFile(const QString& path, const CFileOptions& options)
{
    if (FileTypeOf(path) == FileType::C)
        return std::make_unique<KerningFileC>(path, options);
    if (IsBinaryKerningName(path))
        return std::make_unique<KerningFileBinary>(path);
    return nullptr;
}

} // namespace Glyphor
