#include "app/critical_exception.h"
#include "app/file.h"
#include "app/file_name.h"
#include "app/settings.h"
#include "files/font_file_c.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "ui/dialog_fixture.h"
#include "ui/dialogs/code_dialogs.h"
#include "ui/dialogs/font_dialog.h"
#include "ui/dialogs/font_generation_dialog.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/dialogs/format_box.h"
#include "ui/dialogs/merge_mode_dialog.h"
#include "ui/dialogs/preferences_dialog.h"
#include "ui/dialogs/source_entries.h"
#include "ui/dialogs/text_dialog.h"
#include "ui/preview/generation_preview.h"
#include "ui/support/application.h"
#include "ui/window/info_panel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

using Test::Labelled;
using Test::Ok;

class TestDialogs : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    static ActionOpenFontArgs Outlines()
    {
        ActionOpenFontArgs args;
        args.path = QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
        return args;
    }

private Q_SLOTS:
    void init()
    {
        Settings& settings = Settings::Instance();
        settings.fontDialog.save({});
        settings.fontGenerationDialog.save({});
        settings.enableRangeDialog.save({});
        settings.mergeModeDialog.save({});
        settings.preferencesDialog.save({});
        settings.numeralSystem.setValue(1);
        settings.hideLegacy.setValue(true);
    }

    void Ranges_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<int>("size"); // 0 for a range that can't be used
        QTest::addColumn<QString>("block");
        QTest::newRow("codes") << u"0x41"_s << u"67"_s << 3 << u"Codes as entered"_s;
        QTest::newRow("characters") << u"A"_s << u"U+005A"_s << 26 << u"Codes as entered"_s;
        QTest::newRow("block") << u"0"_s << u"127"_s << 128 << u"Basic Latin"_s;
        QTest::newRow("backwards") << u"B"_s << u"A"_s << 0 << u"Codes as entered"_s;
        QTest::newRow("no code") << u"AB"_s << u"A"_s << 0 << u"Codes as entered"_s;
        QTest::newRow("too large") << u"0"_s << u"65536"_s << 0 << u"Codes as entered"_s;
    }

    void Ranges()
    {
        QFETCH(const QString, first);
        QFETCH(const QString, last);
        QFETCH(const int, size);
        QFETCH(const QString, block);
        EnableRangeDialog dialog(ActionType::Enable, {}, EncodingType::Unicode, nullptr);
        dialog.show();
        for (const auto& [label, text] :
             {std::pair(u"First:"_s, first), std::pair(u"Last:"_s, last)}) {
            auto* const field = Labelled<QLineEdit>(dialog, label);
            field->selectAll();
            QTest::keyClicks(field, text);
        }
        QCOMPARE(Ok(dialog)->isEnabled(), size > 0);
        QCOMPARE(dialog.findChild<QComboBox*>()->currentText(), block);
        if (size > 0)
            QCOMPARE(dialog.Last() - dialog.First() + 1, size);
    }

    void ShiftJis()
    {
        EnableRangeDialog dialog(ActionType::Enable, {}, EncodingType::ShiftJis, nullptr);
        dialog.show();
        QVERIFY(!dialog.findChild<QComboBox*>()->isVisible()); // blocks are Unicode's
        QCOMPARE(dialog.focusWidget(), Labelled<QLineEdit>(dialog, u"First:"_s));
        Labelled<QLineEdit>(dialog, u"First:"_s)->setText(QString(QChar(0x3042)));
        Labelled<QLineEdit>(dialog, u"Last:"_s)->setText(u"U+3042"_s);
        QCOMPARE(int(dialog.First()), 0x82A0);
        QCOMPARE(int(dialog.Last()), 0x82A0);
        CodeSet codes;
        codes.Set(0x82A0, true);
        GoToDialog goTo(codes, EncodingType::ShiftJis, nullptr);
        QTest::keyClicks(goTo.findChild<QLineEdit*>(), u"U+3042"_s);
        QCOMPARE(goTo.Code(), 0x82A0);
        ActionOpenFontArgs args = Outlines();
        args.encoding = EncodingType::ShiftJis;
        const FontGenerationDialog generation(args, {u"Book"_s}, nullptr);
        QCOMPARE(*generation.Args().encoding, EncodingType::ShiftJis);
        QVERIFY(IsLegacyFormat(*generation.Args().format));
    }

    // In both languages, in every dialog with more than a few entries.
    void MnemonicsDoNotCollide_data()
    {
        QTest::addColumn<bool>("inGerman");
        QTest::newRow("English") << false;
        QTest::newRow("German") << true;
    }

    void MnemonicsDoNotCollide()
    {
        QFETCH(const bool, inGerman);
        QTranslator texts;
        QTranslator toolkitTexts;
        if (inGerman && LoadTexts(QLocale(QLocale::German), texts, toolkitTexts))
            QCoreApplication::installTranslator(&texts);
        const FontGenerationDialog generation(Outlines(), {}, nullptr);
        const FontDialog font(nullptr);
        const EnableRangeDialog range(ActionType::Enable, {}, EncodingType::Unicode, nullptr);
        const SourceDialog source({}, nullptr);
        for (const QDialog* const dialog :
             std::initializer_list<const QDialog*>{&generation, &font, &range, &source}) {
            QStringList keys;
            for (const QWidget* const widget : dialog->findChildren<QWidget*>()) {
                const QString text = widget->property("text").toString();
                const qsizetype mark = text.indexOf(u'&');
                if (mark < 0 || widget->inherits("QLineEdit"))
                    continue;
                const QString key = text.mid(mark + 1, 1).toLower();
                QVERIFY2(!keys.contains(key), qPrintable(dialog->windowTitle() + u' ' + text));
                keys.append(key);
            }
            QVERIFY(keys.size() >= 3);
            for (const QLabel* const label : dialog->findChildren<QLabel*>())
                QVERIFY2(!label->text().contains(u"&"_s) ||
                             label->buddy()->focusPolicy() != Qt::NoFocus,
                         qPrintable(label->text()));
        }
        QCoreApplication::removeTranslator(&texts);
    }

    // A screen of 800 x 600, or one that shows all at twice the size.
    void FitsOnSmallScreens()
    {
        const QSize least(790, 460);
        const FontGenerationDialog generation(Outlines(), {}, nullptr);
        const FontDialog font(nullptr);
        const PreferencesDialog preferences(nullptr);
        const EnableRangeDialog range(ActionType::Enable, {}, EncodingType::Unicode, nullptr);
        const SourceDialog source({}, nullptr);
        for (const QDialog* const dialog : std::initializer_list<const QDialog*>{
                 &generation, &font, &preferences, &range, &source}) {
            const QSize size = dialog->minimumSizeHint();
            QCOMPARE(size.boundedTo(least), size);
        }
        ScreenFit fit;
        qApp->installEventFilter(&fit);
        CommandDialog large(QString(5000, u'x'), nullptr);
        large.resize(5000, 5000);
        large.show();
        QVERIFY(large.screen()->availableGeometry().contains(QRect(QPoint(), large.size())));
    }

    void RangesAreRememberedOnceAccepted()
    {
        for (const bool isAccepted : {false, true}) {
            EnableRangeDialog dialog(ActionType::Enable, {}, EncodingType::Unicode, nullptr);
            dialog.show();
            QCOMPARE(dialog.focusWidget(), Labelled<QLineEdit>(dialog, u"First:"_s));
            QCOMPARE(int(dialog.First()), 0x20);
            Labelled<QLineEdit>(dialog, u"First:"_s)->setText(u"65"_s);
            isAccepted ? dialog.accept() : dialog.reject();
        }
        const EnableRangeDialog dialog(ActionType::Enable, {}, EncodingType::Unicode, nullptr);
        QCOMPARE(int(dialog.First()), 65);
    }

    void GoTo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code"); // the first one found
        QTest::newRow("code") << u"0x42"_s << int('B');
        QTest::newRow("character") << u"B"_s << int('B');
        QTest::newRow("digit is a character first") << u"5"_s << int('5');
        QTest::newRow("decimal code") << u"66"_s << int('B');
        QTest::newRow("whole words first") << u"letter a"_s << int('A');
        QTest::newRow("part of a name") << u"exclam"_s << int('!');
        QTest::newRow("nothing") << u"zz"_s << -1;
        QTest::newRow("too large") << u"99999999"_s << -1;
    }

    void GoTo()
    {
        QFETCH(const QString, text);
        QFETCH(const int, code);
        CodeSet codes;
        codes.SetRange(0, 0x7E, true);
        GoToDialog dialog(codes, EncodingType::Unicode, nullptr);
        dialog.show();
        QTest::keyClicks(dialog.findChild<QLineEdit*>(), text);
        QCOMPARE(dialog.Code(), code);
        QCOMPARE(Ok(dialog)->isEnabled(), code >= 0);
    }

    void GoToByKeys()
    {
        CodeSet codes;
        codes.SetRange(0, 0x7E, true);
        GoToDialog dialog(codes, EncodingType::Unicode, nullptr);
        dialog.show();
        auto* const field = dialog.findChild<QLineEdit*>();
        QTest::keyClicks(field, u"letter a"_s);
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.Code(), int('a'));
    }

    void MergeModes()
    {
        {
            MergeModeDialog dialog(nullptr);
            QCOMPARE(dialog.Mode(), MergeMode::Replace);
            dialog.findChildren<QRadioButton*>().last()->click();
            dialog.accept();
        }
        QCOMPARE(MergeModeDialog(nullptr).Mode(), MergeMode::Keep);
    }

    void Formats()
    {
        FormatDialog dialog(nullptr);
        auto* const formats = dialog.findChild<FormatBox*>();
        auto* const encodings = dialog.findChild<EncodingBox*>();
        QCOMPARE(formats->count(), 9); // with two headings
        QCOMPARE(dialog.Format(), FontFormat::Standard);
        QCOMPARE(encodings->count(), 1);
        formats->SetFormat(FontFormat::LegacyAA2);
        encodings->SetEncoding(EncodingType::ShiftJis);
        QCOMPARE(dialog.Encoding(), EncodingType::ShiftJis);
        QCOMPARE(formats->currentData(Qt::ToolTipRole).toString(),
                 u"Known as <b>Standard, anti-aliased, 2bpp</b> before Tavix V6.36."_s);
        formats->OfferFormats(LegacyFormats::Hidden);
        QCOMPARE(formats->count(), 5);
        QCOMPARE(dialog.Format(), FontFormat::Standard);
        QCOMPARE(dialog.Encoding(), EncodingType::Unicode);
    }

    // What the preview shows is what is generated.
    void Preview_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<bool>("bold");
        QTest::newRow("standard") << int(FontFormat::Standard) << false;
        QTest::newRow("framed") << int(FontFormat::Framed) << false;
        QTest::newRow("grey, bold") << int(FontFormat::AA4) << true;
    }

    void Preview()
    {
        QFETCH(const int, format);
        QFETCH(const bool, bold);
        FontGenerationDialog dialog(Outlines(), {u"Book"_s}, nullptr);
        dialog.show();
        dialog.findChild<FormatBox*>()->SetFormat(FontFormat(format));
        Labelled<QCheckBox>(dialog, u"Bold"_s)->setChecked(bold);
        Labelled<QCheckBox>(dialog, u"Characters of a text"_s)->click();
        QVERIFY(!Ok(dialog)->isEnabled());
        dialog.findChild<QPlainTextEdit*>()->setPlainText(u"Glyphs\n123\u6F22"_s);
        QVERIFY(Ok(dialog)->isEnabled());
        dialog.Preview().SetSample(u"Glyphs 1"_s);
        QSignalSpy finished(&dialog.Preview(), &GenerationPreview::Finished);
        QVERIFY(finished.wait(5000));
        const ActionOpenFontArgs args = dialog.Args();
        QCOMPARE(args.render.effects, bold ? quint32(BoldEffect) : 0U);
        const std::unique_ptr<Font> font = ReadFont(args);
        for (const QChar sample : u"Glyphs1"_s) {
            const Character* const shown =
                dialog.Preview().SampleFont()->FindChar(sample.unicode());
            const Character* const made = font->FindChar(sample.unicode());
            QVERIFY(shown != nullptr && made != nullptr);
            QCOMPARE(shown->bitmap->DataAsList(), made->bitmap->DataAsList());
            QCOMPARE(shown->info.xPos, made->info.xPos);
            QCOMPARE(shown->info.cursorDistance, made->info.cursorDistance);
        }
        QVERIFY(dialog.Preview().SampleFont()->FindChar(u' ') == nullptr); // was not chosen
        const QString sizes = u"characters: 9, flash: %L1 bytes"_s.arg(FlashSize(*font));
        const auto labels = dialog.Preview().findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(labels, [&sizes](const QLabel* label) {
            return label->text().endsWith(sizes) && label->text().startsWith(u"Line height: "_s);
        }));
        QVERIFY(std::ranges::any_of(labels, [](const QLabel* label) {
            return label->isVisible() && label->text().endsWith(u": \u6F22"_s); // is missing
        }));
    }

    void GenerationIsRemembered()
    {
        {
            FontGenerationDialog dialog(Outlines(), {u"Book"_s}, nullptr);
            dialog.show();
            auto* const size = Labelled<QDoubleSpinBox>(dialog, u"Height"_s);
            QVERIFY(size->hasFocus() || !dialog.isActiveWindow());
            size->setValue(23);
            dialog.findChild<FormatBox*>()->SetFormat(FontFormat::AA2);
            Labelled<QCheckBox>(dialog, u"Unicode blocks"_s)->click();
            QTest::keyClick(&dialog, Qt::Key_Return);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(dialog.Args().selection->Next(0x80), int(CodeSet::Limit)); // Basic Latin alone
        }
        const FontGenerationDialog dialog(Outlines(), {u"Book"_s}, nullptr);
        QCOMPARE(dialog.Args().size.value, 23);
        QCOMPARE(*dialog.Args().format, FontFormat::AA2);
        QVERIFY(dialog.Args().selection.has_value());
    }

    void HeightsAndPreferences()
    {
        const auto dotsPerInch = int(QGuiApplication::primaryScreen()->logicalDotsPerInchX());
        auto& useStrikes = Settings::Instance().useIncludedBitmaps;
        useStrikes.setValue(false);
        ActionOpenFontArgs args;
        RenderAt({7, true}, args);
        useStrikes.setValue(true);
        QCOMPARE(args.render.height, 7 * dotsPerInch / 72);
        QVERIFY(args.size.inPoints && !args.render.useStrikes);
        RenderAt({7, false}, args);
        QCOMPARE(args.render.height, 7);
        QVERIFY(args.render.useStrikes);
    }

    void GenerationTakesWhatIsGiven()
    {
        ActionOpenFontArgs args = Outlines();
        args.format = FontFormat::Legacy;
        args.size = {40, false};
        args.selection.emplace();
        args.selection->Set('x', true);
        args.render.faceIndex = 1;
        const FontGenerationDialog dialog(args, {u"One"_s, u"Two"_s}, nullptr);
        QCOMPARE(*dialog.Args().format, FontFormat::Legacy);
        QCOMPARE(dialog.Args().size.value, 40);
        QCOMPARE(dialog.Args().render.faceIndex, 1);
        QVERIFY(*dialog.Args().selection == *args.selection);
        QVERIFY(!dialog.findChild<FormatBox*>()->isEnabled());
    }

    void PatternsThatCantBeRead()
    {
        const QString path = folder_.filePath(FileNameOf("p\xE9.txt")); // the field keeps the byte
        File(path).Replace("no mark");
        FontGenerationDialog dialog(Outlines(), {u"Book"_s}, nullptr);
        dialog.show();
        Labelled<QCheckBox>(dialog, u"Pattern file"_s)->click();
        QVERIFY(!Ok(dialog)->isEnabled());
        auto* const field = Labelled<QLineEdit>(dialog, u"Pattern file"_s);
        field->setText(path);
        QVERIFY(!Ok(dialog)->isEnabled());
        File(path).Replace(QByteArray::fromHex("fffe4100"));
        field->clear();
        field->setText(path);
        QVERIFY(Ok(dialog)->isEnabled());
        File(path).Replace("broken meanwhile");
        Test::RecordingInterface interface;
        Ok(dialog)->click();
        QVERIFY(dialog.isVisible());
        File(path).Replace(QByteArray::fromHex("fffe4100"));
        Ok(dialog)->click();
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.Args().selection->Test('A'));
        Test::RemoveAll(path);
    }

    void Preferences()
    {
        Settings& settings = Settings::Instance();
        settings.additionalFontDirs.setValue({folder_.path()});
        const QString raw = FileNameOf("/none\xE9");
        for (const bool isAccepted : {false, true}) {
            PreferencesDialog dialog(nullptr);
            dialog.show();
            dialog.ShowPage(PreferencesDialog::Files);
            Labelled<QComboBox>(dialog, u"Numeral system of codes:"_s)->setCurrentIndex(0);
            for (QCheckBox* const box : dialog.findChildren<QCheckBox*>())
                box->setChecked(!box->isChecked());
            auto* const endings = Labelled<QComboBox>(dialog, u"Line endings:"_s);
            QVERIFY(endings->isEnabled());
            endings->setCurrentIndex(2);
            dialog.AddDirectory(folder_.path()); // is there already
            dialog.AddDirectory(raw);
            QCOMPARE(dialog.findChild<QListWidget*>()->item(1)->text(), u"/none\\xE9"_s);
            isAccepted ? dialog.accept() : dialog.reject();
            QCOMPARE(settings.numeralSystem.value(), isAccepted ? 0 : 1);
        }
        QVERIFY(!settings.hideLegacy.value() && !settings.logActions.value());
        QVERIFY(settings.createLogFile.value() && !settings.useSysLineEndings.value());
        QCOMPARE(settings.lineEndings.value(), 2);
        QVERIFY(!settings.searchDirsRecursively.value() && !settings.useIncludedBitmaps.value());
        QCOMPARE(settings.additionalFontDirs.value(), (QStringList{folder_.path(), raw}));
        const PreferencesDialog dialog(nullptr);
        QCOMPARE(dialog.findChild<QTabWidget*>()->currentIndex(), int(PreferencesDialog::Files));
        for (OptionByRef<bool>* const option :
             {&settings.hideLegacy, &settings.logActions, &settings.useSysLineEndings,
              &settings.searchDirsRecursively, &settings.useIncludedBitmaps})
            option->setValue(true);
        settings.createLogFile.setValue(false);
        settings.numeralSystem.setValue(1);
        settings.additionalFontDirs.setValue({});
    }
};

GLYPHOR_TEST(TestDialogs)

} // namespace Glyphor

#include "tst_dialogs.moc"
