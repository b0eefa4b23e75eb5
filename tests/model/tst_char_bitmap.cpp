#include "model/char_bitmap_framed.h"
#include "model/font.h"
#include "model/pixel_block.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QTest>

#include <functional>

namespace Glyphor {

namespace {

constexpr auto AllFormats = {FontFormat::Legacy,   FontFormat::LegacyAA2, FontFormat::LegacyAA4,
                             FontFormat::Standard, FontFormat::Framed,    FontFormat::AA2,
                             FontFormat::AA4};

// Pixel indices by row and column: what the packed bytes stand for.
using Picture = std::vector<std::vector<int>>;

Picture PictureOf(const Character& character)
{
    Picture picture;
    for (int y = 0; y < character.info.Rows(); ++y) {
        picture.emplace_back();
        for (int x = 0; x < character.info.width; ++x)
            picture.back().push_back(character.bitmap->GetPixelIndex(x, y));
    }
    return picture;
}

// A character with a different index in most of its pixels. Its font has 5 rows.
struct Sample
{
    static constexpr int Rows = 5;

    Sample(FontFormat format, int width) : font(format, EncodingType::Unicode)
    {
        font.SetHeight(Rows);
        font.SetBaseline(3);
        character = &font.AddChar('A');
        character->info.height = Rows;
        character->info.yPos = 1;
        character->info.SetWidth(quint8(width));
        character->bitmap->AdjustData();
        const int maximum = (1 << font.Metrics().bitsPerPixel) - 1;
        for (int y = 0; y < Rows; ++y) {
            for (int x = 0; x < width; ++x)
                character->bitmap->SetPixelIndex(x, y, (x * 7 + y * 3 + x * x) % 5 & maximum);
        }
    }

    // The unused bits of every row, which must stay 0.
    [[nodiscard]] bool HasCleanPadding() const
    {
        const PixelLayout layout{character->info.width, character->info.Rows(),
                                 character->info.font.bitsPerPixel};
        const QByteArray& data = character->bitmap->Data();
        const int unused = layout.BytesPerLine() * 8 - layout.width * layout.bitsPerPixel;
        bool clean = data.size() == layout.Size();
        for (int y = 0; clean && y < layout.rows && unused > 0; ++y)
            clean = (uchar(data[(y + 1) * layout.BytesPerLine() - 1]) & ((1 << unused) - 1)) == 0;
        return clean;
    }

