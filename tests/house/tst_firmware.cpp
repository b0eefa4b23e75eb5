#include "support/c_files.h"
#include "support/program.h"
#include "support/recipes.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

namespace {

constexpr auto Example = PROJECT_SOURCES "/docs/examples/firmware/";

} // namespace

// Builds the example as its readers do, with an installed Glyphor: by CMake for two build tools,
// and by the Makefile beside it.
class TestFirmware : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    const QStringList tools_ = {u"Ninja"_s, u"Unix Makefiles"_s, u"Makefile"_s};

    QString Path(const QString& name) const { return folder_.filePath(name); }

    // A folder whose name has to be quoted everywhere.
    QString SourceFolder(const QString& tool) const
    {
        return Path(u"the sources/"_s + tool) + u'/';
    }

    QString FontFolder(const QString& tool) const
    {
        return SourceFolder(tool) + (UsesCMake(tool) ? u"build/glyphor/firmware/"_s : QString());
    }

    QString Program(const QString& tool) const
    {
        return SourceFolder(tool) + (UsesCMake(tool) ? u"build/firmware"_s : u"firmware"_s);
    }

    static bool UsesCMake(const QString& tool) { return tool != "Makefile"_L1; }

    struct Outcome
    {
        bool isGood;
        QByteArray said;
    };

    Outcome Run(const QString& program, const QStringList& arguments, const QString& folder) const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, Path(u"all of it/bin:/usr/bin:/bin"_s));
        const auto result = Test::RunProgram(folder, program, arguments, {}, {}, environment);
        return {result.status == 0, (result.output + result.errors).toUtf8()};
    }

    Outcome Configure(const QString& generator, const QString& folder) const
    {
        return Run(QStringLiteral(CMAKE),
                   {u"-G"_s, generator, u"-B"_s, u"build"_s,
                    u"-DCMAKE_PREFIX_PATH="_s + Path(u"all of it"_s),
                    u"-DFONT="_s + folder + u"DejaVuSans.ttf"_s,
                    u"-DCMAKE_C_FLAGS=-Wall -Wextra -Werror"_s},
                   folder);
    }

    Outcome Build(const QString& tool) const
    {
        if (UsesCMake(tool))
            return Run(QStringLiteral(CMAKE), {u"--build"_s, u"build"_s}, SourceFolder(tool));
        return Run(u"make"_s, {u"FONT=DejaVuSans.ttf"_s}, SourceFolder(tool));
    }

    // The time of everything that the build makes of fonts, by its name.
    QMap<QString, QDateTime> Products(const QString& tool) const
    {
        QMap<QString, QDateTime> times;
        const QFileInfoList files =
            QDir(FontFolder(tool)).entryInfoList({u"[A-Z]*.c"_s}, QDir::Files | QDir::CaseSensitive)
            << QFileInfo(Program(tool));
        for (const QFileInfo& file : files)
            times[file.fileName()] = file.lastModified();
        return times;
    }

    static void Touch(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList arguments = {u"--install"_s, QStringLiteral(PROJECT_BUILD), u"--prefix"_s,
                                       Path(u"all of it"_s)};
        const Outcome installed = Run(QStringLiteral(CMAKE), arguments, folder_.path());
        QVERIFY2(installed.isGood, installed.said.constData());
        for (const QString& tool : tools_) {
            const QString folder = SourceFolder(tool);
            QVERIFY(QDir().mkpath(folder));
            for (const QFileInfo& file :
                 QDir(QString::fromUtf8(Example)).entryInfoList(QDir::Files))
                QVERIFY(QFile::copy(file.filePath(), folder + file.fileName()));
            QVERIFY(QFile::copy(QStringLiteral(SYSTEM_FONTS "/DejaVuSans.ttf"),
                                folder + u"DejaVuSans.ttf"_s));
            Test::WriteAll(folder + u"extra.options"_s, "-text 'the extra.txt'\n");
            Test::WriteAll(folder + u"the extra.txt"_s, "Extra");
            Test::WriteAll(folder + u"pattern.txt"_s, QByteArray("\xff\xfe\x10\x04", 4));
            const QString lists = folder + u"CMakeLists.txt"_s;
            Test::WriteAll(
                lists, Test::ReadAll(lists) +
                           Test::ReadAll(QStringLiteral(TEST_SOURCES "/house/more_fonts.cmake")));
        }
    }

    void Draws_data()
    {
        const Test::Rows<QString> row;
        for (const QString& tool : tools_)
            row(QTest::addRow("%s", qPrintable(tool)), tool);
    }

    void Draws()
    {
        const auto [tool] = Test::Row<QString>();
        if (UsesCMake(tool)) {
            const Outcome configured = Configure(tool, SourceFolder(tool));
            QVERIFY2(configured.isGood, configured.said.constData());
        }
        const Outcome built = Build(tool);
        QVERIFY2(built.isGood, built.said.constData());
        const Outcome drawn = Run(Program(tool), {u"out.pgm"_s}, folder_.path());
        QVERIFY2(drawn.isGood, drawn.said.constData());
        const QString kept = QString::fromUtf8(Example) + u"firmware.pgm"_s;
        if (qEnvironmentVariableIsSet("GLYPHOR_RENEW_GOLDEN"))
            Test::WriteAll(kept, Test::ReadAll(Path(u"out.pgm"_s)));
        QCOMPARE(Test::ReadAll(Path(u"out.pgm"_s)), Test::ReadAll(kept));
    }

    void MakesTheSameBytesAnywhere()
    {
        const QByteArray font = Test::ReadAll(FontFolder(tools_.first()) + u"Title24.c"_s);
        QVERIFY(!font.isEmpty());
        for (const QString& tool : tools_)
            QCOMPARE(Test::ReadAll(FontFolder(tool) + u"Title24.c"_s), font);
    }

    void PassesArguments()
    {
        const QString folder = FontFolder(tools_.first());
        const auto text = [&](const char* name) {
            return Test::ReadAll(folder + QString::fromUtf8(name));
        };
        for (const char* const name : {"Plain", "Extra"}) {
            const QByteArray font = text(name + QByteArray(".c"));
            for (const char* const code : {"0041", "003B", "0024", "0027", "0022", "005C", "0020"})
                QVERIFY2(font.contains(name + QByteArray("_") + code), code);
            QVERIFY(text(name + QByteArray("_Kerning.c")).contains("0x0041, 0x0056"));
        }
        const QByteArray whole = text("Whole.c");
        QVERIFY(whole.contains("GUI_FONTTYPE_PROP_AA2_SJIS"));
        for (const char* const code : {"0041", "8198", "8440"})
            QVERIFY2(whole.contains(QByteArray("Whole_") + code), code);
        QVERIFY(!whole.contains("Whole_0042"));
    }

    void MakesWhatChanged_data()
    {
        const Test::Rows<QString, QString, QStringList> rows;
        const QString title = u"Title24.c"_s;
        const QString small = u"Small16.c"_s;
        const QString plain = u"Plain.c"_s;
        const QString plainKerning = u"Plain_Kerning.c"_s;
        const QString extra = u"Extra.c"_s;
        const QString extraKerning = u"Extra_Kerning.c"_s;
        for (const QString& tool : tools_) {
            const auto row = [&](const QString& input, const QStringList& made) {
                rows(QTest::addRow("%s, %s", qPrintable(tool), qPrintable(input)), tool, input,
                     made);
            };
            row({}, {});
            row(u"main.c"_s, {u"firmware"_s});
            row(u"de.po"_s, {title, u"firmware"_s});
            row(u"pl.po"_s, {small, title, u"firmware"_s});
            row(u"thermometer.png"_s, {title, u"firmware"_s});
            if (!UsesCMake(tool)) {
                row(u"DejaVuSans.ttf"_s, {small, title, u"firmware"_s});
                continue;
            }
            const QStringList all = {extra, extraKerning, plain,        plainKerning,
                                     small, title,        u"Whole.c"_s, u"firmware"_s};
            row(u"pattern.txt"_s, {u"Whole.c"_s, u"firmware"_s});
            row(u"DejaVuSans.ttf"_s, all);
            row(u"CMakeLists.txt"_s, {plain, plainKerning, u"firmware"_s});
            row(u"../../all of it/bin/Glyphor"_s, all);
            row(u"extra.options"_s, {extra, extraKerning, u"firmware"_s});
            row(u"the extra.txt"_s, {extra, extraKerning, u"firmware"_s});
        }
    }

    void MakesWhatChanged()
    {
        const auto [tool, input, expected] = Test::Row<QString, QString, QStringList>();
        Build(tool);
        const auto before = Products(tool);
        const QString path = SourceFolder(tool) + input;
        if (input == "CMakeLists.txt"_L1)
            Test::WriteAll(path, Test::ReadAll(path).replace("Plain HEIGHT 32", "Plain HEIGHT 33"));
        else if (!input.isEmpty())
            Touch(path);
        const Outcome built = Build(tool);
        QVERIFY2(built.isGood, built.said.constData());
        const auto after = Products(tool);
        QStringList made;
        for (const auto& [name, time] : after.asKeyValueRange()) {
            if (time != before[name])
                made.append(name);
        }
        QCOMPARE(made, expected);
    }

    void StopsAtFaults_data()
    {
        const Test::Rows<QString, QString, QByteArray> rows;
        for (const QString& tool : tools_) {
            const auto row = [&](const char* name, const QString& input, const QByteArray& text) {
                rows(QTest::addRow("%s, %s", qPrintable(tool), name), tool, input, text);
            };
            row("text without a meaning", u"de.po"_s, "msgstr \"");
            row("text that is no text", u"pl.po"_s, QByteArray("\xff\xfe\x00\xd8", 4));
            row("text with what the font lacks", u"de.po"_s, "msgid \"a\"\nmsgstr \"あ\"\n");
            row("empty font", u"DejaVuSans.ttf"_s, "");
            row("font that is none", u"DejaVuSans.ttf"_s, "no font");
            if (UsesCMake(tool))
                row("options that are none", u"extra.options"_s, "-no-option");
        }
    }

    void StopsAtFaults()
    {
        const auto [tool, input, text] = Test::Row<QString, QString, QByteArray>();
        const QString path = SourceFolder(tool) + input;
        const QByteArray good = Test::ReadAll(path);
        Build(tool);
        const auto before = Products(tool);
        Test::WriteAll(path, text);
        for (int attempt = 0; attempt < 2; ++attempt) {
            const Outcome built = Build(tool);
            QVERIFY2(!built.isGood, built.said.constData());
            QVERIFY2(built.said.contains(": error: ") || built.said.contains(": warning: "),
                     built.said.constData());
            QCOMPARE(Products(tool), before);
        }
        Test::WriteAll(path, good);
        const Outcome built = Build(tool);
        QVERIFY2(built.isGood, built.said.constData());
    }

    void RefusesCalls_data()
    {
        const Test::Rows<QString, QByteArray> row;
        row("target", u"none SOURCE a.ttf"_s, "there is no target \"none\"");
        row("folder", u"other SOURCE a.ttf"_s, "call it in the folder of the target \"other\"");
        row("unknown", u"fonts SOURCE a.ttf NAME A HEIGHT 24px SIZE 3"_s, "arguments: SIZE;3");
        row("value", u"fonts SOURCE a.ttf NAME A HEIGHT 24px TEXTS"_s, "have no value: TEXTS");
        row("source", u"fonts NAME A HEIGHT 24px"_s, "needs SOURCE");
        row("name", u"fonts SOURCE a.ttf HEIGHT 24px"_s, "needs NAME");
        row("odd name", u"fonts SOURCE a.ttf NAME A-B HEIGHT 24px"_s, "\"A-B\" is no part");
        row("height", u"fonts SOURCE a.TTF NAME A"_s, "needs HEIGHT to render a.TTF");
        row("none is needed", u"fonts SOURCE a.bdf NAME A"_s, {});
    }

    void RefusesCalls()
    {
        const auto [call, message] = Test::Row<QString, QByteArray>();
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"other"_s));
        Test::WriteAll(folder.filePath(u"other/CMakeLists.txt"_s), "add_custom_target(other)\n");
        Test::WriteAll(folder.filePath(u"CMakeLists.txt"_s),
                       "cmake_minimum_required(VERSION 3.20)\nproject(calls NONE)\n"
                       "find_package(Glyphor 1.0 REQUIRED)\nadd_custom_target(fonts)\n"
                       "add_subdirectory(other)\nglyphor_add_font(" +
                           call.toUtf8() + ")\n");
        const Outcome configured = Configure(u"Ninja"_s, folder.path());
        const QByteArray said = configured.said.simplified();
        QVERIFY2(configured.isGood == message.isEmpty(), said.constData());
        QVERIFY2(said.contains(message), said.constData());
    }

    void RunsTheRecipe()
    {
        const QString folder = Path(u"recipe/"_s);
        QVERIFY(QDir().mkpath(folder));
        for (const char* const name : {"DejaVuSans.ttf", "de.po", "pl.po"})
            QVERIFY(QFile::copy(SourceFolder(tools_.last()) + QString::fromUtf8(name),
                                folder + QString::fromUtf8(name)));
        Test::WriteAll(folder + u"main.c"_s,
                       "#include \"GUI.h\"\nextern const GUI_FONT GUI_FontUi24;\n"
                       "int main(void) { return GUI_FontUi24.Height == 0; }\n");
        Test::WriteAll(folder + u"CMakeLists.txt"_s,
                       "cmake_minimum_required(VERSION 3.20)\nproject(recipe C)\n"
                       "add_executable(firmware main.c)\ninclude_directories(" +
                           QByteArray(Example) + ")\n" + Test::CMakeRecipe().toUtf8() + '\n');
        const Outcome configured = Configure(u"Ninja"_s, folder);
        QVERIFY2(configured.isGood, configured.said.constData());
        const Outcome built = Run(QStringLiteral(CMAKE), {u"--build"_s, u"build"_s}, folder);
        QVERIFY2(built.isGood, built.said.constData());
        QVERIFY(Run(folder + u"build/firmware"_s, {}, folder).isGood);
    }

    // Readers take this code into projects with warnings of their own.
    void PageOfCIsClean()
    {
        QCOMPARE(Test::OutputOf(u"gcc"_s, {u"-std=c99"_s, u"-Wall"_s, u"-Wextra"_s,
                                           u"-Wconversion"_s, u"-pedantic"_s, u"-fsyntax-only"_s,
                                           u"-I"_s + FontFolder(tools_.first()),
                                           QString::fromUtf8(Example) + u"main.c"_s,
                                           QString::fromUtf8(Example) + u"draw.c"_s}),
                 QByteArray());
    }
};

GLYPHOR_TEST(TestFirmware)

} // namespace Glyphor

#include "tst_firmware.moc"
