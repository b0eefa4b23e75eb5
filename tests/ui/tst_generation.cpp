#include "actions/action_save_file.h"
#include "app/settings.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"
#include "ui/dialog_fixture.h"
#include "ui/dialogs/font_generation_dialog.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/dialogs/format_box.h"
#include "ui/dialogs/source_entries.h"
#include "ui/preview/generation_preview.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <functional>

namespace Glyphor {

using Test::Labelled;
using Test::Ok;

namespace {

ActionOpenFontArgs ArgsFor(const QString& path)
{
    ActionOpenFontArgs args;
    args.path = path;
    return args;
}

ActionOpenFontArgs DejaVu()
{
    return ArgsFor(QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf"));
}

ActionOpenFontArgs Variable()
{
    return ArgsFor(Test::FontPath("variable.ttf"));
}

const QStringList& Instances()
{
    static const QStringList names = {u"Regular"_s, u"Plain"_s, u"Heavy"_s};
    return names;
}

void Choose(QComboBox* box, const QString& text)
{
    box->setCurrentIndex(box->findText(text));
}

bool HasNote(const QDialog& dialog, const QString& text)
{
    const auto labels = dialog.findChildren<QLabel*>();
    return std::ranges::any_of(labels, [&text](const QLabel* label) {
        return label->isVisible() && label->text().contains(text);
    });
}

} // namespace

class TestGeneration : public QObject
{
    Q_OBJECT

    using Entries = std::function<void(FontGenerationDialog&)>;

private Q_SLOTS:
    void init()
    {
        Settings::Instance().fontGenerationDialog.save({});
        Settings::Instance().hideLegacy.setValue(false);
    }

    void cleanup() { Settings::Instance().hideLegacy.setValue(true); }

    void Heights_data()
    {
        const Test::Rows<QString, double, FontSize> row;
        row("box", u"of the box"_s, 24, {24});
        row("capitals", u"of capitals"_s, 14, {14, false, HeightUnit::Capital});
        row("no fraction", u"of the line"_s, 20.5, {21, false, HeightUnit::Line});
        row("em", u"of the em"_s, 16.5, {16, false, HeightUnit::Em, 32});
        row("a 64th", u"of the em"_s, 16.02, {16, false, HeightUnit::Em, 1});
    }

    void Heights()
    {
        const auto [subject, value, expected] = Test::Row<QString, double, FontSize>();
        FontSizeBox box;
        Choose(box.findChildren<QComboBox*>().last(), subject);
        box.findChild<QDoubleSpinBox*>()->setValue(value);
        QCOMPARE(box.Value(), expected);
        FontSizeBox other;
        other.SetValue(expected);
        QCOMPARE(other.Value(), expected);
        QCOMPARE(SizeOf(DataOf(expected)), expected);
    }

    // What the engine has to say shows before the font is made.
    void Notes_data()
    {
        const Test::Rows<Entries, QString> row;
        row(
            "cut",
            [](auto& dialog) {
                dialog.template findChild<FormatBox*>()->SetFormat(FontFormat::Legacy);
                Labelled<QComboBox>(dialog, u"Hinting:"_s)->setCurrentIndex(4);
            },
            u"Characters cut: "_s);
        row(
            "no such height",
            [](auto& dialog) {
                dialog.template findChild<FontSizeBox*>()->SetValue(
                    {1, false, HeightUnit::LowercaseX});
                Labelled<QComboBox>(dialog, u"Hinting:"_s)->setCurrentIndex(1);
                Labelled<QCheckBox>(dialog, u"Bold"_s)->setChecked(true);
            },
            u"x:1px"_s);
        row(
            "mapped character that is missing",
            [](auto& dialog) {
                Labelled<QLineEdit>(dialog, u"Mapping:"_s)->setText(u"65,0xF02D1=0xE001"_s);
            },
            u"F02D1"_s);
        row(
            "no mapping",
            [](auto& dialog) { Labelled<QLineEdit>(dialog, u"Mapping:"_s)->setText(u"65=x"_s); },
            u"The mapping 65=x is not usable"_s);
    }

