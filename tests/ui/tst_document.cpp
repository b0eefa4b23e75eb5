#include "actions/action_save_file.h"
#include "actions/pattern_file.h"
#include "app/file_name.h"
#include "app/settings.h"
#include "files/font_file_c.h"
#include "support/program.h"
#include "support/rows.h"
#include "support/test_main.h"
#include "ui/dialogs/font_generation_dialog.h"
#include "ui/dialogs/font_size_box.h"
#include "ui/dialogs/format_box.h"
#include "ui/window_fixture.h"

#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QUrl>

#include <sys/stat.h>

namespace Glyphor {

using Test::BoxAnswer;
using Test::DialogAnswer;

class TestDocument : public QObject, protected Test::WindowFixture
{
    Q_OBJECT

    [[nodiscard]] bool Drop(const QString& path) const { return Drop(QUrl::fromLocalFile(path)); }

    [[nodiscard]] bool Drop(const QUrl& url) const
    {
        QMimeData data;
        data.setUrls({url});
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        // Straight to the window: the application takes drops only from a drag of its own.
        static_cast<QObject*>(window_.get())->event(&event);
        return event.isAccepted();
    }

private Q_SLOTS:
    void init() { OpenWindow(); }
    void cleanup()
    {
        CloseWindow();
        Test::RemoveAll(raw_);
    }

    void SavesAndTells()
    {
        OpenSample();
        QVERIFY(window_->windowTitle().startsWith(u"sample.sif[*]"_s));
        Trigger(ActionType::FontInsertRowTop);
        QVERIFY(window_->isWindowModified());
        Trigger(ActionType::SaveFont);
        QVERIFY(!window_->isWindowModified());
        Session other;
        QVERIFY(session_->Path().endsWith(u"sample.sif"_s));
        QVERIFY(Open(session_->Path()));
        QCOMPARE(int(CurrentFont().Metrics().height), 4);
    }

    // Names of files may look like markup, or like the mark of changes.
    void NamesAreShownPlainly()
    {
        const QByteArray name = "<h1>[*]&amp;\n.sif";
        WriteSample(FontFormat::AA2, Path(name.constData()));
        QVERIFY(Open(Path(name.constData())));
        QVERIFY(window_->windowTitle().startsWith(u"<h1>[*][*]&amp;\\n.sif[*] "_s));
        for (const QLabel* const label : window_->statusBar()->findChildren<QLabel*>())
            QCOMPARE(label->textFormat(), Qt::PlainText);
        bool isPlain = false;
        const DialogAnswer<QMessageBox> answer([&isPlain](QMessageBox& box) {
            isPlain = box.textFormat() == Qt::PlainText && box.text().contains(u"<b>x.xbf"_s);
            box.accept();
        });
        Test::WriteAll(Path("<b>x.xbf"), "nothing");
        QVERIFY(!Open(Path("<b>x.xbf")));
        QVERIFY(isPlain);
    }

