#include "cli/run_record.h"

#include "actions/action_merge_font.h"
#include "actions/action_save_file.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file.h"
#include "app/file_name.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "app/version.h"
#include "cli/font_report.h"
#include "files/file_types.h"
#include "model/code_text.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <string_view>

namespace Glyphor {

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

// As compilers write names for Make; a colon, which Make takes for the end of the targets, too.
QByteArray InRule(const QString& path)
{
    QByteArray escaped;
    qsizetype backslashes = 0;
    for (const char byte : BytesOf(path)) {
        if (byte == '\n' || byte == '\r')
            throw CriticalException(
                Engine::tr("The name %1 has a line end, which dependency files can't have.")
                    .arg(Shown(path)));
        if (byte == ' ' || byte == '\t')
            escaped.append(backslashes + 1, '\\');
        else if (byte == '#' || byte == ':')
            escaped.append('\\');
        else if (byte == '$')
            escaped.append('$');
        escaped.append(byte);
        backslashes = byte == '\\' ? backslashes + 1 : 0;
    }
    return escaped;
}

// The fields of a place that it has.
QJsonObject PlaceReport(const Place& place)
{
    QJsonObject report;
    if (!place.file.isEmpty())
        report[u"file"_s] = Shown(place.file);
    if (place.line > 0)
        report[u"line"_s] = place.line;
    if (!place.option.isEmpty())
        report[u"option"_s] = Shown(place.option);
    return report;
}

QJsonArray WarningList(const std::vector<RunWarning>& warnings)
{
    QJsonArray list;
    for (const RunWarning& warning : warnings) {
        QJsonObject entry = PlaceReport(warning.place);
        entry[u"text"_s] = warning.text;
        list.append(entry);
    }
    return list;
}

} // namespace

RunRecord::RunRecord(const QStringList& argumentFiles,
                     const std::vector<OptionOccurrence>& occurrences)
{
    for (const QString& path : argumentFiles)
        inputs_.push_back({"arguments", path});
    for (const OptionOccurrence& occurrence : occurrences) {
        QStringList words = occurrence.words;
        std::ranges::transform(words, words.begin(),
                               [](const QString& word) { return Shown(word); });
        optionsInForce_.append(QJsonArray::fromStringList(words));
        if (occurrence.Id() == OptionId::ReadPattern)
            inputs_.push_back({"pattern", occurrence.Get<QString>(0)});
        if (occurrence.Id() == OptionId::TextFile)
            inputs_.push_back({"text", occurrence.Get<QString>(0)});
    }
}

void RunRecord::Add(const Action& action)
{
    if (const auto* const open = dynamic_cast<const ActionOpenFont*>(&action)) {
        inputs_.push_back({"font", open->Args().path});
        if (IsScalable(FileTypeOf(open->Args().path)))
            rendered_ = open->Args();
        for (const FontSource& source : open->Args().sources)
            inputs_.push_back({"source", source.path});
        for (const FontImage& image : open->Args().images)
            inputs_.push_back({"image", image.path});
    } else if (const auto* const merge = dynamic_cast<const ActionMergeFont*>(&action)) {
        inputs_.push_back({"merged font", merge->Args().source.path});
    } else if (const auto* const save = dynamic_cast<const ActionSaveFile*>(&action)) {
        const ActionType type = save->Type();
        outputs_.push_back({type == ActionType::SaveKerning  ? "kerning"
                            : type == ActionType::SaveHeader ? "header"
                                                             : "font",
                            save->Args().path});
    }
}

QString RunRecord::SavedFont() const
{
    const auto saved = std::ranges::find_if(outputs_, [](const UsedFile& output) {
        return output.kind == "font"sv && !IsBinaryKerningName(output.path);
    });
    return saved == outputs_.end() ? QString() : saved->path;
}

void RunRecord::SetMissing(std::vector<DemandGap> missing)
{
    missing_ = std::move(missing);
    isChecked_ = true;
}

QString RunRecord::CheckResult() const
{
    std::size_t count = 0;
    for (const DemandGap& entry : missing_)
        count += entry.codes.size();
    return count == 0 ? Engine::tr("The font has all characters that were asked for.")
                      : Engine::tr("Characters that the font does not have: %1").arg(qint64(count));
}

QJsonArray RunRecord::MissingList() const
{
    QJsonArray list;
    for (const DemandGap& entry : missing_) {
        for (const char32_t character : entry.codes) {
            QJsonObject report = PlaceReport(entry.place);
            report[u"code"_s] = UnicodeNotation(character);
            report[u"name"_s] = NameOf(character);
            report[u"reason"_s] = entry.reason;
            list.append(report);
        }
    }
    return list;
}

void RunRecord::WriteReport(const Font& font, const QString& path,
                            const std::vector<RunWarning>& warnings)
{
    QJsonObject fontReport = FontReport(font);
    if (rendered_)
        fontReport[u"em"_s] = EmSize(*rendered_);
    QJsonArray inputs;
    for (const auto& [kind, input] : inputs_)
        inputs.append(FileReport(input, kind));
    QJsonArray outputs;
    for (const auto& [kind, output] : outputs_)
        outputs.append(FileReport(output, kind));
    const QJsonObject report{
        {u"program"_s, u"%1 %2"_s.arg(Program::Name, Program::Version)},
        {u"inputs"_s, inputs},
        {u"options"_s, optionsInForce_},
        {u"settings"_s, Settings::Instance().Heeded()},
        {u"font"_s, fontReport},
        {u"flash"_s, FlashReport(font)},
        {u"missing"_s, MissingList()},
        {u"warnings"_s, WarningList(warnings)},
        {u"outputs"_s, outputs},
    };
    File(path).Replace(QJsonDocument(report).toJson());
    outputs_.push_back({"report", path});
}

void RunRecord::WriteDependencies(const QString& path) const
{
    QByteArray rule;
    QByteArray emptyRules;
    for (const UsedFile& output : outputs_)
        rule += InRule(output.path) + ' ';
    rule.back() = ':';
    for (const UsedFile& input : inputs_) {
        const QByteArray name = InRule(input.path);
        rule += " \\\n  " + name;
        emptyRules += name + ":\n";
    }
    File(path).Replace(rule + "\n" + emptyRules);
}

} // namespace Glyphor