    void Notes()
    {
        const auto [enter, note] = Test::Row<Entries, QString>();
        FontGenerationDialog dialog(DejaVu(), {u"Book"_s}, nullptr);
        dialog.show();
        enter(dialog);
        QTRY_VERIFY2_WITH_TIMEOUT(HasNote(dialog, note), qPrintable(note), 10000);
        QCOMPARE(Ok(dialog)->isEnabled(), !note.contains(u"usable"_s));
    }

    // The sample comes before the font, and needs nothing but its own characters.
    void SampleShowsWhatIsMade()
    {
        ActionOpenFontArgs args = DejaVu();
        RenderAt({16}, args);
        args.render.fitsInk = true;
        args.selection.emplace().Set('g', true);
        args.sources = {{QStringLiteral(SYSTEM_FONTS "/DejaVuSansMono.ttf"),
                         ParseCharacterMap(u"0x41=0xC0,0x4E00-0x9FFF=0x4E00"_s), FontSize{30}}};
        GenerationPreview preview;
        preview.SetSample(u"g\u00C0"_s);
        QSignalSpy finished(&preview, &GenerationPreview::Finished);
        preview.ShowFor(args, {});
        QVERIFY(finished.wait(10000));
        const std::unique_ptr<Font> font = ReadFont(args);
        QCOMPARE(preview.SampleFont()->Metrics().height, font->Metrics().height);
        for (const quint16 code : {quint16('g'), quint16(0xC0)})
            QCOMPARE(preview.SampleFont()->FindChar(code)->bitmap->DataAsList(),
                     font->FindChar(code)->bitmap->DataAsList());
    }

    void ChoicesOfCharactersAdd()
    {
        FontDialogData asked;
        asked.size.value = 16;
        Settings::Instance().fontDialog.save(asked);
        const auto choice = [](FontGenerationDialog& dialog, const QString& name) {
            return Labelled<QCheckBox>(dialog, name);
        };
        {
            FontGenerationDialog dialog(DejaVu(), {u"Book"_s}, nullptr);
            dialog.show();
            choice(dialog, u"Unicode blocks"_s)->click();
            choice(dialog, u"Characters of a text"_s)->click();
            QVERIFY(!choice(dialog, u"All characters"_s)->isChecked());
            dialog.findChild<QPlainTextEdit*>()->setPlainText(u"A\u20AC\u4E2D"_s);
            QCOMPARE(dialog.Preview().Sample(), u"A\u20AC\u4E2D"_s);
            QVERIFY(HasNote(dialog, u"130 codes, of which the font has 96"_s));
            const auto& blocks = *dialog.findChild<QListWidget*>();
            QCOMPARE(blocks.item(0)->text(), u"Basic Latin (95)"_s);
            QVERIFY(blocks.findItems(u"Bengali (0)"_s, Qt::MatchExactly).constFirst()->isHidden());
            dialog.findChild<FontSizeBox*>()->SetValue({23});
            dialog.accept();
        }
        FontGenerationDialog dialog(DejaVu(), {u"Book"_s}, nullptr);
        CodeSet expected;
        expected.SetRange(0, 127, true);
        expected.Set(0x20AC, true);
        expected.Set(0x4E2D, true);
        QCOMPARE(*dialog.Args().selection, expected);
        QCOMPARE(dialog.ChosenText(), u"A\u20AC\u4E2D"_s);
        QCOMPARE(Settings::Instance().fontDialog.load().size.value, 23);
        choice(dialog, u"All characters"_s)->click();
        QVERIFY(!dialog.Args().selection && dialog.ChosenText().isEmpty());
        choice(dialog, u"All characters"_s)->click();
        QVERIFY(choice(dialog, u"Unicode blocks"_s)->isChecked()); // something is chosen always
    }

