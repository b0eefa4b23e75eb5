#include "ui/editor/neighbours.h"

#include "ui/support/char_picture.h"
#include "ui/support/dialog_parts.h"

#include <algorithm>
#include <optional>

namespace Glyphor {

namespace {

struct TextPlace
{
    const Character* left = nullptr; // null for one without ink as well
    const Character* right = nullptr;
    quint16 rightCode = 0;

    [[nodiscard]] int Count() const { return int(left != nullptr) + int(right != nullptr); }
};

bool HasInk(const Character& character)
{
    return std::ranges::any_of(character.bitmap->Data(), [](char byte) { return byte != 0; });
}

std::optional<quint16> CodeAt(const QString& text, qsizetype index, const Font& font)
{
    if (index < 0 || index >= text.size())
        return {};
    return Encoded(text[index].unicode(), font.Metrics().encoding);
}

const Character* InkAt(const QString& text, qsizetype index, const Font& font)
{
    const auto code = CodeAt(text, index, font);
    const Character* const character =
        code && font.IsEnabled(*code) ? font.FindChar(*code) : nullptr;
    return character != nullptr && HasInk(*character) ? character : nullptr;
}

TextPlace BestPlace(const QString& text, const Font& font, quint16 code)
{
    TextPlace best;
    for (qsizetype index = 0; index < text.size() && best.Count() < 2; ++index) {
        if (CodeAt(text, index, font) != code)
            continue;
        const TextPlace place = {InkAt(text, index - 1, font), InkAt(text, index + 1, font),
                                 CodeAt(text, index + 1, font).value_or(0)};
        if (place.Count() > best.Count())
            best = place;
    }
    return best;
}

int KerningOf(const Character& left, quint16 right)
{
    const auto pair = std::ranges::find(left.kerning, right, &KerningPair::right);
    return pair == left.kerning.end() ? 0 : pair->distance;
}

Neighbour NeighbourAt(int x, const Character& character)
{
    const CharInfo& info = character.info;
    const int y = IsLegacyFormat(info.font.format) ? 0 : info.yPos;
    return {CharPicture(character, Qt::black, Qt::white), QPoint(x + info.xPos, y)};
}

} // namespace

std::vector<Neighbour> NeighboursIn(const QString& text, const Font& font, quint16 code)
{
    std::vector<Neighbour> neighbours;
    const TextPlace place = BestPlace(text, font, code);
    if (place.left != nullptr)
        neighbours.push_back(NeighbourAt(
            -KerningOf(*place.left, code) - place.left->info.cursorDistance, *place.left));
    const Character* const own = font.FindChar(code);
    if (place.right != nullptr && own != nullptr)
        neighbours.push_back(
            NeighbourAt(own->info.cursorDistance + KerningOf(*own, place.rightCode), *place.right));
    return neighbours;
}

} // namespace Glyphor
