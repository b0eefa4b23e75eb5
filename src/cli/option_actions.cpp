#include "cli/option_actions.h"

#include "actions/action_merge_font.h"
#include "actions/action_save_file.h"
#include "actions/edit_actions.h"
#include "actions/edit_table.h"
#include "app/critical_exception.h"
#include "app/settings.h"
#include "cli/installed_fonts.h"
#include "files/file_types.h"

#include <algorithm>
#include <array>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// The parameter of an occurrence, or 1 where it was left out.
int CountOf(const OptionOccurrence& occurrence, std::size_t parameter)
{
    return std::holds_alternative<int>(occurrence.values[parameter])
               ? occurrence.Get<int>(parameter)
               : 1;
}

std::shared_ptr<ActionOpenFont> MakeOpening(ActionType type, const QString& path,
                                            const RunOptions& options, Session& session)
{
    auto action = std::make_shared<ActionOpenFont>(session, type);
    action->Args() = options.open;
    action->Args().path = path;
    action->Args().render.useStrikes = Settings::Instance().useIncludedBitmaps.value();
    return action;
}

std::shared_ptr<Action> MakeOpen(const OptionOccurrence& occurrence, const RunOptions& options,
                                 Session& session)
{
    return MakeOpening(ActionType::OpenFont, occurrence.Get<QString>(0), options, session);
}

std::shared_ptr<Action> MakeCreate(const OptionOccurrence& occurrence, const RunOptions& options,
                                   Session& session)
{
    const InstalledFont font =
        FindInstalledFont(occurrence.Get<QString>(0), occurrence.Get<QString>(1));
    auto action = MakeOpening(ActionType::CreateFont, font.path, options, session);
    action->Args().render.faceIndex = font.faceIndex;
    return action;
}

// The options that say how a font is opened speak of the other font where its file asks for them.
// What characters it has, and from where, is said of the opened font alone.
std::shared_ptr<Action> MakeMerge(const OptionOccurrence& occurrence, const RunOptions& options,
                                  Session& session)
{
    auto action = std::make_shared<ActionMergeFont>(session);
    ActionOpenFontArgs& source = action->Args().source;
    source = options.open;
    source.path = occurrence.Get<QString>(0);
    source.selection.reset();
    source.name.reset();
    source.render.map.clear();
    source.sources.clear();
    source.images.clear();
    action->Args().alignment = options.alignment;
    if (std::holds_alternative<int>(occurrence.values[1]))
        action->Args().mode = static_cast<MergeMode>(occurrence.Get<int>(1));
    const auto type = FileTypeOf(source.path);
    if (type && IsScalable(*type))
        throw CriticalException(u"Unsupported format!"_s, u"Only C, XBF, SIF and BDF allowed."_s);
    return action;
}

std::shared_ptr<Action> MakeSave(const OptionOccurrence& occurrence, const RunOptions&,
                                 Session& session)
{
    auto action = std::make_shared<ActionSaveFile>(session, ActionType::SaveFont);
    action->Args().path = occurrence.Get<QString>(0);
    return action;
}

std::shared_ptr<Action> MakeKerning(const OptionOccurrence& occurrence, const RunOptions&,
                                    Session& session)
{
    auto action = std::make_shared<ActionSaveFile>(session, ActionType::SaveKerning);
    action->Args() = {occurrence.Get<QString>(0), true};
    return action;
}

std::shared_ptr<Action> MakeHeader(const OptionOccurrence& occurrence, const RunOptions&,
                                   Session& session)
{
    auto action = std::make_shared<ActionSaveFile>(session, ActionType::SaveHeader);
    action->Args().path = occurrence.Get<QString>(0);
    return action;
}

std::shared_ptr<Action> MakeFontEdit(const OptionOccurrence& occurrence, const RunOptions&,
                                     Session& session)
{
    const auto type = static_cast<ActionType>(occurrence.Get<int>(0));
    if (CountOf(occurrence, 1) == 0)
        return nullptr;
    auto action = std::make_shared<ActionFont>(session, type);
    action->SetRepeat(CountOf(occurrence, 1));
    return action;
}

std::shared_ptr<Action> MakeCharEdit(const OptionOccurrence& occurrence, const RunOptions&,
                                     Session& session)
{
    const auto type = static_cast<ActionType>(occurrence.Get<int>(0));
    const bool hasValue = EditOf(type)->applyValue != nullptr;
    const int number = CountOf(occurrence, 2);
    if (number == 0 && !hasValue)
        return nullptr;
    auto action = std::make_shared<ActionChar>(session, type);
    const CodeRange range = Ordered(occurrence.Get<CodeRange>(1));
    action->Args() = {.first = range.first, .last = range.last, .value = hasValue ? number : 0};
    if (!hasValue)
        action->SetRepeat(number);
    return action;
}

// Edits have the kind that their keyword names.
constexpr std::array OptionActions = {
    OptionAction{OptionId::Open, ActionType::OpenFont, MakeOpen},
    OptionAction{OptionId::Create, ActionType::CreateFont, MakeCreate},
    OptionAction{OptionId::EditFont, ActionType::None, MakeFontEdit},
    OptionAction{OptionId::EditChar, ActionType::None, MakeCharEdit},
    OptionAction{OptionId::Merge, ActionType::MergeFont, MakeMerge},
    OptionAction{OptionId::Save, ActionType::SaveFont, MakeSave},
    OptionAction{OptionId::Kerning, ActionType::SaveKerning, MakeKerning},
    OptionAction{OptionId::Header, ActionType::SaveHeader, MakeHeader},
    OptionAction{OptionId::ListFonts, ActionType::ListFonts},
    OptionAction{OptionId::Exit, ActionType::ExitProgram},
    OptionAction{OptionId::Help, ActionType::PrintUsage},
    OptionAction{OptionId::ListCharsets, ActionType::ListCharsets},
    OptionAction{OptionId::Version, ActionType::PrintVersion},
};

} // namespace

const OptionAction* ActionOf(OptionId option)
{
    const auto* const row = std::ranges::find(OptionActions, option, &OptionAction::option);
    return row != OptionActions.end() ? row : nullptr;
}

} // namespace Glyphor
