#include "actions/action_open_font.h"
#include "actions/action_save_file.h"
#include "app/critical_exception.h"
#include "app/settings.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

QString FailureOfRun(Action& action)
{
    return Test::FailureOf([&action] { action.Run(); });
}

std::shared_ptr<ActionOpenFont> Open(Session& session, const QString& path, int height = 12,
                                     ActionType type = ActionType::OpenFont)
{
    auto action = std::make_shared<ActionOpenFont>(session, type);
    action->Args().path = path;
    action->Args().render.height = height;
    return action;
}

std::shared_ptr<ActionSaveFile> Save(Session& session, const QString& path)
{
    auto action = std::make_shared<ActionSaveFile>(session, ActionType::SaveFont);
    action->Args().path = path;
    return action;
}

} // namespace

class TestOpenSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpensSavesAndLogs()
    {
        const QTemporaryDir folder;
        const QString source = Test::FontPath("strike.ttf");
        const QString target = folder.filePath(u"font.c"_s);
        Test::UndoSession session;
        QVERIFY(Open(session, source)->Run());
        QCOMPARE(session.Path(), source);
        QCOMPARE(session.CurrentFont()->Metrics().format, FontFormat::Standard);
        Settings::Instance().createLogFile.setValue(true);
        QVERIFY(Save(session, target)->Run());
        Settings::Instance().createLogFile.setValue(false);

        const QString opened = u"[Font]: Opened font file: %1"_s.arg(source);
        QVERIFY(Test::ReadAll(target).contains(opened.toUtf8()));
        QCOMPARE(Test::ReadAll(folder.filePath(u"font.log"_s)),
                 "Log file for: font\r\n\r\n" + opened.toUtf8() + "\r\n");
        QCOMPARE(session.Stack().LogLines(),
                 (QStringList{opened, u"Saved font file: %1"_s.arg(target)}));
        QVERIFY(!session.IsModified() && !session.Stack().CanUndo());
        QCOMPARE(session.Path(), target);

        // Another font begins another history.
        QVERIFY(Open(session, source, 20, ActionType::CreateFont)->Run());
        QCOMPARE(session.Stack().LogLines(),
                 QStringList{u"[Font]: Initial height of font: 20px."_s});
        Settings::Instance().logActions.setValue(false);
        QVERIFY(Save(session, target)->Run());
        Settings::Instance().logActions.setValue(true);
        QVERIFY(!Test::ReadAll(target).contains("[Font]"));
    }

    void SavesKerning()
    {
        const QTemporaryDir folder;
        const QString target = folder.filePath(u"pairs.c"_s);
        Test::UndoSession session;
        const auto open = Open(session, Test::FontPath("outlines.ttf"), 100);
        open->Args().selection.emplace().SetRange(' ', 'V', true);
        open->Run();
        const auto save = std::make_shared<ActionSaveFile>(session, ActionType::SaveKerning);
        save->Args().path = target;
        QVERIFY(save->Run());
        // A repetition of the charmap's is one of the file's.
        QVERIFY(Test::ReadAll(target).contains(
            "  0x0041, 0x0056, (U16)-15, 0x0056, 0x0020, (U16)  8, "
            "0x0056, 0x0041, (U16)-12, 0x0056, 0x0041, (U16)-12, \r\n};\r\n"));
        QCOMPARE(session.Path(), Test::FontPath("outlines.ttf"));
        QCOMPARE(session.Stack().LogLines().last(), u"Saved kerning file: %1"_s.arg(target));
    }

    void OpenFailures_data()
    {
        const Test::Rows<QString, int, int, int, int, QString, QString> rows;
        const QString font = Test::FontPath("strike.ttf");
        const QString creation = u"Font creation failed!"_s;
        const auto row = [&](const char* name, const QString& path, const QString& title,
                             const QString& text) { rows(name, path, 12, 3, 0, 0, title, text); };
        row("missing", u"none.ttf"_s, u"Error opening file!"_s, u"Given file does not exist!"_s);
        row("missing, unknown kind", u"none"_s, u"Error opening file!"_s,
            u"Given file does not exist!"_s);
        row("unknown kind", folder_.path(), u"Unsupported format!"_s,
            u"Given file format is not supported!"_s);
        row("directory", File(u"directory.ttf"_s), u"Error opening file!"_s,
            u"The file %1 is a directory."_s.arg(File(u"directory.ttf"_s)));
        row("empty", File(u"empty.otf"_s), u"Error opening file!"_s,
            u"The file %1 is empty."_s.arg(File(u"empty.otf"_s)));
        row("text", File(u"text.ttc"_s), creation,
            u"The font file %1 can't be used: It is not a font file."_s.arg(File(u"text.ttc"_s)));
        row("truncated", File(u"truncated.ttf"_s), creation, u"The font file "_s);
        rows("height 0", font, 0, 3, 0, 0, creation, u"Font has invalid metrics."_s);
        rows("Shift JIS", font, 12, 5, 1, 0, u"Invalid combination of encoding and font format!"_s,
             u"SJIS fonts have to be in a legacy font format [LEG, LEG_AA2, LEG_AA4]."_s);
        rows("placeholders in the name", File(u"%1%2.ttf"_s), 12, 3, 0, 7, creation,
             u"The file %1 has no face with the index 7: its only face has the index 0."_s.arg(
                 File(u"%1%2.ttf"_s)));
        for (const auto& [name, face] : {std::pair("variable.ttf", 3),
                                         {"collection.ttc", 2},
                                         {"strike.ttf", 1},
                                         {"strike.ttf", 0x10000}})
            rows(QTest::addRow("face %d of %s", face, name), Test::FontPath(name), 12, 3, 0, face,
                 creation,
                 u"The file %1 has no face with the index %2: "_s.arg(Test::FontPath(name),
                                                                      QString::number(face)));
    }

    void OpenFailures()
    {
        const auto [path, height, format, encoding, face, title, text] =
            Test::Row<QString, int, int, int, int, QString, QString>();
        Test::UndoSession session;
        Open(session, Test::FontPath("strike.ttf"))->Run();
        const Font* const before = session.CurrentFont();
        const auto action = Open(session, path, height);
        action->Args().format = FontFormat(format);
        action->Args().encoding = EncodingType(encoding);
        action->Args().render.faceIndex = face;
        const QString failure = FailureOfRun(*action);
        QVERIFY2(failure.startsWith(title + u": "_s + text), qUtf8Printable(failure));
        QCOMPARE(session.CurrentFont(), before);
        QCOMPARE(session.Stack().LogLines().size(), 1);
    }

    void PointsNeedADesktop()
    {
        Test::RecordingInterface interface;
        Test::UndoSession session;
        const auto action = Open(session, Test::FontPath("strike.ttf"));
        action->Args().size = {12, true};
        action->Args().render.height = 0;
        QVERIFY(FailureOfRun(*action).endsWith(u": Font has invalid metrics."_s));
        QCOMPARE(interface.warnings.size(), 1);
        QVERIFY(interface.warnings[0].contains(u"points"_s));
    }

    void SaveFailures_data()
    {
        const Test::Rows<QString, int, bool, QString> row;
        row("empty", File(u"a.c"_s), 3, false, u"Font is empty!"_s);
        row("unknown kind", File(u"a.txt"_s), 3, true, u"Unsupported format!"_s);
        row("read only kind", File(u"a.ttf"_s), 3, true, u"Unsupported format!"_s);
        row("legacy XBF", File(u"a.xbf"_s), 0, true, u"Invalid file format!"_s);
        row("empty XBF", File(u"a.xbf"_s), 3, false, u"Font is empty!"_s);
        row("no kerning", File(u"a.kern"_s), 3, true, u"No kerning data!"_s);
        row("unwritable", File(u"none/a.c"_s), 3, true, u"Error saving file!"_s);
    }

    void SaveFailures()
    {
        const auto [path, format, hasChars, title] = Test::Row<QString, int, bool, QString>();
        Test::UndoSession session;
        const auto open = Open(session, Test::FontPath("strike.ttf"));
        open->Args().format = FontFormat(format);
        if (!hasChars)
            open->Args().selection = CodeSet();
        open->Run();
        QVERIFY(FailureOfRun(*Save(session, path)).startsWith(title + u": "_s));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(session.Stack().LogLines().size(), 1);
    }

    void initTestCase()
    {
        QVERIFY(QDir(folder_.path()).mkdir(u"directory.ttf"_s));
        Test::WriteAll(File(u"empty.otf"_s), {});
        QVERIFY(QFile::copy(Test::FontPath("strike.ttf"), File(u"%1%2.ttf"_s)));
        Test::WriteAll(File(u"text.ttc"_s), "no font at all\n");
        Test::WriteAll(File(u"truncated.ttf"_s),
                       Test::ReadAll(Test::FontPath("outlines.ttf")).left(100));
    }

private:
    [[nodiscard]] QString File(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestOpenSave)

} // namespace Glyphor

#include "tst_open_save.moc"