    void RenderingIsRemembered()
    {
        {
            FontGenerationDialog dialog(DejaVu(), {u"Book"_s}, nullptr);
            auto* const gamma = Labelled<QDoubleSpinBox>(dialog, u"Gamma:"_s);
            gamma->setValue(1.4);
            QVERIFY(!gamma->isEnabled()); // 1 bit per pixel
            QCOMPARE(dialog.Args().render.gamma, 1.0);
            dialog.findChild<FormatBox*>()->SetFormat(FontFormat::AA4);
            QVERIFY(gamma->isEnabled());
            Labelled<QComboBox>(dialog, u"Hinting:"_s)->setCurrentIndex(2);
            Labelled<QCheckBox>(dialog, u"Keep all ink within the line"_s)->setChecked(true);
            dialog.accept();
        }
        const FontGenerationDialog dialog(Variable(), Instances(), nullptr);
        const RenderOptions render = dialog.Args().render;
        QCOMPARE(render.gamma, 1.4);
        QCOMPARE(render.hinting, Hinting::Light);
        QVERIFY(render.fitsInk && render.axes.empty());
    }

    void Axes()
    {
        FontGenerationDialog dialog(Variable(), Instances(), nullptr);
        dialog.show();
        const auto weight = [&dialog] {
            return Labelled<QDoubleSpinBox>(dialog, u"Weight (wght):"_s);
        };
        QCOMPARE(weight()->value(), 400.0);
        QVERIFY(dialog.Args().render.axes.empty());
        weight()->setValue(650);
        QCOMPARE(dialog.Args().render.axes, (std::vector<AxisPosition>{{"wght", 650}}));
        Labelled<QComboBox>(dialog, u"Face:"_s)->setCurrentIndex(2);
        QCOMPARE(weight()->value(), 900.0); // where the instance is
        QVERIFY(dialog.Args().render.axes.empty());
        const FontGenerationDialog other(DejaVu(), {u"Book"_s}, nullptr);
        QVERIFY(Labelled<QDoubleSpinBox>(other, u"Weight (wght):"_s) == nullptr);
    }

    void EntriesOfOneFile()
    {
        const FontSource source{u"/icons.ttf"_s, ParseCharacterMap(u"0xF000=0xE000"_s),
                                FontSize{12, true, HeightUnit::Em, 32}};
        ActionOpenFontArgs given = Variable();
        given.sources = {source, source};
        {
            FontGenerationDialog dialog(given, Instances(), nullptr);
            Labelled<QDoubleSpinBox>(dialog, u"Weight (wght):"_s)->setValue(650);
            Labelled<QLineEdit>(dialog, u"Mapping:"_s)->setText(u"65"_s);
            Labelled<QPushButton>(dialog, u"Remove"_s)->click();
            dialog.accept();
        }
        const ActionOpenFontArgs same =
            FontGenerationDialog(Variable(), Instances(), nullptr).Args();
        QCOMPARE(same.sources, std::vector{source});
        QCOMPARE(same.render.map, ParseCharacterMap(u"65"_s));
        QCOMPARE(same.render.axes, (std::vector<AxisPosition>{{"wght", 650}}));
        const ActionOpenFontArgs other =
            FontGenerationDialog(DejaVu(), {u"Book"_s}, nullptr).Args();
        QVERIFY(other.sources.empty() && other.render.map.empty());
    }

    void Sources()
    {
        FontSource source{u"/a.ttf"_s, ParseCharacterMap(u"65"_s), FontSize{12}};
        SourceDialog dialog(source, nullptr);
        dialog.show();
        QCOMPARE(dialog.Source(), source);
        auto* const characters = Labelled<QLineEdit>(dialog, u"Characters:"_s);
        Test::RecordingInterface interface;
        characters->setText(u"x"_s);
        Ok(dialog)->click();
        QVERIFY(dialog.isVisible());
        characters->clear();
        QVERIFY(!Ok(dialog)->isEnabled());
        characters->setText(u"?66"_s);
        Labelled<QCheckBox>(dialog, u"Own height:"_s)->setChecked(false);
        Ok(dialog)->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.Source(),
                 (FontSource{u"/a.ttf"_s, ParseCharacterMap(u"?66"_s), std::nullopt}));
    }

