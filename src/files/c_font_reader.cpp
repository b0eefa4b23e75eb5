#include "files/c_font_reader.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/user_interface.h"
#include "files/c_survey.h"
#include "model/code_text.h"

#include <array>
#include <cstring>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QString ToText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr quint8 NoDigit = 0xFF;

constexpr std::array<quint8, 256> HexDigits = [] {
    std::array<quint8, 256> digits{};
    digits.fill(NoDigit);
    for (quint8 value = 0; value < 10; ++value)
        digits[static_cast<std::size_t>('0' + value)] = value;
    for (quint8 value = 10; value < 16; ++value) {
        digits[static_cast<std::size_t>('A' + value - 10)] = value;
        digits[static_cast<std::size_t>('a' + value - 10)] = value;
    }
    return digits;
}();

quint8 HexDigit(char character)
{
    return HexDigits[static_cast<uchar>(character)];
}

// The value of an element that is written as generated files write it, "0x5A"; -1 for any other.
int ShortHex(std::string_view element)
{
    if (element.size() != 4 || element[0] != '0' || element[1] != 'x')
        return -1;
    const int value = HexDigit(element[2]) << 4 | HexDigit(element[3]);
    return value <= 0xFF ? value : -1;
}

// "X" at the place of each set bit, from the most significant one on.
uchar PatternByte(std::string_view element)
{
    int value = 0;
    for (std::size_t index = 0; index < 8; ++index)
        value = value << 1 | int(index < element.size() && element[index] == 'X');
    return static_cast<uchar>(value);
}

// The four hexadecimal digits that end the name of an array; -1 where they are missing.
int CodeInName(std::string_view name)
{
    if (name.size() < 4)
        return -1;
    int code = 0;
    for (const char character : name.substr(name.size() - 4)) {
        const quint8 digit = HexDigit(character);
        if (digit == NoDigit)
            return -1;
        code = code << 4 | digit;
    }
    return code;
}

// The elements of a list between braces. Only as many are kept as any list of a font has.
struct ElementList
{
    std::array<std::string_view, 6> elements;
    std::size_t count = 0;
};

ElementList SplitElements(std::string_view list)
{
    ElementList result;
    for (std::size_t start = 0; start <= list.size(); ++result.count) {
        const std::size_t comma = std::min(list.find(',', start), list.size());
        if (result.count < result.elements.size())
            result.elements[result.count] = Trimmed(list.substr(start, comma - start));
        start = comma + 1;
    }
    return result;
}

// Whether an element is made of "X" and "_" alone, as a byte of 1 bit per pixel is.
bool IsPattern(std::string_view element)
{
    return element.size() <= 8 && element.find_first_not_of("X_") == std::string_view::npos;
}

// The identifier that ends an element, behind casts and operators.
std::string_view LastIdentifier(std::string_view element)
{
    std::size_t start = element.size();
    while (start > 0 && IsIdentifierCharacter(element[start - 1]))
        --start;
    return element.substr(start);
}

// The identifier in front of the first bracket of a declaration; empty where there is none.
std::string_view ArrayName(std::string_view declaration)
{
    const std::size_t bracket = declaration.find('[');
    return bracket == std::string_view::npos
               ? std::string_view()
               : LastIdentifier(Trimmed(declaration.substr(0, bracket)));
}

} // namespace

std::unique_ptr<Font> CFontReader::Read()
{
    const QString name = ReadName();
    FontFormat format = FontFormat::Unknown;
    EncodingType encoding = EncodingType::Unicode;
    ReadType(format, encoding);
    auto font = std::make_unique<Font>(format, encoding);
    font->SetName(name);
    ReadMetrics(*font);
    const char* const suffix = IsLegacyFormat(format) ? "" : "_EXT";
    tableType_ = std::string("GUI_CHARINFO") + suffix;
    blockType_ = std::string("GUI_FONT_PROP") + suffix;
    ReadTable(font->Metrics());
    ReadCodes();
    FindArrays();
    ReadBitmaps(*font);
    WarnOfOtherContents();
    return font;
}

void CFontReader::WarnOfOtherContents() const
{
    const QStringList others = BesideTheFont(scanner_.Text());
    if (!others.isEmpty())
        CurrentInterface().warning(
            Engine::tr("More than a font"),
            Engine::tr("The file holds more than its first font, which alone was read. Beside it: "
                       "%1")
                .arg(Enumerated(others)));
}

