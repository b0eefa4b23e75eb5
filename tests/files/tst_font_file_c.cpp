#include "files/file_types.h"
#include "files/font_file_c.h"
#include "model/code_text.h"
#include "support/c_files.h"
#include "support/rows.h"
#include "support/sample_font.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

QByteArray DumpBytes(const Character& character)
{
    const QByteArray hex = character.bitmap->DataAsList().toHex(' ').toUpper();
    return hex.isEmpty() ? hex : ' ' + hex;
}

// What dump.c prints of the font.
QByteArray Dump(const Font& font)
{
    const FontMetrics& metrics = font.Metrics();
    QByteArray text;
    const auto add = [&text](std::initializer_list<int> numbers) {
        QByteArrayList texts;
        for (const int number : numbers)
            texts.append(QByteArray::number(number));
        text += texts.join(' ');
    };
    add({int(metrics.format), metrics.height, metrics.height, 1, 1, metrics.baseline,
         metrics.lowercaseHeight, metrics.capitalHeight});
    text += '\n';
    for (const CodeRange& run : font.EnabledRuns()) {
        for (int code = run.first; code <= run.last; ++code) {
            const Character& character = *font.FindChar(quint16(code));
            const CharInfo& info = character.info;
            text += Hex4Text(quint16(code)).toLatin1() + ' ';
            if (IsLegacyFormat(metrics.format))
                add({info.width, info.cursorDistance, info.bytesPerLine});
            else
                add({info.width, info.height, info.xPos, info.yPos, info.cursorDistance});
            text += ':' + DumpBytes(character) + '\n';
        }
    }
    return text;
}

QByteArray Compose(const Font& font, const QString& path, const CFileOptions& options)
{
    QByteArray text;
    FontFileC(path, options).Compose(font, [&text](QByteArrayView piece) { text.append(piece); });
    return text;
}

} // namespace

class TestFontFileC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FileTypes()
    {
        for (const auto& [name, type] : {std::pair(u"FONT.C"_s, std::optional(FileType::C)),
                                         {u"dir.ttf/font.Hpp"_s, FileType::C},
                                         {u"a.ttc"_s, FileType::TrueTypeCollection},
                                         {u"a.woff"_s, FileType::TrueType},
                                         {u"a.SIF"_s, FileType::Sif},
                                         {u"font.c.bak"_s, std::nullopt},
                                         {u"ttf"_s, std::nullopt}})
            QVERIFY2(FileTypeOf(name) == type, qPrintable(name));
    }

    void Names()
    {
        for (const auto& [name, cName] : {std::pair(u"Arial 24.c"_s, "Arial_24"_ba),
                                          {u"a.b-c.d"_s, "a_b_c"_ba},
                                          {u"L\u00f6we \u0410_1"_s, "L_we___1"_ba},
                                          {u"8x16"_s, "8x16"_ba}})
            QCOMPARE(CName(name), cName);
    }

    void Golden_data()
    {
        const Test::Rows<QString, int, int> row;
        row("standard", u"standard.c"_s, int(FontFormat::Standard), 0);
        row("Shift JIS", u"shiftjis.h"_s, int(FontFormat::LegacyAA2), 1);
    }

    void Golden()
    {
        const auto [fileName, format, encoding] = Test::Row<QString, int, int>();
        CFileOptions options;
        if (encoding == 0)
            options.actionLog = {u"[Font]: Opened font file: a/*/\u202e\nb.ttf"_s,
                                 QString(70, u'x')};
        const auto font = Test::MakeSampleFont(FontFormat(format), EncodingType(encoding));
        const QByteArray text = Compose(*font, u"some/dir/"_s + fileName, options);
        Test::CompareWithGolden(text, fileName);
    }

    void LineEndingsAndLog()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA4);
        const QByteArray lines = Compose(*font, u"a.c"_s, {"\n", std::nullopt});
        const QByteArray log = Compose(*font, u"a.c"_s, {"\n", QStringList()});
        QVERIFY(!lines.contains('\r'));
        // An empty log still has its three separating lines.
        QCOMPARE(log.count('\n'), lines.count('\n') + 3);
    }

    void GuardOnlyForHeaders()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA2);
        for (const auto& [names, hasGuard] : {std::pair(u"font.h a.b.hh font.hxx font.hpp"_s, true),
                                              {u"font.c font.H font.hpp.c h font.cpp"_s, false}}) {
            for (const QString& name : Test::Words(names)) {
                const QByteArray text = Compose(*font, name, {});
                QVERIFY2(hasGuard == text.contains("#ifndef _8_TESTS_PLAIN_1_H\r\n#define "
                                                   "_8_TESTS_PLAIN_1_H\r\n\r\n"),
                         qPrintable(name));
                QVERIFY2(hasGuard == text.contains("};\r\n\r\n#endif // _8_TESTS_PLAIN_1_H\r\n"
                                                   "\r\n/****"),
                         qPrintable(name));
            }
        }
    }

    void CompilesAndReadsBack_data()
    {
        const Test::Rows<int, QString> row;
        for (int format = 0; format < FormatCount; ++format) {
            for (const auto* const name : {"font.c", "font.h"})
                row(QTest::addRow("format %d, %s", format, name), format, QString::fromUtf8(name));
        }
    }

    void CompilesAndReadsBack()
    {
        const auto [format, fileName] = Test::Row<int, QString>();
        const QTemporaryDir folder;
        const auto font = Test::MakeSampleFont(FontFormat(format));
        FontFileC(folder.filePath(fileName), {}).Write(*font);

        const QString program = folder.filePath(u"dump"_s);
        QStringList arguments = {u"-DFONT_NAME=GUI_Font8_Tests_Plain_1"_s,
                                 u"-DFONT_FILE=\"%1\""_s.arg(fileName), u"-o"_s, program,
                                 QString::fromUtf8(TEST_SOURCES "/files/dump.c")};
        if (fileName.endsWith(u".h"_s))
            arguments.append(u"-DFONT_IS_HEADER"_s);
        else
            arguments.append(folder.filePath(fileName));
        QCOMPARE(Test::Compile(folder.path(), arguments), QByteArray());
        QCOMPARE(Test::OutputOf(program, {}), Dump(*font));
    }
};

GLYPHOR_TEST(TestFontFileC)

} // namespace Glyphor

#include "tst_font_file_c.moc"
