#include "proof/sample_texts.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "model/encoding.h"
#include "model/font.h"
#include "texts/text_collector.h"
#include "texts/utf8.h"

#include <set>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestText = 200'000; // bytes

const std::vector<SampleText>& AllTexts()
{
    static const std::vector<SampleText> texts = {
        {u"Figures"_s, {u"0123456789"_s, u"12:34 -56.7 +8,90 100%"_s}},
        {u"Latin"_s,
         {u"The quick brown fox jumps over the lazy dog."_s,
          u"SPHINX OF BLACK QUARTZ, JUDGE MY VOW!"_s,
          u"AV AT LT P. To Ty Va We Yo fi fl rn Il1 O0 5S 8B"_s}},
        {u"Western Europe"_s,
         {u"Fünf größere Jäger übten ÄÖÜ - où êtes-vous, là-bas? Ça va! Garçon, naïf cœur"_s,
          u"¿Mañana, señor? ¡Adiós! Coração, avô, lições. Blåbærsyltetøy, århundre, ÆØÅ"_s}},
        {u"Central Europe"_s,
         {u"Zażółć gęślą jaźń. Příliš žluťoučký kůň úpěl ďábelské ódy."_s,
          u"Árvíztűrő tükörfúrógép. Șase țigănci, mâine. Čačak, đak, šuma."_s}},
        {u"Baltic and Turkish"_s,
         {u"Įlinkdama fechtuotojo špaga. Glāžšķūņa rūķīši. Põdur Zagrebi tšellomängija."_s,
          u"Pijamalı hasta yağız şoföre çabucak güvendi. İIıi ĞğŞş"_s}},
        {u"Greek"_s,
         {u"Ξεσκεπάζω την ψυχοφθόρα βδελυγμία."_s, u"ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ άέήίόύώ"_s}},
        {u"Cyrillic"_s,
         {u"Съешь же ещё этих мягких французских булок, да выпей чаю."_s,
          u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"_s}},
        {u"Hiragana"_s,
         {u"いろはにほへと ちりぬるを わかよたれそ つねならむ"_s,
          u"うゐのおくやま けふこえて あさきゆめみし ゑひもせす。"_s}},
        {u"Katakana"_s,
         {u"アイウエオ カキクケコ サシスセソ タチツテト ナニヌネノ"_s,
          u"ハヒフヘホ マミムメモ ヤユヨ ラリルレロ ワヲン ガパァッャー"_s}},
        {u"Half-width katakana"_s,
         {u"ｱｲｳｴｵ ｶｷｸｹｺ ｻｼｽｾｿ ﾀﾁﾂﾃﾄ ﾅﾆﾇﾈﾉ ﾊﾋﾌﾍﾎ ﾏﾐﾑﾒﾓ ﾔﾕﾖ ﾗﾘﾙﾚﾛ ﾜｦﾝﾞﾟ"_s}},
        {u"Kanji"_s, {u"設定 温度 時刻 開始 停止 電源 警告 言語 日本語 東京都 永遠"_s}},
        {u"Chinese"_s, {u"设置 温度 时间 开始 停止 电源 警告 语言 简体中文 北京市"_s}},
        {u"Korean"_s, {u"키스의 고유조건은 입술끼리 만나야 하고 특별한 기술은 필요치 않다."_s}},
        {u"Thai"_s, {u"เป็นมนุษย์สุดประเสริฐเลิศคุณค่า"_s}},
    };
    return texts;
}

// Of a text that is not in ASCII, the characters count that are not.
bool HasMost(const Font& font, const SampleText& text)
{
    constexpr char32_t lastOfAscii = 0x7F;
    std::set<char32_t> wanted;
    for (const QString& line : text.lines) {
        for (const char32_t character : line.toUcs4())
            wanted.insert(character);
    }
    wanted.erase(U' ');
    if (*wanted.rbegin() > lastOfAscii)
        wanted.erase(wanted.begin(), wanted.upper_bound(lastOfAscii));
    const auto had = std::ranges::count_if(wanted, [&font](char32_t character) {
        const auto code = CodeFor(font, character);
        return code && font.IsEnabled(*code);
    });
    return std::size_t(had) * 2 > wanted.size();
}

} // namespace

bool IsControl(char32_t character)
{
    constexpr char32_t byteOrderMark = 0xFEFF;
    return QChar::category(character) == QChar::Other_Control || character == byteOrderMark;
}

std::optional<quint16> CodeFor(const Font& font, char32_t character)
{
    if (character >= char32_t(CodeSet::Limit))
        return std::nullopt;
    return EncodingFor(EncodingType::Unicode)
        .Converted(font.Metrics().encoding, quint16(character));
}

std::vector<SampleText> BuiltInTexts(const Font& font)
{
    std::vector<SampleText> texts;
    for (const SampleText& text : AllTexts()) {
        if (HasMost(font, text))
            texts.push_back(text);
    }
    return texts;
}

SampleText ReadSampleText(const QString& path)
{
    const auto fail = [&path](const QString& text) {
        throw CriticalException(Engine::tr("Error opening file!"), text, {path, 0, {}});
    };
    const FileKind kind = KindOf(path);
    if (kind == FileKind::None)
        fail(Engine::tr("The file %1 does not exist.").arg(Shown(path)));
    if (kind == FileKind::Directory)
        fail(Engine::tr("The file %1 is a directory.").arg(Shown(path)));
    if (kind == FileKind::Other)
        fail(Engine::tr("The file %1 is not an ordinary file.").arg(Shown(path)));
    if (SizeOfFile(path) > LongestText)
        fail(Engine::tr("The file %1 is too long for a proof, which takes texts up to %2 bytes.")
                 .arg(Shown(path), QString::number(LongestText)));
    const QByteArray contents = File(path).Contents();
    QString text = QString::fromUtf8(TextInUtf8(contents, TextCollector(path)));
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\t', u' ');
    while (text.endsWith(u'\n'))
        text.chop(1);
    return {{}, text.split(u'\n'), true};
}

} // namespace Glyphor