    void Charmaps()
    {
        FontGenerationDialog dialog(DejaVu(), {u"Book"_s}, nullptr);
        auto* const charmaps = Labelled<QComboBox>(dialog, u"Charmap:"_s);
        QCOMPARE(dialog.Args().render.charmapIndex, -1);
        charmaps->setCurrentIndex(charmaps->count() - 1);
        QCOMPARE(dialog.Args().render.charmapIndex, charmaps->count() - 2);
    }

    // The program makes of the line what the dialog makes.
    void CommandLine_data()
    {
        const Test::Rows<QString, Entries> row;
        const QString dejaVu = DejaVu().path;
        row("plain", dejaVu, [](auto&) {});
        row("points", dejaVu, [](auto& dialog) {
            dialog.template findChild<FontSizeBox*>()->SetValue({13, true, HeightUnit::Capital});
            dialog.template findChild<FormatBox*>()->SetFormat(FontFormat::AA4);
            Labelled<QDoubleSpinBox>(dialog, u"Gamma:"_s)->setValue(1.4);
            Labelled<QCheckBox>(dialog, u"Characters of a text"_s)->click();
            dialog.template findChild<QPlainTextEdit*>()->setPlainText(u"-it's 5 \"$\"\u20AC"_s);
        });
        row("axes", Variable().path, [](auto& dialog) {
            Labelled<QComboBox>(dialog, u"Face:"_s)->setCurrentIndex(2);
            Labelled<QDoubleSpinBox>(dialog, u"Weight (wght):"_s)->setValue(512.25);
            Labelled<QCheckBox>(dialog, u"Unicode blocks"_s)->click();
            Labelled<QLineEdit>(dialog, u"Mapping:"_s)->setText(u"65, 65=0xE001:heart"_s);
        });
    }

    void CommandLine()
    {
        const auto [path, enter] = Test::Row<QString, Entries>();
        auto& writesPaths = Settings::Instance().writePaths;
        writesPaths.setValue(false); // the program does so too
        FontGenerationDialog dialog(ArgsFor(path), Instances(), nullptr);
        enter(dialog);
        Labelled<QPushButton>(dialog, u"Copy as command line"_s)->click();
        const QString line = QGuiApplication::clipboard()->text();
        const QString name = QFileInfo(path).completeBaseName() + u".c"_s;
        QVERIFY2(line.startsWith(u"Glyphor "_s) && line.endsWith(u" -save "_s + name),
                 qPrintable(line));
        QTemporaryDir folder;
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        const QString programs = QFileInfo(QStringLiteral(GLYPHOR_PROGRAM)).path();
        shell.start(u"/bin/sh"_s, {u"-c"_s, u"PATH='%1':$PATH; "_s.arg(programs) + line});
        QVERIFY(shell.waitForFinished());
        Test::UndoSession session;
        const auto open = std::make_shared<ActionOpenFont>(session, ActionType::OpenFont);
        open->Args() = dialog.Args();
        QVERIFY(open->Run());
        const auto save = std::make_shared<ActionSaveFile>(session, ActionType::SaveFont);
        save->Args().path = folder.filePath(u"made/"_s + name);
        QVERIFY(QDir(folder.path()).mkdir(u"made"_s));
        QVERIFY(save->Run());
        writesPaths.setValue(true);
        const QByteArray made = Test::ReadAll(save->Args().path);
        QVERIFY(made.size() > 100);
        QCOMPARE(Test::ReadAll(folder.filePath(name)), made);
    }
};

GLYPHOR_TEST(TestGeneration)

} // namespace Glyphor

#include "tst_generation.moc"