// The first line with the type may be a declaration: it has the identifier as well, behind any
// qualifiers of the type.
QString CFontReader::ReadName()
{
    if (!scanner_.FindText(" GUI_FONT "))
        scanner_.FailAtEnd(Engine::tr("GUI_FONT structure not found!"));
    std::string_view identifier;
    for (;;) {
        scanner_.SkipBlanks();
        const std::string_view word = scanner_.Identifier();
        if (word.empty())
            break;
        identifier = word;
    }
    if (identifier.empty())
        scanner_.Fail(Engine::tr("Array identifier of GUI_FONT structure expected but not found!"));
    const QString name = ToText(identifier);
    constexpr QStringView prefix = u"GUI_Font";
    return name.startsWith(prefix, Qt::CaseInsensitive) ? name.mid(prefix.size()) : name;
}

void CFontReader::ReadType(FontFormat& format, EncodingType& encoding)
{
    constexpr std::string_view prefix = "GUI_FONTTYPE";
    do {
        if (!scanner_.FindText(prefix))
            scanner_.FailAtEnd(Engine::tr("GUI_FONTTYPE not found!"));
    } while (IsIdentifierCharacter(scanner_.Text()[scanner_.Position() - prefix.size() - 1]));
    const std::size_t start = scanner_.Position() - prefix.size();
    scanner_.SetPosition(start);
    FormatFromFontTypeName(ToText(scanner_.Identifier()), format, encoding);
    if (format == FontFormat::Unknown)
        scanner_.FailAt(start, Engine::tr("Invalid font format!"));
}

quint8 CFontReader::ReadMetric()
{
    const int value = scanner_.Integer();
    if (value < 0 || value > CharInfo::MaxSize)
        scanner_.Fail(Engine::tr("A font metric of %1 is not possible: 0 to 255 are.").arg(value));
    return static_cast<quint8>(value);
}

void CFontReader::ReadMetrics(Font& font)
{
    font.SetHeight(ReadMetric());
    constexpr int ignoredCount = 3; // the vertical space and the magnifications
    for (int ignored = 0; ignored < ignoredCount; ++ignored)
        (void)scanner_.Integer();
    font.SetBaseline(ReadMetric());
    const quint8 lowercase = ReadMetric();
    font.SetReferenceHeights(lowercase, ReadMetric());
}

// Moves behind the brace that opens the table; declarations of it have none.
void CFontReader::FindTable()
{
    scanner_.SetPosition(0);
    while (scanner_.FindWord(tableType_)) {
        const std::size_t start = scanner_.Position();
        const std::size_t end = scanner_.Text().find_first_of("{;", start);
        if (end == std::string_view::npos)
            break;
        scanner_.SetPosition(end + 1);
        if (scanner_.Text()[end] == '{') {
            tableName_ = ArrayName(scanner_.Text().substr(start, end - start));
            return;
        }
    }
    scanner_.FailAtEnd(Engine::tr("%1 structure not found!").arg(ToText(tableType_)));
}

void CFontReader::ReadTable(const FontMetrics& font)
{
    FindTable();
    Progress progress(Engine::tr("Reading character table..."),
                      static_cast<int>(scanner_.Text().size()));
    for (;;) {
        while (IsWhitespace(scanner_.Current()) || scanner_.Current() == ',')
            scanner_.SetPosition(scanner_.Position() + 1);
        if (scanner_.Current() == '}')
            return;
        if (scanner_.Current() != '{' || entries_.size() == CodeSet::Limit)
            scanner_.Fail(Engine::tr("%1 entry not found!").arg(ToText(tableType_)));
        scanner_.SetPosition(scanner_.Position() + 1);
        const std::string_view entry = scanner_.Until('}', "\r\n{");
        if (entry.data() == nullptr)
            scanner_.Fail(
                Engine::tr("%1 entry did not end in the same line!").arg(ToText(tableType_)));
        ReadEntry(entry, font);
        progress.SetValue(static_cast<int>(scanner_.Position()));
    }
}

int CFontReader::Field(std::string_view element) const
{
    if (element.empty())
        scanner_.Fail(Engine::tr("Error parsing integer!"));
    return scanner_.Number(element);
}

