#include "cli/font_report.h"

#include "app/file.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "cli/command_line_option.h"
#include "files/c_file_text.h"
#include "files/font_file_c.h"
#include "files/kerning_file.h"
#include "model/code_text.h"
#include "model/font.h"

#include <QCryptographicHash>
#include <QJsonArray>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString KeywordOf(const ParameterKeywordTable& keywords, int value)
{
    const auto entries = keywords.Entries();
    return std::ranges::find(entries, value, &ParameterKeywordTable::Entry::value)->keyword;
}

QJsonArray RangesOf(const std::vector<CodeRange>& runs)
{
    const auto code = [](quint16 value) { return u"0x"_s + Hex4Text(value); };
    QJsonArray ranges;
    for (const CodeRange& run : runs)
        ranges.append(QJsonArray{code(run.first), code(run.last)});
    return ranges;
}

} // namespace

QJsonObject FontReport(const Font& font)
{
    const FontMetrics& metrics = font.Metrics();
    QJsonArray leftOut;
    for (const quint16 code : font.LeftOutCodes())
        leftOut.append(QJsonObject{{u"code"_s, u"0x"_s + Hex4Text(code)},
                                   {u"reason"_s, u"larger than a character can be"_s}});
    return {
        {u"name"_s, Shown(font.Name())},
        {u"identifier"_s, QString::fromLatin1("GUI_Font" + CName(font.Name()))},
        {u"format"_s, KeywordOf(FormatKeywords(), int(metrics.format))},
        {u"bitsPerPixel"_s, BitsPerPixel(metrics.format)},
        {u"encoding"_s, KeywordOf(EncodingKeywords(), int(metrics.encoding))},
        {u"height"_s, metrics.height},
        {u"baseline"_s, metrics.baseline},
        {u"lowercaseHeight"_s, metrics.lowercaseHeight},
        {u"capitalHeight"_s, metrics.capitalHeight},
        {u"characters"_s, font.SavedCodes().Count()},
        {u"ranges"_s, RangesOf(font.EnabledRuns())},
        {u"leftOut"_s, leftOut},
        {u"kerningPairs"_s, qint64(EnabledKerning(font).size())},
    };
}

QJsonObject FlashReport(const Font& font)
{
    const FlashParts parts = FlashPartsOf(font);
    return {
        {u"pixels"_s, parts.pixels}, {u"characters"_s, parts.characters},
        {u"ranges"_s, parts.ranges}, {u"structure"_s, parts.structure},
        {u"total"_s, parts.Total()},
    };
}

QJsonObject FileReport(const QString& path, const char* kind)
{
    QJsonObject report{{u"file"_s, Shown(path)}, {u"kind"_s, QString::fromLatin1(kind)}};
    File file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (KindOf(path) != FileKind::Ordinary || !file.open(QIODevice::ReadOnly) ||
        !hash.addData(&file))
        return report;
    report[u"size"_s] = file.size();
    report[u"sha256"_s] = QString::fromLatin1(hash.result().toHex());
    return report;
}

} // namespace Glyphor
