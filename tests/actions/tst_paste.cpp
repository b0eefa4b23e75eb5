#include "actions/paste_action.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTest>

namespace Glyphor {

namespace {

// Of 4 rows with the baseline at 3. "A" has a dark and a light pixel in each of its two rows.
std::unique_ptr<Font> MakeLineFont(FontFormat format, int height = 4, int baseline = 3)
{
    auto font = std::make_unique<Font>(format, EncodingType::Unicode);
    font->SetHeight(quint8(height));
    font->SetBaseline(quint8(baseline));
    const bool isLegacy = IsLegacyFormat(format);
    const int rows = isLegacy ? height : 2;
    const std::vector<uchar> empty(64);
    Character& character =
        font->PutChar('A', {2, rows, isLegacy ? 0 : 1, isLegacy ? 0 : 1, 3}, empty);
    const int darkest = (1 << font->Metrics().bitsPerPixel) - 1;
    for (int y = 0; y < 2; ++y) {
        character.bitmap->SetPixelIndex(0, (isLegacy ? 1 : 0) + y, darkest);
        character.bitmap->SetPixelIndex(1, (isLegacy ? 1 : 0) + y, darkest / 3);
    }
    character.kerning = {{'B', -1}};
    return font;
}

QByteArray PictureOf(const Character& character)
{
    QByteArray text;
    for (int y = 0; y < character.info.Rows(); ++y) {
        for (int x = 0; x < character.info.width; ++x)
            text += QByteArray::number(character.bitmap->GetPixelIndex(x, y), 16);
        text += ' ';
    }
    return text.trimmed();
}

} // namespace

class TestPaste : public QObject
{
    Q_OBJECT

    using enum FontFormat;

private Q_SLOTS:
    void Formats_data()
    {
        const Test::Rows<FontFormat, FontFormat, QByteArray, QList<int>> row;
        row("the same", AA4, AA4, "f5 f5", {2, 2, 1, 1, 3});
        row("to fewer bits", AA4, AA2, "31 31", {2, 2, 1, 1, 3});
        row("to one bit", AA4, Standard, "10 10", {2, 2, 1, 1, 3});
        row("to more bits", AA2, AA4, "f5 f5", {2, 2, 1, 1, 3});
        row("to cells", AA2, LegacyAA2, "000 031 031 000", {3, 4, 0, 0, 3});
        row("from cells", LegacyAA4, AA4, "00 f5 f5 00", {2, 4, 0, 0, 3});
        row("to a frame", AA4, Framed, "000 010 010 000", {3, 4, 0, 0, 3});
        row("from a frame", Framed, AA4, "f0 f0", {2, 2, 1, 1, 3});
    }

    // Onto a character, and two places further where there is none.
    void Formats()
    {
        const auto [from, to, picture, metrics] =
            Test::Row<FontFormat, FontFormat, QByteArray, QList<int>>();
        const auto source = MakeLineFont(from);
        source->InsertChar('C', CopyOf(*source->FindChar('A'), source->Metrics()));
        Test::UndoSession session(MakeLineFont(to));
        Font& font = *session.CurrentFont();
        font.FindChar('A')->kerning.clear();
        font.SetEnabled('A', 'A', false);
        const QByteArray before = Test::Snapshot(font);
        const PreparedPaste paste =
            PreparePaste(session, CopyCharacters(*source, source->ExistingCodes()), 'A');
        QVERIFY(paste.action->Run());
        QCOMPARE(paste.cut, 0);
        for (const char code : {'A', 'C'}) {
            const Character& pasted = *font.FindChar(quint16(code));
            QVERIFY(font.IsEnabled(quint16(code)));
            QCOMPARE(PictureOf(pasted), picture);
            QCOMPARE(Test::Numbers(pasted.info), metrics);
            QVERIFY(pasted.kerning == source->FindChar('A')->kerning);
        }
        QVERIFY(font.HasKerning());
        QCOMPARE(session.Stack().LogLines(), QStringList(u"[Range 0x0041-0x0043]: Pasted."_s));
        session.Stack().Undo();
        QCOMPARE(Test::Snapshot(font), before);
        QVERIFY(!font.HasKerning() && !session.IsModified());
    }

    // Characters stand on the baseline, where they may lose ink.
    void Baselines_data()
    {
        const Test::Rows<FontFormat, int, int, int> row; // the offset, and what is cut
        row("standard", AA4, 6, 4, 0);
        row("beyond the line", AA4, 0, -2, 0);
        row("cells", LegacyAA4, 5, 0, 0);
        row("cells that cut", LegacyAA4, 1, 0, 1);
    }

    void Baselines()
    {
        const auto [format, baseline, yPos, cut] = Test::Row<FontFormat, int, int, int>();
        const auto source = MakeLineFont(format);
        Test::UndoSession session(MakeLineFont(format, 8, baseline));
        const PreparedPaste paste =
            PreparePaste(session, CopyCharacters(*source, source->ExistingCodes()), 'X');
        QVERIFY(paste.action->Run());
        QCOMPARE(paste.cut, cut);
        const Character& pasted = *session.CurrentFont()->FindChar('X');
        QCOMPARE(int(pasted.info.yPos), yPos);
        if (IsLegacyFormat(format))
            QCOMPARE(pasted.bitmap->GetPixelIndex(0, baseline - 1), 15);
    }

    void Refusals()
    {
        const auto source = MakeLineFont(AA4);
        source->AddChar('Z');
        CopiedCharacters copied = CopyCharacters(*source, source->ExistingCodes());
        Test::UndoSession session(MakeLineFont(AA4, 255, 255));
        const auto failure = [&](int code) {
            return Test::FailureOf([&] { (void)PreparePaste(session, copied, quint16(code)); });
        };
        QCOMPARE(failure('A'),
                 u"Characters can't be copied!: The character for 0x0041 does not fit "
                 "into the font."_s); // an offset of 253
        copied.baseline = 255;
        QCOMPARE(failure('A'), QString());
        QCOMPARE(failure(0xFFF0),
                 u"Characters can't be copied!: 0x005A would get a code beyond 0xFFFF."_s);
    }

    void Pictures()
    {
        Test::UndoSession session(MakeLineFont(AA2));
        RenderedGlyph picture;
        picture.pixels = {255, 0, 90, 255};
        picture.width = picture.rows = picture.pitch = 2;
        picture.yPos = -2;
        picture.cursorDistance = 3;
        picture.bitsPerPixel = 8;
        QVERIFY(PreparePaste(session, picture, 0xE000).action->Run());
        const Character& pasted = *session.CurrentFont()->FindChar(0xE000);
        QCOMPARE(PictureOf(pasted), QByteArray("30 13"));
        QCOMPARE(Test::Numbers(pasted.info), (QList<int>{2, 2, 0, 1, 3}));
    }
};

GLYPHOR_TEST(TestPaste)

} // namespace Glyphor

#include "tst_paste.moc"