    // A file whose name and folder are no UTF-8, all the ways that it comes in.
    void NamesThatAreNotUtf8()
    {
        QCOMPARE(::mkdir(BytesOf(raw_).constData(), 0700), 0);
        const QString path = raw_ + FileNameOf("/caf\xE9.sif");
        WriteSample(FontFormat::AA2, path);
        const auto url = [this](const char* name) {
            return QUrl::fromEncoded("file://" + (BytesOf(raw_) + name).toPercentEncoding("/"));
        };
        QVERIFY(Drop(url("/caf\xE9.sif")));
        QCOMPARE(session_->Path(), path);
        QVERIFY(window_->windowTitle().startsWith(u"caf\\xE9.sif[*] "_s));
        QCOMPARE(session_->CurrentFont()->Name(), u"caf\uFFFD"_s);

        // Saved under the same name, and found there by another window.
        Settings::Instance().createLogFile.setValue(true);
        Trigger(ActionType::FontInsertRowTop);
        Trigger(ActionType::SaveFont);
        Settings::Instance().createLogFile.setValue(false);
        QVERIFY(!window_->isWindowModified());
        QCOMPARE(File(raw_ + FileNameOf("/caf\xE9.log")).Contents().left(21),
                 "Log file for: caf\\xE9");
        CloseWindow();
        OpenWindow();
        QMenu menu;
        window_->CurrentDocument().FillRecentMenu(menu);
        QCOMPARE(menu.actions().constFirst()->text(), u"caf\\xE9.sif"_s);
        menu.actions().constFirst()->trigger();
        QCOMPARE(session_->Path(), path);
        QCOMPARE(int(CurrentFont().Metrics().height), 4);

        PatternFile(raw_ + FileNameOf("/\xE9.txt")).Write({});
        BoxAnswer answer(QMessageBox::Yes);
        QVERIFY(Drop(url("/\xE9.txt")));
        QVERIFY(answer.text.contains(u"pattern file \\xE9.txt to"_s));

        // A file dialog would lose the bytes of the name that it proposes.
        const DialogAnswer<QFileDialog> save([&](QFileDialog& dialog) {
            dialog.setDirectory(folder_.path());
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        Trigger(ActionType::SaveFontAs);
        QCOMPARE(session_->Path(), folder_.filePath(u"caf_.sif"_s));
    }

    void AsksBeforeMoreThanAFontIsReplaced()
    {
        FontFileC(Path("code.c"), {}).Write(*Test::MakeSampleFont(FontFormat::AA2));
        const QByteArray text = Test::ReadAll(Path("code.c")) + "int used;\n";
        Test::WriteAll(Path("code.c"), text);
        BoxAnswer told(QMessageBox::Ok);
        QVERIFY(Open(Path("code.c")));
        QVERIFY(told.text.endsWith(u"Beside it: used"_s));
        for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
            BoxAnswer answer(button);
            const auto save = std::make_shared<ActionSaveFile>(*session_, ActionType::SaveFontAs);
            save->Args().path = Path("code.c");
            QCOMPARE(save->Run(), button == QMessageBox::Yes);
            QVERIFY(answer.text.contains(u"holds more than a font. Replace all of it?"_s));
            QCOMPARE(Test::ReadAll(Path("code.c")) == text, button == QMessageBox::No);
        }
    }

    void FailuresKeepTheFont()
    {
        OpenSample();
        Test::WriteAll(Path("bad.c"), "nothing");
        const Font* const before = session_->CurrentFont();
        BoxAnswer answer(QMessageBox::Ok);
        QVERIFY(!Open(Path("bad.c")));
        QVERIFY(answer.text.startsWith(u"Error reading C file!: GUI_FONT structure"_s));
        QCOMPARE(session_->CurrentFont(), before);
    }

    void SavedNamesGetTheSuffixOfTheirKind_data()
    {
        QTest::addColumn<QString>("kind"); // empty: the one that is proposed
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");
        QTest::newRow("proposed") << QString() << u"first"_s << u"first.sif"_s;
        QTest::newRow("chosen") << u"*.xbf"_s << u"second"_s << u"second.xbf"_s;
        QTest::newRow("first of several") << u"*.cpp"_s << u"third"_s << u"third.c"_s;
        QTest::newRow("typed") << u"*.xbf"_s << u"fourth.c"_s << u"fourth.c"_s;
    }

    void SavedNamesGetTheSuffixOfTheirKind()
    {
        QFETCH(const QString, kind);
        QFETCH(const QString, typed);
        QFETCH(const QString, saved);
        OpenSample();
        QString proposed;
        const DialogAnswer<QFileDialog> answer([&](QFileDialog& dialog) {
            proposed = dialog.selectedNameFilter();
            auto* const kinds = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
            if (const int index = kinds->findText(kind, Qt::MatchContains); !kind.isEmpty()) {
                kinds->setCurrentIndex(index);
                Q_EMIT kinds->textActivated(kinds->currentText());
                Q_EMIT kinds->activated(index);
            }
            Test::Choose(dialog, typed, folder_);
        });
        const BoxAnswer failure(QMessageBox::Ok); // of a name without a suffix
        Trigger(ActionType::SaveFontAs);
        QVERIFY(proposed.contains(u"*.sif"_s));
        QCOMPARE(session_->Path(), folder_.filePath(saved));
        QVERIFY(QFile::exists(folder_.filePath(saved)));
    }

    // A font that was named is called so in C, and its file is offered by that name.
    void SaveDialogNamesTheFont()
    {
        auto font = Test::MakeSampleFont(FontFormat::AA4);
        font->SetName(u"Ui24"_s);
        session_->ReplaceFont(std::move(font), Path("face.ttf"));
        const DialogAnswer<QFileDialog> answer([&](QFileDialog& dialog) {
            dialog.setDirectory(folder_.path());
            auto* const name = dialog.findChild<QLineEdit*>(u"name"_s);
            QCOMPARE(name->text(), u"Ui24"_s);
            name->clear();
            QTest::keyClicks(name, u"Big 3-2"_s);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        QVERIFY(window_->CurrentDocument().SaveAs());
        QVERIFY(Test::ReadAll(Path("Ui24.c")).contains("GUI_FONT GUI_FontBig32 = {"));
        QCOMPARE(CurrentFont().Name(), u"Big32"_s);
    }

    // Of the font as it is edited; the kind is the chosen one.
    void ExportsProofs()
    {
        QVERIFY(!window_->Menus().Command(WindowCommand::ExportProof)->isEnabled());
        OpenSample();
        const DialogAnswer<QFileDialog> answer([&](QFileDialog& dialog) {
            QCOMPARE(dialog.nameFilters(),
                     QStringList({u"PNG pictures (*.png)"_s, u"PDF files (*.pdf)"_s}));
            dialog.setDirectory(folder_.path());
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        Trigger(WindowCommand::ExportProof);
        const QByteArray proof = Test::ReadAll(Path("sample.png"));
        QVERIFY(proof.startsWith("\x89PNG"));
        QVERIFY(!window_->isWindowModified());
        Trigger(ActionType::FontInsertRowTop);
        const DialogAnswer<QFileDialog> again(
            [&](QFileDialog& dialog) { Test::Choose(dialog, u"edited.png"_s, folder_); });
        Trigger(WindowCommand::ExportProof);
        QVERIFY(Test::ReadAll(Path("edited.png")) != proof);
    }

    void PatternsTellWhatIsMissing()
    {
        OpenSample();
        CodeSet codes;
        for (const QChar code : u"\nA\u20AC"_s)
            codes.Set(code.unicode(), true);
        PatternFile(Path("codes.txt")).Write(codes);
        BoxAnswer box(QMessageBox::Ok);
        QVERIFY(window_->CurrentDocument().ReadPattern(Path("codes.txt")));
        QCOMPARE(
            box.text,
            u"Read pattern file: Characters that the font does not have: 1\nU+20AC EURO SIGN is not in the font"_s);
    }

    void ScalableFontsAskHow()
    {
        const QString path = QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf");
        {
            const DialogAnswer<FontGenerationDialog> answer([](auto& dialog) { dialog.reject(); });
            QVERIFY(!Open(path));
            QVERIFY(answer.wasAsked && session_->CurrentFont() == nullptr);
        }
        const DialogAnswer<FontGenerationDialog> answer([](auto& dialog) {
            dialog.template findChild<FontSizeBox*>()->SetValue({20});
            dialog.accept();
        });
        QVERIFY(Open(path));
        QVERIFY(answer.wasAsked && session_->CurrentFont()->FindChar('A') != nullptr);
        QVERIFY(window_->isWindowModified()); // it is in no file yet
        session_->SetSaved(session_->Path());
        // A file that is no font is told so without a question.
        Test::WriteAll(Path("text.ttf"), "text");
        BoxAnswer box(QMessageBox::Ok);
        QVERIFY(!Open(Path("text.ttf")));
        QVERIFY(box.text.startsWith(u"Font creation failed!"_s));
    }

    // A cut trailer has the format asked for; giving up is no failure.
    void FormatsAreAskedFor()
    {
        WriteSample(FontFormat::LegacyAA4, Path("old.sif"));
        Test::WriteAll(Path("old.sif"), Test::ReadAll(Path("old.sif")).chopped(4));
        {
            const DialogAnswer<FormatDialog> answer([](auto& dialog) { dialog.reject(); });
            QVERIFY(!Open(Path("old.sif")));
        }
        const DialogAnswer<FormatDialog> answer([](auto& dialog) {
            dialog.template findChild<FormatBox*>()->SetFormat(FontFormat::LegacyAA4);
            dialog.template findChild<EncodingBox*>()->SetEncoding(EncodingType::ShiftJis);
            dialog.accept();
        });
        QVERIFY(Open(Path("old.sif")));
        QCOMPARE(CurrentFont().Metrics().format, FontFormat::LegacyAA4);
        QCOMPARE(CurrentFont().Metrics().encoding, EncodingType::ShiftJis);
    }

    void Closing_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("yes") << int(QMessageBox::Yes) << true << true;
        QTest::newRow("no") << int(QMessageBox::No) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void Closing()
    {
        QFETCH(const int, button);
        QFETCH(const bool, closes);
        QFETCH(const bool, saves);
        OpenSample();
        const QByteArray old = Test::ReadAll(Path("sample.sif"));
        Trigger(ActionType::FontInsertRowTop);
        BoxAnswer answer{QMessageBox::StandardButton(button)};
        QCOMPARE(window_->close(), closes);
        QCOMPARE(answer.text, u"Save file?: Save current file?"_s);
        QCOMPARE(Test::ReadAll(Path("sample.sif")) != old, saves);
    }

    // Work that is nowhere else is asked about, and kept for recovery.
    void GeneratedFontsAreAskedAbout_data()
    {
        const Test::Rows<QString, bool, bool> row; // a file, with a source, whether it is asked
        row("scalable", Test::FontPath("outlines.ttf"), false, true);
        row("bitmaps", Test::FontPath("bitmap.bdf"), false, false);
        row("characters of another file", Path("sample.sif"), true, true);
        row("own file", Path("sample.sif"), false, false);
    }

    void GeneratedFontsAreAskedAbout()
    {
        const auto [path, hasSource, isAsked] = Test::Row<QString, bool, bool>();
        WriteSample(FontFormat::AA4, Path("sample.sif"));
        const auto action = std::make_shared<ActionOpenFont>(*session_, ActionType::OpenFont);
        action->Args().path = path;
        action->Args().render.height = 20;
        if (hasSource)
            action->Args().sources = {
                {.path = Test::FontPath("bitmap.bdf"), .map = {}, .size = {}}};
        const Test::BoxAnswers answers(QMessageBox::No);
        QVERIFY(action->Run());
        QCOMPARE(window_->isWindowModified(), isAsked);
        QVERIFY(window_->close());
        QCOMPARE(answers.texts.contains(u"Save current file?"_s), isAsked);
    }

    // What another process stored meanwhile stays in the list.
    void RecentFilesAreThoseOfAllWindows()
    {
        OpenSample();
        WriteSample(FontFormat::AA4, Path("other.sif"));
        WriteSample(FontFormat::AA4, Path("third.sif"));
        Test::RunProgram(folder_.path(), QStringLiteral(GLYPHOR_PROGRAM),
                         {Path("other.sif"), u"-exit"_s});
        QVERIFY(Open(Path("third.sif")));
        const auto names = [this] {
            QMenu menu;
            window_->CurrentDocument().FillRecentMenu(menu);
            QStringList texts;
            for (const QAction* const entry : menu.actions().first(3))
                texts.append(entry->text());
            return texts;
        };
        QCOMPARE(names(), QStringList({u"third.sif"_s, u"other.sif"_s, u"sample.sif"_s}));
        Test::RunProgram(folder_.path(), QStringLiteral(GLYPHOR_PROGRAM),
                         {Path("other.sif"), u"-exit"_s});
        QCOMPARE(names(), QStringList({u"other.sif"_s, u"third.sif"_s, u"sample.sif"_s}));

        // One that is gone, before anything is asked about the changes.
        Trigger(ActionType::FontInsertRowTop);
        QVERIFY(QFile::remove(Path("other.sif")));
        BoxAnswer answer(QMessageBox::Yes);
        QVERIFY(!window_->CurrentDocument().OpenRecentFile(Path("other.sif")));
        QVERIFY(answer.text.startsWith(u"File is missing: "_s));
        QCOMPARE(names().first(2), QStringList({u"third.sif"_s, u"sample.sif"_s}));
        QVERIFY(window_->isWindowModified());
    }

    void Drops()
    {
        WriteSample(FontFormat::AA4, Path("drop.sif"));
        QVERIFY(Drop(Path("drop.sif")));
        QVERIFY(session_->CurrentFont() != nullptr);
        QCOMPARE(Document::PurposeOf(u"a.TXT"_s), ActionType::ReadPattern);
        QCOMPARE(Document::PurposeOf(u"a.png"_s), ActionType::None);
        Test::WriteAll(Path("pattern.txt"), QByteArray::fromHex("fffe7e00"));
        CurrentFont().SetEnabled(0x42, 0x42, false);
        Test::WriteAll(Path("pattern.txt"), QByteArray::fromHex("fffe4200"));
        {
            BoxAnswer answer(QMessageBox::No);
            QVERIFY(!Drop(Path("pattern.txt")));
            QCOMPARE(answer.text,
                     u"Load pattern file?: Apply the pattern file pattern.txt to this font?"_s);
            QVERIFY(!CurrentFont().IsEnabled(0x42));
        }
        BoxAnswer answer(QMessageBox::Yes);
        QVERIFY(Drop(Path("pattern.txt")));
        QVERIFY(CurrentFont().IsEnabled(0x42));
    }

private:
    QString raw_ = folder_.filePath(FileNameOf("\xFF"));
};

GLYPHOR_TEST(TestDocument)

} // namespace Glyphor

#include "tst_document.moc"
