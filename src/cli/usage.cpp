#include "cli/command_line_parser.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype SynopsisWidth = 80;

bool IsListed(const CommandLineOption& option)
{
    return !option.description.isEmpty();
}

bool BeginsPair(const CommandLineOption& option)
{
    return option.exclusiveWith > option.id;
}

bool EndsPair(const CommandLineOption& option)
{
    return option.exclusiveWith != OptionId::None && !BeginsPair(option);
}

QString SynopsisForm(const CommandLineOption& option)
{
    QString form = BeginsPair(option)
                       ? u"{%1|%2}"_s.arg(option.Form(), OptionOf(option.exclusiveWith).Form())
                       : option.Form();
    if (option.multiple)
        form += u" ..."_s;
    return form;
}

QString Synopsis()
{
    QString text;
    QString line = u"   Glyphor_CL.exe "_s;
    const QString indent(7, u' ');
    for (const CommandLineOption& option : CommandLineOptions()) {
        if (!IsListed(option) || EndsPair(option))
            continue;
        const QString form = SynopsisForm(option);
        if (line.size() + 1 + form.size() > SynopsisWidth) {
            text += line + u'\n';
            line = indent;
        }
        line += u' ' + form;
    }
    return text + line + u'\n';
}

QString Keywords(const ParameterKeywordTable& table)
{
    const auto visible = [](const auto& entry) { return !entry.hidden; };
    qsizetype width = 0;
    for (const auto& entry : table.Entries()) {
        if (visible(entry))
            width = std::max(width, entry.keyword.size());
    }
    QString text;
    for (const auto& entry : table.Entries()) {
        if (visible(entry))
            text += u"       "_s + entry.keyword.leftJustified(width) + u"  "_s +
                    entry.description + u'\n';
    }
    return text;
}

QString Entry(const CommandLineOption& option)
{
    QString text = u"   "_s + option.Form();
    if (option.multiple)
        text += u"  (accepted multiple times)"_s;
    text += u"\n     "_s;
    if (option.exclusiveWith != OptionId::None)
        text += u"(OR required)  "_s;
    else if (option.required)
        text += u"(required)  "_s;
    text += option.description + u'\n';
    for (const CommandLineParameter& parameter : option.parameters) {
        if (parameter.keywords != nullptr)
            text += Keywords(*parameter.keywords);
    }
    return text;
}

} // namespace

QString CommandLineParser::KeywordList(const ParameterKeywordTable& keywords) const
{
    return Keywords(keywords);
}

QString CommandLineParser::usage() const
{
    QString text = u"USAGE:\n"_s + Synopsis() + u"\nWhere:\n"_s;
    for (const CommandLineOption& option : CommandLineOptions()) {
        if (!IsListed(option) || EndsPair(option))
            continue;
        text += Entry(option);
        if (BeginsPair(option))
            text += u"    -- OR --\n"_s + Entry(OptionOf(option.exclusiveWith));
    }
    text += u"   @<file path>  (accepted multiple times)\n"
            "     Reads options from a file, one a line, with quotes and # comments.\n"_s;
    return text;
}

} // namespace Glyphor