    Font font;
    Character* character;
};

struct EditCase
{
    const char* name;
    std::function<bool(CharBitmap&)> edit;
    std::function<void(Picture&)> expected;
};

template <typename Rows>
void Rotate(Rows& rows, std::ptrdiff_t by)
{
    std::rotate(rows.begin(), by > 0 ? rows.end() - by : rows.begin() - by, rows.end());
}

// Edits that are never refused.
template <auto Edit>
bool Done(CharBitmap& bitmap)
{
    (bitmap.*Edit)();
    return true;
}

template <typename Change>
std::function<void(Picture&)> EachRow(Change change)
{
    return [change](Picture& rows) { std::ranges::for_each(rows, change); };
}

// The edits that leave the number of rows alone, which every format has.
const std::vector<EditCase> WidthEdits = {
    {"InsertColumnRight", &CharBitmap::InsertColumnRight,
     EachRow([](auto& row) { row.push_back(0); })},
    {"InsertColumnLeft", &CharBitmap::InsertColumnLeft,
     EachRow([](auto& row) { row.insert(row.begin(), 0); })},
    {"DeleteColumnRight", &CharBitmap::DeleteColumnRight,
     EachRow([](auto& row) { row.pop_back(); })},
    {"DeleteColumnLeft", &CharBitmap::DeleteColumnLeft,
     EachRow([](auto& row) { row.erase(row.begin()); })},
    {"ShiftRight", Done<&CharBitmap::ShiftRight>, EachRow([](auto& row) { Rotate(row, 1); })},
    {"ShiftLeft", Done<&CharBitmap::ShiftLeft>, EachRow([](auto& row) { Rotate(row, -1); })},
    {"ShiftUp", Done<&CharBitmap::ShiftUp>, [](Picture& rows) { Rotate(rows, -1); }},
    {"ShiftDown", Done<&CharBitmap::ShiftDown>, [](Picture& rows) { Rotate(rows, 1); }},
};

struct RowEditCase
{
    EditCase edit;
    int yPos; // afterwards, from 1
};

const std::vector<RowEditCase> RowEdits = {
    {{"InsertRowTop", &CharBitmap::InsertRowTop,
      [](Picture& rows) { rows.insert(rows.begin(), std::vector<int>(rows[0].size())); }},
     0},
    {{"InsertRowBottom", &CharBitmap::InsertRowBottom,
      [](Picture& rows) { rows.emplace_back(rows[0].size()); }},
     1},
    {{"DeleteRowTop", &CharBitmap::DeleteRowTop, [](Picture& rows) { rows.erase(rows.begin()); }},
     2},
    {{"DeleteRowBottom", &CharBitmap::DeleteRowBottom, [](Picture& rows) { rows.pop_back(); }}, 1},
};

} // namespace

class TestCharBitmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Edits_data()
    {
        const Test::Rows<int, int> row;
        for (const FontFormat format : AllFormats) {
            for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 254})
                row(QTest::addRow("format %d, width %d", int(format), width), int(format), width);
        }
    }

    void Edits()
    {
        const auto [format, width] = Test::Row<int, int>();
        for (const EditCase& edit : WidthEdits)
            CheckEdit(edit, FontFormat(format), width);
        for (const RowEditCase& edit : RowEdits) {
            Sample sample(FontFormat(format), width);
            const Picture before = PictureOf(*sample.character);
            if (IsLegacyFormat(FontFormat(format))) {
                QVERIFY2(!edit.edit.edit(*sample.character->bitmap), edit.edit.name);
                QCOMPARE(PictureOf(*sample.character), before);
            } else {
                CheckEdit(edit.edit, FontFormat(format), width, edit.yPos);
            }
        }
    }

    // The lower left corner stays; cells of a legacy font turn where they are square.
    void Turns()
    {
        for (const FontFormat format : AllFormats) {
            for (const int width : {1, Sample::Rows, 9, 254}) {
                Sample sample(format, width);
                Character& character = *sample.character;
                const Picture before = PictureOf(character);
                const CharMetrics metrics = character.info.Metrics();
                const bool isTurned = !IsLegacyFormat(format) || width == Sample::Rows;
                QCOMPARE(RotateRight(character), isTurned && width <= 133);
                if (!isTurned || width > 133) { // an offset of -129
                    QVERIFY(!RotateLeft(character) && PictureOf(character) == before);
                    continue;
                }
                QVERIFY(sample.HasCleanPadding());
                QCOMPARE(character.info.yPos + character.info.Rows(), metrics.yPos + Sample::Rows);
                const Picture turned = PictureOf(character);
                for (std::size_t y = 0; y < std::size_t(width); ++y) {
                    for (std::size_t x = 0; x < Sample::Rows; ++x)
                        QCOMPARE(turned[y][x], before[Sample::Rows - 1 - x][y]);
                }
                // Back by another way.
                QVERIFY(FlipVertically(character) && RotateLeft(character));
                QVERIFY(FlipVertically(character) && RotateLeft(character));
                QVERIFY(RotateLeft(character) && FlipHorizontally(character));
                QVERIFY(FlipHorizontally(character));
                QCOMPARE(PictureOf(character), before);
                QCOMPARE(character.info.Metrics(), metrics);
                if (format == FontFormat::Framed) {
                    const QByteArray bytes = character.bitmap->DataAsList();
                    character.bitmap->SetPixelIndex(0, 0, before[0][0]); // computes the frame
                    QCOMPARE(character.bitmap->DataAsList(), bytes);
                }
            }
        }
    }

    void Limits()
    {
        Sample narrow(FontFormat::AA2, 1);
        QVERIFY(narrow.character->bitmap->DeleteColumnLeft());
        QVERIFY(!narrow.character->bitmap->DeleteColumnLeft());
        QVERIFY(!narrow.character->bitmap->DeleteColumnRight());
        for (int row = 0; row < Sample::Rows; ++row)
            QVERIFY(narrow.character->bitmap->DeleteRowTop());
        QVERIFY(!narrow.character->bitmap->DeleteRowTop());
        QVERIFY(!narrow.character->bitmap->DeleteRowBottom());
        QCOMPARE(int(narrow.character->info.height), 0);

        Sample wide(FontFormat::AA2, 255);
        QVERIFY(!wide.character->bitmap->InsertColumnLeft());
        QVERIFY(!wide.character->bitmap->InsertColumnRight());
        for (int row = Sample::Rows; row < 255; ++row)
            QVERIFY(wide.character->bitmap->InsertRowBottom());
        QVERIFY(!wide.character->bitmap->InsertRowBottom());
        QVERIFY(!wide.character->bitmap->InsertRowTop());

        Sample offset(FontFormat::AA2, 3);
        offset.character->info.yPos = -128;
        QVERIFY(!offset.character->bitmap->InsertRowTop());
        offset.character->info.yPos = 127;
        QVERIFY(!offset.character->bitmap->DeleteRowTop());
    }

    void PixelIndicesWrap()
    {
        for (const FontFormat format : AllFormats) {
            Sample sample(format, 3);
            CharBitmap& bitmap = *sample.character->bitmap;
            const int maximum = (1 << BitsPerPixel(format)) - 1;
            bitmap.SetPixelIndex(1, 1, maximum);
            bitmap.IncPixelIndex(1, 1);
            QCOMPARE(bitmap.GetPixelIndex(1, 1), 0);
            bitmap.DecPixelIndex(1, 1);
            QCOMPARE(bitmap.GetPixelIndex(1, 1), maximum);
            bitmap.SetPixelIndex(1, 1, 0x10 + maximum);
            bitmap.DecPixelIndex(1, 1);
            bitmap.InvertPixelIndex(1, 1);
            QCOMPARE(bitmap.GetPixelIndex(1, 1), 1);

            const Picture before = PictureOf(*sample.character);
            for (const auto& [x, y] : {std::pair(3, 0), {0, 5}, {-1, 0}, {0, -1}})
                bitmap.InvertPixelIndex(x, y);
            QCOMPARE(PictureOf(*sample.character), before);
            QCOMPARE(bitmap.GetPixelIndex(0, 99), 0);
        }
    }

    void Clearing()
    {
        for (const FontFormat format : AllFormats) {
            Sample sample(format, 20);
            sample.character->info.xPos = 5;
            sample.character->bitmap->Clear();
            const CharInfo& info = sample.character->info;
            const bool isLegacy = IsLegacyFormat(format);
            QCOMPARE(Test::Numbers(info),
                     (QList<int>{1, isLegacy ? Sample::Rows : 1, 0, isLegacy ? 0 : 3, 0}));
            QCOMPARE(int(info.bytesPerLine), 1);
            const int planes = format == FontFormat::Framed ? 2 : 1;
            QCOMPARE(sample.character->bitmap->DataAsList(),
                     QByteArray(info.height * planes, '\0'));
        }
    }

    void FrameSurroundsInk()
    {
        Sample sample(FontFormat::Framed, 9);
        auto& bitmap = dynamic_cast<CharBitmapFramed&>(*sample.character->bitmap);
        bitmap.AssignData({});
        bitmap.SetPixelIndex(4, 2, 1); // rows of two bytes
        QCOMPARE(bitmap.Frame().toHex(), QByteArray("00000800140008000000"));
        bitmap.SetPixelIndex(0, 0, 1); // the frame outside is dropped
        QCOMPARE(bitmap.Frame().toHex(), QByteArray("40008800140008000000"));
        QCOMPARE(int(sample.character->info.width), 9);

        QVERIFY(bitmap.InsertColumnLeft());
        QCOMPARE(bitmap.Frame().toHex(), QByteArray("200044000a0004000000"));
        QByteArray written;
        bitmap.Write(written);
        QCOMPARE(written, bitmap.Data() + bitmap.Frame());

        Sample copy(FontFormat::Framed, 10);
        const auto* const bytes = reinterpret_cast<const uchar*>(written.constData());
        QVERIFY(!copy.character->bitmap->ReadData({bytes, std::size_t(written.size() - 1)}));
        QVERIFY(copy.character->bitmap->ReadData({bytes, std::size_t(written.size())}));
        QCOMPARE(copy.character->bitmap->DataAsList(), written);
    }

    void CText()
    {
        QByteArray text;
        Sample one(FontFormat::Standard, 3);
        one.character->bitmap->AssignData(QByteArray::fromHex("c000a0e000"));
        one.character->bitmap->WriteBytes(text, "|");
        QCOMPARE(text, QByteArray("  XX______, |  ________, |  X_X_____, |  XXX_____, |"
                                  "  ________, |"));
        text.clear();
        Sample four(FontFormat::AA4, 3);
        four.character->bitmap->AssignData(QByteArray::fromHex("0f5a"));
        four.character->bitmap->WriteBytes(text, "\r\n");
        QVERIFY(text.startsWith("  0x0F, 0x50, \r\n  0x00, 0x00, \r\n")); // unused bits are 0
    }

private:
    static void CheckEdit(const EditCase& edit, FontFormat format, int width, int yPos = 1)
    {
        Sample sample(format, width);
        Picture expected = PictureOf(*sample.character);
        edit.expected(expected);
        QVERIFY(edit.edit(*sample.character->bitmap));
        QVERIFY2(PictureOf(*sample.character) == expected, edit.name);
        QVERIFY2(sample.HasCleanPadding(), edit.name);
        QCOMPARE(int(sample.character->info.yPos), yPos);
        if (format == FontFormat::Framed) {
            const auto& framed = dynamic_cast<CharBitmapFramed&>(*sample.character->bitmap);
            QCOMPARE(framed.Frame().size(), framed.Data().size());
        }
    }
};

GLYPHOR_TEST(TestCharBitmap)

} // namespace Glyphor

#include "tst_char_bitmap.moc"
