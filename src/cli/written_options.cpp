#include "cli/written_options.h"

#include "app/file_name.h"
#include "app/settings.h"
#include "cli/command_line_option.h"
#include "cli/feature_list.h"
#include "cli/font_height.h"
#include "model/code_text.h"
#include "render/face_variations.h"

#include <QLocale>

#include <algorithm>
#include <initializer_list>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString NameOf(OptionId id)
{
    return u'-' + OptionOf(id).longName;
}

QString KeywordFor(const ParameterKeywordTable& keywords, int value)
{
    return std::ranges::find(keywords.Entries(), value, &ParameterKeywordTable::Entry::value)
        ->keyword;
}

// No option and no file of arguments.
QString PathWord(const QString& path)
{
    return path.startsWith(u'-') || path.startsWith(u'@') ? u"./"_s + path : path;
}

QString AxesText(const std::vector<AxisPosition>& axes)
{
    QStringList texts;
    for (const AxisPosition& position : axes)
        texts.append(TextOf(std::vector{position}));
    return texts.join(u',');
}

// As pixels of the resolution that points are for.
FontSize InPixels(const FontSize& size, int dotsPerInch)
{
    RenderOptions options;
    options.SetHeight(size, dotsPerInch);
    return {options.height, false, options.heightUnit, options.sixtyFourths};
}

QString RangeText(int first, int last)
{
    const QString text = u"0x"_s + Hex4Text(quint16(first));
    return first == last ? text : text + u"-0x"_s + Hex4Text(quint16(last));
}

QStringList WordsOfRanges(const CodeSet& codes)
{
    if (codes.IsEmpty())
        return {NameOf(OptionId::Disable), u"all"_s};
    QStringList words;
    for (int first = codes.Next(0); first < CodeSet::Limit;) {
        const int end = codes.Next(first, false);
        words += {NameOf(OptionId::Enable), RangeText(first, end - 1)};
        first = codes.Next(end);
    }
    return words;
}

void AddSources(const ActionOpenFontArgs& args, QStringList& words)
{
    for (const FontSource& source : args.sources) {
        words += {NameOf(OptionId::Source), PathWord(source.path), TextOf(source.map)};
        if (source.size)
            words.append(TextOf(InPixels(*source.size, args.dotsPerInch)));
    }
}

void AddRendering(const RenderOptions& render, QStringList& words)
{
    using enum OptionId;
    const auto add = [&words](bool isGiven, OptionId id, const QString& value = {}) {
        if (isGiven)
            words.append(NameOf(id));
        if (isGiven && !value.isEmpty())
            words.append(value);
    };
    add((render.effects & BoldEffect) != 0, Bold);
    add((render.effects & ItalicEffect) != 0, Italic);
    add(render.faceIndex != 0, Face, QString::number(render.faceIndex));
    add(render.fitsInk, Fit);
    add(render.hinting != Glyphor::Hinting::Default, OptionId::Hinting,
        KeywordFor(HintingKeywords(), int(render.hinting)));
    add(render.gamma != 1, Gamma,
        QString::number(render.gamma, 'g', QLocale::FloatingPointShortest));
    add(!render.axes.empty(), Axes, AxesText(render.axes));
    add(!render.features.empty(), Features, TextOf(render.features));
    add(render.charmapIndex >= 0, Charmap, QString::number(render.charmapIndex));
    add(!render.map.empty(), Map, TextOf(render.map));
}

} // namespace

QStringList WordsOf(const ActionOpenFontArgs& args, const std::optional<QStringList>& selection)
{
    QStringList words = {PathWord(args.path), NameOf(OptionId::Height),
                         TextOf(FontSize{args.render.height, false, args.render.heightUnit,
                                         args.render.sixtyFourths})};
    const FontFormat format = args.format.value_or(FontFormat::Standard);
    if (format != FontFormat::Standard)
        words += {NameOf(OptionId::Format), KeywordFor(FormatKeywords(), int(format))};
    const EncodingType encoding = args.encoding.value_or(EncodingType::Unicode);
    if (encoding != EncodingType::Unicode)
        words += {NameOf(OptionId::Encoding), KeywordFor(EncodingKeywords(), int(encoding))};
    AddRendering(args.render, words);
    AddSources(args, words);
    if (args.name)
        words += {NameOf(OptionId::Name), *args.name};
    if (args.selection)
        words += selection ? *selection : WordsOfRanges(*args.selection);
    return words;
}

// A dash in front would begin an option.
std::optional<QStringList> WordsOfText(const CodeSet& codes)
{
    QString text;
    for (const quint16 code : codes) {
        if (!QChar(code).isPrint())
            return std::nullopt;
        text.append(QChar(code));
    }
    if (text.startsWith(u'-'))
        text = text.sliced(1) + u'-';
    if (text.isEmpty() || text == u'-')
        return std::nullopt;
    return QStringList{NameOf(OptionId::Chars), text};
}

QStringList PreferenceWords()
{
    Settings& settings = Settings::Instance();
    QStringList words = {NameOf(OptionId::Defaults)};
    for (const Preference* const preference : std::initializer_list<const Preference*>{
             &settings.useIncludedBitmaps, &settings.logActions, &settings.writePaths,
             &settings.useSysLineEndings, &settings.lineEndings}) {
        if (!preference->IsDefault())
            words += {NameOf(OptionId::Set),
                      preference->Key() + u'=' + preference->Current().toString()};
    }
    return words;
}

namespace {

// No shell changes these.
bool IsPlain(QChar character)
{
    return (character < u'\x80' && character.isLetterOrNumber()) ||
           QStringView(u"_@%+=:,./-").contains(character);
}

// A byte that is no character can't be copied as one, so the shell makes it.
QString QuotedText(QChar character)
{
    if (character == u'\'')
        return u"'\\''"_s;
    if (!HasRawBytes(QStringView(&character, 1)))
        return character;
    const int byte = character.unicode() & 0xFF;
    return u"'\"$(printf '\\%1')\"'"_s.arg(byte, 3, 8, QChar(u'0'));
}

} // namespace

QString ShellLine(const QStringList& words)
{
    QStringList quoted;
    for (const QString& word : words) {
        if (!word.isEmpty() && std::ranges::all_of(word, IsPlain)) {
            quoted.append(word);
            continue;
        }
        QString text;
        for (qsizetype index = 0; index < word.size(); ++index) {
            const bool isPair = word[index].isHighSurrogate() && index + 1 < word.size();
            text += isPair ? QString(word[index]) + word[index + 1] : QuotedText(word[index]);
            index += isPair ? 1 : 0;
        }
        quoted.append(u'\'' + text + u'\'');
    }
    return quoted.join(u' ');
}

} // namespace Glyphor