void CFontReader::ReadEntry(std::string_view text, const FontMetrics& font)
{
    const auto [elements, count] = SplitElements(text);
    const bool isLegacy = IsLegacyFormat(font.format);
    if (count != (isLegacy ? 4 : 6))
        scanner_.FailAt(scanner_.PositionOf(text),
                        Engine::tr("Invalid number of elements (%1) found in structure %2!")
                            .arg(QString::number(count), ToText(tableType_)));
    Entry entry;
    entry.metrics.width = Field(elements[0]);
    entry.arrayName = LastIdentifier(elements[count - 1]);
    if (isLegacy) {
        entry.metrics.height = font.height;
        entry.metrics.cursorDistance = Field(elements[1]);
    } else {
        entry.metrics.height = Field(elements[1]);
        entry.metrics.xPos = Field(elements[2]);
        entry.metrics.yPos = Field(elements[3]);
        entry.metrics.cursorDistance = Field(elements[4]);
    }
    if (!entry.metrics.FitFields())
        scanner_.FailAt(scanner_.PositionOf(text),
                        Engine::tr("No character can have such a size or offset."));
    if (isLegacy && Field(elements[2]) != BytesPerLine(entry.metrics.width, font.bitsPerPixel))
        scanner_.FailAt(scanner_.PositionOf(text),
                        Engine::tr("The bytes per line are not what the width needs."));
    entries_.push_back(entry);
}

void CFontReader::ReadCodes()
{
    scanner_.SetPosition(0);
    while (scanner_.FindWord(blockType_))
        ReadBlock();
    CheckCodes();
}

// Declarations and casts name the type too; a block has "=" and a brace behind it.
void CFontReader::ReadBlock()
{
    const std::size_t start = scanner_.Position();
    const std::size_t end =
        std::min(scanner_.Text().find_first_of("=;{)", start), scanner_.Text().size());
    scanner_.SetPosition(end);
    if (scanner_.Current() != '=')
        return;
    scanner_.SetPosition(end + 1);
    scanner_.SkipWhitespace();
    if (scanner_.Current() != '{')
        return;
    scanner_.SetPosition(scanner_.Position() + 1);
    const auto [elements, count] = SplitElements(scanner_.Until('}', "{"));
    if (count < 4)
        scanner_.FailAt(start, Engine::tr("Invalid number of elements (%1) found in structure %2!")
                                   .arg(QString::number(count), ToText(blockType_)));
    const std::string_view address = elements[2];
    const std::size_t mark = std::min(address.find_first_of("[+"), address.size());
    // A file may hold more fonts than the first.
    const std::string_view name = LastIdentifier(Trimmed(address.substr(0, mark)));
    if (!tableName_.empty() && name != tableName_)
        return;
    int index = 0;
    if (mark < address.size()) {
        const std::size_t close = std::min(address.find(']'), address.size());
        index = Field(Trimmed(address.substr(mark + 1, close - mark - 1)));
    }
    AssignBlock(start, Field(elements[0]), Field(elements[1]), index);
}

void CFontReader::AssignBlock(std::size_t at, int first, int last, int index)
{
    const auto size = static_cast<int>(entries_.size());
    if (first < 0 || last < first || last >= CodeSet::Limit || index < 0 || index >= size ||
        last - first >= size - index)
        scanner_.FailAt(at, Engine::tr("The property block points outside the character table."));
    for (int code = first; code <= last; ++code) {
        Entry& entry = entries_[static_cast<std::size_t>(index + code - first)];
        if (entry.code >= 0 || codes_.Test(static_cast<quint16>(code)))
            scanner_.FailAt(at, Engine::tr("The property block has characters of another block."));
        entry.code = code;
        codes_.Set(static_cast<quint16>(code), true);
    }
}

// The blocks are what firmware goes by. The names of the arrays should say the same, and stand in
// for blocks that are missing.
void CFontReader::CheckCodes()
{
    int differences = 0;
    QString example;
    for (Entry& entry : entries_) {
        const int named = CodeInName(entry.arrayName);
        if (entry.code == named && named >= 0)
            continue;
        if (entry.code < 0) {
            if (named < 0 || codes_.Test(static_cast<quint16>(named)))
                scanner_.FailAt(scanner_.PositionOf(entry.arrayName),
                                Engine::tr("No property block tells the code of the character."));
            entry.code = named;
            codes_.Set(static_cast<quint16>(named), true);
        }
        if (++differences == 1)
            example = u"0x%1 has the array %2"_s.arg(Hex4Text(static_cast<quint16>(entry.code)),
                                                     ToText(entry.arrayName));
    }
    if (differences > 0)
        CurrentInterface().warning(
            Engine::tr("Codes of characters"),
            Engine::tr("The property blocks and the array names do not agree on the codes of %1 "
                       "characters (%2). Codes were taken from the blocks where there are any.")
                .arg(QString::number(differences), example));
}

