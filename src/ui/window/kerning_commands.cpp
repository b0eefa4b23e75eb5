#include "ui/window/kerning_commands.h"

#include "actions/action_replace_chars.h"
#include "actions/session.h"
#include "app/engine_texts.h"
#include "model/code_text.h"
#include "ui/support/guarded.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

void KerningCommands::SetPair(quint16 code, quint16 next, int distance)
{
    const auto action = std::make_shared<ActionReplaceChars>(
        session_, QT_TRANSLATE_NOOP("Engine", "Kerning with 0x%2 set to %3."),
        QStringList{Hex4Text(next), QString::number(distance)});
    std::vector<KerningPair>& pairs = action->Change(code).kerning;
    const auto found = std::ranges::find(pairs, next, &KerningPair::right);
    if (found != pairs.end())
        found->distance = distance;
    else
        pairs.insert(
            std::ranges::find_if(pairs, [next](const auto& pair) { return pair.right > next; }),
            {next, distance});
    Guarded([&] { action->Run(); });
}

void KerningCommands::RemovePairs(quint16 code, const CodeSet& next)
{
    QStringList codes;
    for (const quint16 right : next)
        codes.append(u"0x"_s + Hex4Text(right));
    const auto action = std::make_shared<ActionReplaceChars>(
        session_, QT_TRANSLATE_NOOP("Engine", "Kerning with %2 removed."),
        QStringList(codes.join(u", "_s)));
    std::erase_if(action->Change(code).kerning,
                  [&next](const KerningPair& pair) { return next.Test(pair.right); });
    Guarded([&] { action->Run(); });
}

} // namespace Glyphor
