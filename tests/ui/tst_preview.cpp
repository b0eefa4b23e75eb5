#include "files/font_file_c.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/preview/text_preview.h"
#include "ui/support/contrast.h"
#include "ui/support/dialog_parts.h"
#include "ui/window/info_panel.h"

#include <QLabel>
#include <QTest>

namespace Glyphor {

class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Positions()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA2);
        font->FindChar('A')->kerning = {{'B', -1}};
        TextStrip strip;
        QCOMPARE(strip.Positions(), QList<int>{0});
        strip.ShowFont(font.get());
        strip.SetText(u"AB~A"_s); // "~" is disabled
        QCOMPARE(strip.Positions(), (QList<int>{0, 2, 8, 11, 13}));
        strip.SetKerning(true);
        QCOMPARE(strip.Positions(), (QList<int>{0, 1, 7, 10, 12}));
    }

    void Pixels()
    {
        const auto font = Test::MakeSampleFont(FontFormat::Standard);
        Character& character = *font->FindChar('B');
        character.info.xPos = 0;
        character.info.yPos = 1;
        TextStrip strip;
        strip.ShowFont(font.get());
        strip.SetText(u"B"_s);
        strip.SetZoom(3);
        strip.SetColours({Qt::red, Qt::blue});
        strip.resize(strip.sizeHint());
        const QImage picture = strip.grab().toImage();
        const int margin = (picture.width() - 6 * 3) / 2;
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 5; ++x) {
                const QPoint place(margin + 3 * x + 1, margin + 3 * (y + 1) + 1);
                const bool isInk = character.bitmap->GetPixelIndex(x, y) != 0;
                QCOMPARE(picture.pixelColor(place), QColor(isInk ? Qt::red : Qt::blue));
            }
        }
    }

    void LinesAndWhatIsMissing()
    {
        const auto font = Test::MakeSampleFont(FontFormat::Framed);
        TextPreview preview;
        preview.ShowFont(font.get());
        preview.SetSample(u"AB\nA\u4E2D~\u4E2D"_s);
        QCOMPARE(preview.Strip().Positions().sliced(0, 4), (QList<int>{0, 2, 8, 0}));
        QCOMPARE(preview.Strip().sizeHint().height(), 2 * 3 * 2 + 12);
        QCOMPARE(preview.Strip().Missing(), u"\u4E2D~"_s);
        const auto labels = preview.findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(labels, [](const QLabel* label) {
            return label->text().endsWith(u": 0x4E2D \u4E2D, 0x007E ~"_s) && !label->isHidden();
        }));
        preview.UseColours({Qt::red, Qt::blue, Qt::green});
        const QImage picture = preview.Strip().grab().toImage();
        QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::green)); // behind the frame
        TextStrip fitted;
        fitted.ShowFont(font.get());
        fitted.SetText(u"AB"_s);
        fitted.FitZoom();
        fitted.resize(12 + 8 * 4, 200);
        QCOMPARE(fitted.Zoom(), 4);
    }

    void StateIsRemembered()
    {
        const auto font = Test::MakeSampleFont(FontFormat::AA2);
        TextPreview first;
        TextPreview second;
        for (TextPreview* const preview : {&first, &second})
            preview->ShowFont(font.get());
        first.SetSample(u"AB"_s);
        first.UseColours({Qt::red, Qt::blue, Qt::green});
        second.RestoreState(first.State());
        QCOMPARE(second.Strip().Positions(), (QList<int>{0, 2, 8}));
        QCOMPARE(second.Colours(), first.Colours());
        second.RestoreState("broken");
        QCOMPARE(second.State(), first.State());
    }

    void Information()
    {
        const auto font = Test::MakeSampleFont(FontFormat::Framed);
        InfoPanel panel;
        panel.ShowCode(font.get(), 'B');
        QCOMPARE(panel.Value(u"Code"_s), u"0x0042"_s);
        QCOMPARE(panel.Value(u"Name"_s), u"LATIN CAPITAL LETTER B"_s);
        QCOMPARE(panel.Value(u"Block"_s), u"Basic Latin"_s);
        QCOMPARE(panel.Value(u"Data"_s), u"1 B a line, 4 B in all"_s);
        QCOMPARE(panel.Value(u"Enabled characters"_s), u"6 of 7"_s);
        // The structure, two blocks, six records, and two planes of all rows.
        QCOMPARE(FlashSize(*font), 16 + 2 * 12 + 6 * 12 + 2 * 2 * (1 + 1 + 2 + 2 + 3));
        panel.ShowCode(font.get(), 'Z');
        QCOMPARE(panel.Value(u"Enabled"_s), u"no character"_s);
        panel.ShowCode(nullptr, -1);
        QCOMPARE(panel.Value(u"Format"_s), QString());
    }

    // The ink of disabled characters, in light and dark palettes.
    void LegibleInks()
    {
        for (int paper = 0; paper < 256; paper += 5) {
            for (int ink = 0; ink < 256; ink += 5) {
                const QColor on(paper, paper, std::min(255, paper + 20));
                QVERIFY(Contrast(LegibleInk(QColor(ink, ink, ink), on), on) >= 3);
            }
        }
        QCOMPARE(LegibleInk(Qt::darkBlue, Qt::white), QColor(Qt::darkBlue));
        QCOMPARE(qRound(Contrast(Qt::black, Qt::white)), 21);
    }

    void Codes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code"); // -1: none
        QTest::newRow("hexadecimal") << u" 0x41 "_s << 0x41;
        QTest::newRow("Unicode") << u"u+20AC"_s << 0x20AC;
        QTest::newRow("decimal") << u"65"_s << 65;
        QTest::newRow("digit") << u"7"_s << 7;
        QTest::newRow("character") << u"ä"_s << 0xE4;
        QTest::newRow("too large") << u"65536"_s << -1;
        QTest::newRow("word") << u"AB"_s << -1;
        QTest::newRow("empty") << QString() << -1;
    }

    void Codes()
    {
        QFETCH(const QString, text);
        QFETCH(const int, code);
        QCOMPARE(ParseCode(text) ? int(*ParseCode(text)) : -1, code);
    }
};

GLYPHOR_TEST(TestPreview)

} // namespace Glyphor

#include "tst_preview.moc"