// The declaration that the brace of a value ends; empty where something else has the brace. Only as
// much is looked at as any declaration has.
std::string_view CFontReader::DeclarationBefore(std::size_t brace) const
{
    constexpr std::size_t longest = 1000;
    const std::string_view text = scanner_.Text();
    std::size_t end = brace;
    while (end > 0 && IsWhitespace(text[end - 1]))
        --end;
    if (end == 0 || text[end - 1] != '=')
        return {};
    const std::size_t first = end > longest ? end - longest : 0;
    const std::string_view before = text.substr(first, end - 1 - first);
    const std::size_t start = before.find_last_of(";{}");
    return start == std::string_view::npos ? before : before.substr(start + 1);
}

// Finds the values of the arrays that the table names; the first of a name counts.
void CFontReader::FindArrays()
{
    for (const Entry& entry : entries_)
        arrays_.emplace(entry.arrayName, std::string_view());
    const std::string_view text = scanner_.Text();
    std::size_t at = 0;
    while ((at = text.find('{', at)) != std::string_view::npos) {
        const auto array = arrays_.find(ArrayName(DeclarationBefore(at)));
        ++at;
        if (array == arrays_.end() || array->second.data() != nullptr)
            continue;
        const std::size_t close = text.find('}', at);
        if (close == std::string_view::npos)
            return;
        array->second = text.substr(at, close - at);
        at = close;
    }
}

// Takes at most `size` bytes and counts them all.
void CFontReader::ReadBytes(std::string_view values, int bitsPerPixel, std::size_t size)
{
    bytes_.resize(size);
    byteCount_ = 0;
    const char* const end = values.data() + values.size();
    const char* at = values.data();
    while (at < end) {
        if (*at == ',' || IsWhitespace(*at)) {
            ++at;
            continue;
        }
        const auto left = static_cast<std::size_t>(end - at);
        // Most elements have a known length.
        const std::size_t usual = bitsPerPixel == 1 ? 8 : 4;
        std::size_t length = usual < left && at[usual] == ',' ? usual : left;
        const auto* const comma = static_cast<const char*>(std::memchr(at, ',', length));
        if (comma != nullptr)
            length = static_cast<std::size_t>(comma - at);
        const std::string_view element = Trimmed({at, length});
        at += length;
        int value = ShortHex(element);
        if (value < 0 && element[0] >= '0' && element[0] <= '9')
            value = scanner_.Number(element);
        else if (value < 0 && bitsPerPixel == 1) {
            value = PatternByte(element);
            strangeBytes_ += IsPattern(element) ? 0 : 1;
        }
        if (value < 0 || value > 0xFF)
            scanner_.FailAt(scanner_.PositionOf(element), Engine::tr("Error parsing integer!"));
        if (byteCount_ < size)
            bytes_[byteCount_] = static_cast<uchar>(value);
        ++byteCount_;
    }
}

void CFontReader::ReadBitmaps(Font& font)
{
    Progress progress(Engine::tr("Reading characters..."), static_cast<int>(entries_.size()));
    const auto textSize = static_cast<qint64>(scanner_.Text().size());
    qint64 byteCount = 0;
    qint64 scanned = 0;
    for (const Entry& entry : entries_) {
        const std::string_view values = arrays_[entry.arrayName];
        if (values.data() == nullptr)
            scanner_.FailAtEnd(Engine::tr("File ended before all character data could be read!"));
        const auto code = static_cast<quint16>(entry.code);
        const qint64 size = BitmapSize(entry.metrics, font.Metrics());
        // Arrays may be named again and again, but that must not make a huge font of a small file.
        constexpr qint64 shares = 16;
        constexpr qint64 harmless = 16'000'000;
        byteCount += size;
        scanned += qint64(values.size());
        if (byteCount > textSize + harmless || scanned > shares * textSize + harmless)
            scanner_.FailAt(scanner_.PositionOf(entry.arrayName),
                            Engine::tr("The array belongs to too many characters."));
        ReadBytes(values, font.Metrics().bitsPerPixel, static_cast<std::size_t>(size));
        if (byteCount_ != static_cast<std::size_t>(size))
            scanner_.FailAt(scanner_.PositionOf(values),
                            Engine::tr("Invalid amount of bytes read from character bitmap 0x%1")
                                .arg(Hex4Text(code)));
        font.PutChar(code, entry.metrics, bytes_);
        progress.Advance();
    }
    if (strangeBytes_ > 0)
        CurrentInterface().warning(
            Engine::tr("Pixels of characters"),
            Engine::tr("Bytes that are neither numbers nor patterns of \"X\" and "
                       "\"_\": %1. What is not \"X\" in "
                       "them was taken for an empty pixel.")
                .arg(strangeBytes_));
}

} // namespace Glyphor
