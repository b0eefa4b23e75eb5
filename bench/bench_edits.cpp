// Measures edits of a font of 20,000 characters against a bare loop over the same bytes, and
// enabling every code against copying the font.

#include "actions/edit_actions.h"
#include "actions/session.h"
#include "timing.h"

#include <cstdio>

using namespace Glyphor;

namespace {

constexpr int CharCount = 20000;
constexpr int Size = 24; // pixels, each way
constexpr int Steps = 10;
constexpr int Runs = 15;

std::unique_ptr<Font> MakeFont()
{
    auto font = std::make_unique<Font>(FontFormat::AA4, EncodingType::Unicode);
    font->SetHeight(Size);
    for (int code = 0; code < CharCount; ++code) {
        Character& character = font->AddChar(static_cast<quint16>(code));
        character.info.SetWidth(Size);
        character.info.height = Size;
        character.bitmap->AssignData(QByteArray(Size * Size / 2, char(code)));
    }
    return font;
}

// All characters' bytes in one piece: nothing about the model can be faster than passing over them.
std::vector<quint8> BytesOf(const Font& font)
{
    std::vector<quint8> bytes;
    for (int code = 0; code < CharCount; ++code) {
        const QByteArray& data = font.FindChar(static_cast<quint16>(code))->bitmap->Data();
        bytes.insert(bytes.end(), data.begin(), data.end());
    }
    return bytes;
}

// Rotates every row by one pixel of 4 bits.
void ShiftBytes(std::vector<quint8>& bytes)
{
    constexpr std::size_t length = Size / 2;
    for (std::size_t row = 0; row < bytes.size(); row += length) {
        unsigned carry = bytes[row + length - 1] & 15U;
        for (std::size_t i = row; i < row + length; ++i) {
            const unsigned byte = bytes[i];
            bytes[i] = static_cast<quint8>(carry << 4 | byte >> 4);
            carry = byte & 15U;
        }
    }
}

void CopyFont(const Font& font)
{
    Font copy(font.Metrics().format, font.Metrics().encoding);
    const CodeSet& codes = font.ExistingCodes();
    for (const quint16 code : codes) {
        const Character& from = *font.FindChar(code);
        Character& to = copy.AddChar(code);
        to.info.SetWidth(from.info.width);
        to.info.height = from.info.height;
        to.bitmap->AssignData(
            QByteArray(from.bitmap->Data().constData(), from.bitmap->Data().size()));
    }
}

} // namespace

int main()
{
    Session session;
    session.ReplaceFont(MakeFont(), {});
    std::vector<quint8> bytes = BytesOf(*session.CurrentFont());

    std::vector<double> edits;
    std::vector<double> bare;
    std::vector<double> enabling;
    std::vector<double> copying;
    for (int run = 0; run < Runs; ++run) {
        const auto shift = std::make_shared<ActionChar>(session, ActionType::ShiftRight);
        shift->Args() = {0, 0xFFFF};
        shift->SetRepeat(Steps);
        edits.push_back(Seconds([&] { shift->Run(); }));
        bare.push_back(Seconds([&] {
            for (int step = 0; step < Steps; ++step)
                ShiftBytes(bytes);
        }));

        const auto enable = std::make_shared<ActionCharState>(session, ActionType::Enable);
        enable->Args().last = 0xFFFF;
        enabling.push_back(Seconds([&] {
            enable->Run();
            enable->Undo();
        }));
        copying.push_back(Seconds([&] { CopyFont(*session.CurrentFont()); }));
    }
    std::printf("%d edits over %d characters\n", Steps * CharCount, CharCount);
    std::printf("  actions %.1f ms, bare loop %.1f ms: %.2f\n", Median(edits) * 1e3,
                Median(bare) * 1e3, Median(edits) / Median(bare));
    std::printf("Enabling all codes and undoing it\n");
    std::printf("  actions %.1f ms, copying the font %.1f ms: %.2f\n", Median(enabling) * 1e3,
                Median(copying) * 1e3, Median(enabling) / Median(copying));
    return 0;
}
