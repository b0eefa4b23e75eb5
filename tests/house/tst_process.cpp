#include "app/file.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "support/program.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Glyphor {

namespace {

using Result = Test::ProgramResult;

} // namespace

// Runs the program as a build script does.
class TestProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        QFile::setPermissions(folder_->path(), QFile::Permissions(0x7777));
    }

    void cleanup() { Test::RemoveAll(folder_->path()); }

    void Converts()
    {
        const QStringList arguments = Arguments(Test::FontPath("outlines.ttf"), u"out.c"_s);
        const Result result = Run(arguments);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, u"-enable: 88 of the 94 characters 0x0021-0x007E are not in the "
                                "font: 0x0021, 0x0022, 0x0023, 0x0024, 0x0025, ...\n"_s);
        QVERIFY2(
            result.output.startsWith(u"Characters left out: 1 (0x0057). "_s) &&
                result.output.endsWith(u"\nOpened font file: %1\nSaved font file: out.c\n"_s.arg(
                    Test::FontPath("outlines.ttf"))),
            qUtf8Printable(result.output));
        const QByteArray text = Test::ReadAll(File(u"out.c"_s));
        QVERIFY(text.contains("GUI_FONTTYPE_PROP_AA4_EXT, // Type of font\r\n"));
        QVERIFY(text.contains("_0041["));
        QVERIFY(!text.contains("_0391[") && !text.contains("_0020["));
        Run(arguments);
        QCOMPARE(Test::ReadAll(File(u"out.c"_s)), text);

        // Where -hide stands makes no difference, nor does the order of the others.
        QStringList other = arguments;
        other.move(other.indexOf(u"-hide"_s), 0);
        other.append({u"-verbose"_s, u"-exit"_s});
        QCOMPARE(Run(other).output, result.output);
        QCOMPARE(Test::ReadAll(File(u"out.c"_s)), text);
    }

    void BadInput_data()
    {
        const Test::Rows<QStringList, QString> row;
        const QString font = Test::FontPath("outlines.ttf");
        row("missing file", Arguments(u"none.ttf"_s), u"Given file does not exist!"_s);
        row("unreadable file", Arguments(u"secret.ttf"_s), u"Permission denied"_s);
        row("no height", {u"-hide"_s, font, u"-save"_s, u"old.c"_s}, u"-height"_s);
        row("missing folder", Arguments(font, u"none/out.c"_s), u"none/out.c"_s);
        row("full disk", Arguments(font, u"full.c"_s), u"No space left on device"_s);
        row("target folder", Arguments(font, u"directory.c"_s), u"It is a directory."_s);
        row("nothing selected", Arguments(font) + Test::Words(u"-disable all"_s),
            u"Font is empty!\nThe font has no enabled characters that could be saved."_s);
        row("scalable font to merge", Arguments(font) + QStringList{u"-merge"_s, font},
            u"Only C, XBF, SIF and BDF allowed."_s);
        row("merging a missing file", Arguments(font) + QStringList{u"-merge"_s, u"none.c"_s},
            u"Given file does not exist!"_s);
    }

    void BadInput()
    {
        const auto [arguments, expected] = Test::Row<QStringList, QString>();
        Test::WriteAll(File(u"old.c"_s), "old");
        Test::WriteAll(File(u"secret.ttf"_s), "secret\n");
        QVERIFY(QFile::setPermissions(File(u"secret.ttf"_s), {}));
        QVERIFY(QFile::link(u"/dev/full"_s, File(u"full.c"_s)));
        QVERIFY(QDir(folder_->path()).mkdir(u"directory.c"_s));

        const Result result = Run(arguments, [] { BecomeNobody(); });
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.contains(u"Critical error!\n"_s), qUtf8Printable(result.output));
        QVERIFY2(result.output.contains(expected), qUtf8Printable(result.output));
        QVERIFY(!result.output.contains(u"Saved"_s));
        QCOMPARE(Test::ReadAll(File(u"old.c"_s)), QByteArray("old"));
    }

    void EditsAndReports()
    {
        const QString font = Test::FontPath("strike.ttf");
        const QStringList edits =
            Test::Words(u"-editfont INSTOP 2 -ec cinc all -EC MOVER 0x61-0x41 3 -verbose"_s);
        const Result result = Run(Arguments(font, u"out.c"_s) + edits);
        QCOMPARE(result.output, u"Opened font file: %1\n"
                                "[Font]: Inserted a row at the top of the font.\n"
                                "[Range 0x0000-0xFFFF]: Increased cursor distance.\n"
                                "The range 0x0061-0x0041 is reversed, assuming 0x0041-0x0061.\n"
                                "[Range 0x0041-0x0061]: Moved 1 pixel to the right.\n"
                                "Saved font file: out.c\n"_s.arg(font));
        const QByteArray text = Test::ReadAll(File(u"out.c"_s));
        QCOMPARE(text.count("[Font]: Inserted a row at the top of the font."), 2);
        QCOMPARE(text.count("Moved 1 pixel to the right."), 3);
        Run(Arguments(font, u"out.c"_s));
        const QByteArray plain = Test::ReadAll(File(u"out.c"_s));
        Run(Arguments(font, u"out.c"_s) + Test::Words(u"-ef INSTOP 0 -ec DELB all 0x0"_s));
        QCOMPARE(Test::ReadAll(File(u"out.c"_s)), plain);
    }

    // A file with code beside the font is not cut down to the font in silence.
    void KeepsWhatIsNoFont()
    {
        const QString font = Test::FontPath("outlines.ttf");
        Run(Arguments(font, u"out.c"_s));
        const QByteArray text = Test::ReadAll(File(u"out.c"_s)) + "int used;\n";
        Test::WriteAll(File(u"out.c"_s), text);
        const QString opened = Run(Test::Words(u"-hide out.c -save out.c"_s)).output;
        QCOMPARE(opened,
                 u"The file holds more than its first font, which alone was read. Beside it: "
                 "used\nOpened font file: out.c\nCritical error!\nError saving file!\n"
                 "The file out.c holds more than a font; save under another name.\n"
                 "Beside the font: used\n"_s);
        QVERIFY(Run(Arguments(font, u"out.c"_s)).output.contains(u"under another name"_s));
        QCOMPARE(Test::ReadAll(File(u"out.c"_s)), text);
        QVERIFY(Run(Test::Words(u"-hide out.c -save two.c"_s)).output.contains(u"Saved"_s));
        QVERIFY(!Test::ReadAll(File(u"two.c"_s)).contains("int used"));
    }

    // Neither the terminal nor the log is a name's to command.
    void NamesWithControls()
    {
        const QString name = u"a\u001b[2J\nb.ttf"_s;
        QVERIFY(QFile::copy(Test::FontPath("outlines.ttf"), File(name)));
        const Result result = Run(Arguments(name, u"c\nd.c"_s) + QStringList{u"-verbose"_s});
        QVERIFY(result.output.endsWith(u"\nOpened font file: a\\x1B[2J\\nb.ttf\n"
                                       "Saved font file: c\\nd.c\n"_s));
        QVERIFY(Test::ReadAll(File(u"c\nd.c"_s)).contains("file: a\\x1B[2J\\nb.ttf"));
        QVERIFY(Run(Arguments(u"\u001bx\n.ttf"_s)).output.indexOf(u'\u001b') < 0);
        QVERIFY(Run({u"-hide"_s, u"-\u001bx"_s}).output.contains(u"-\\x1Bx"_s));
    }

    // Not every tree of sources is in UTF-8.
    void NamesOfOtherEncodings()
    {
        const auto path = [this](const char* name) { return File(FileNameOf(name)); };
        const auto saved = [](const char* from, const char* to) {
            return u"Opened font file: %1\nSaved font file: %2\n"_s.arg(QString::fromUtf8(from),
                                                                        QString::fromUtf8(to));
        };
        Configure([](Settings& settings) { settings.createLogFile.setValue(true); });
        Glyphor::File(path("caf\xE9.ttf")).Replace(Test::ReadAll(Test::FontPath("outlines.ttf")));
        Glyphor::File(path("p\xE9.txt")).Replace(QByteArray::fromHex("fffe41005600"));

        const QString font = u"caf$E9.ttf -height 30px -format AA2 "_s;
        QCOMPARE(RunInShell(font + u"-p p$E9.txt -save ${FF}out.c"_s).output,
                 saved("caf\\xE9.ttf", "\\xFFout.c"));
        const QByteArray text = Glyphor::File(path("\xFFout.c")).Contents();
        QVERIFY(text.isValidUtf8() && text.contains("File:         \\xFFout.c  "));
        QVERIFY(text.contains("[Font]: Opened font file: caf\\xE9.ttf") &&
                text.contains("_CharInfo[2]"));
        const QByteArray log = Glyphor::File(path("\xFFout.log")).Contents();
        QVERIFY(log.startsWith("Log file for: \\xFFout\r\n") && log.contains("caf\\xE9.ttf"));

        QCOMPARE(RunInShell(font + u"-e 0x61 -save $FE.xbf"_s).output,
                 saved("caf\\xE9.ttf", "\\xFE.xbf"));
        QVERIFY(
            RunInShell(u"$FE.xbf -merge ${FF}out.c KEEP -save $FE.h -report $E9.j -depfile $E9.d"_s)
                .output.startsWith(saved("\\xFE.xbf", "\\xFE.h")));
        QVERIFY(
            Glyphor::File(path("\xE9.d")).Contents().startsWith("\xFE.h \xE9.j: \\\n  \xFE.xbf"));
        QCOMPARE(Glyphor::File(path("\xE9.j")).Contents().count("\"sha256\""), 3);
        const QByteArray merged = Glyphor::File(path("\xFE.h")).Contents();
        QVERIFY(merged.isValidUtf8() && merged.contains("_CharInfo[3]"));
        QVERIFY(merged.contains("#ifndef __H\r\n") && merged.contains("GUI_Font_ = {"));
        QCOMPARE(RunInShell(font + u"-p p$E9.txt -save $FE.kern"_s).output,
                 saved("caf\\xE9.ttf", "\\xFE.kern"));

        QCOMPARE(::mkdir(BytesOf(path("\xFF")).constData(), 0755), 0);
        Glyphor::File(path("\xFF/\xE9.ttc"))
            .Replace(Test::ReadAll(Test::FontPath("collection.ttc")));
        Configure(
            [&](Settings& settings) { settings.additionalFontDirs.setValue({path("\xFF")}); });
        QVERIFY(RunInShell(u"-create 'Test Collection' Oblique -height 9px -save $FE.h"_s)
                    .output.endsWith(u"/\\xFF/\\xE9.ttc\nSaved font file: \\xFE.h\n"_s));

        Glyphor::File(path("\xFFout.c")).Replace(text + "int used;\n");
        const auto fails = [&](const QString& arguments, const QString& reason) {
            return RunInShell(arguments).output.contains(reason);
        };
        QVERIFY(fails(font + u"-save ${FF}out.c"_s, u"The file \\xFFout.c holds more than"_s));
        QVERIFY(fails(font + u"-save $E9/a.c"_s, u"The file \\xE9/a.c could not be written"_s));
        QVERIFY(fails(u"p$FE.ttf -xirtsek -height 9px"_s, u"does not exist"_s));
        QStringList names = EntriesOf(folder_->path(), FileKind::Ordinary);
        names.sort();
        QList<QByteArray> bytes;
        for (const QString& name : names)
            bytes.append(BytesOf(name));
        QCOMPARE(bytes, (QList<QByteArray>{"Glyphor.err", "caf\xE9.ttf", "p\xE9.txt", "\xE9.d",
                                           "\xE9.j", "\xFE.h", "\xFE.kern", "\xFE.log", "\xFE.xbf",
                                           "\xFFout.c", "\xFFout.log"}));
    }

    void MergesAndAsks()
    {
        const QString font = Test::FontPath("strike.ttf");
        Run(Arguments(font, u"one.sif"_s));
        Run(Arguments(font, u"two.c"_s));
        const auto merge = [this](const QString& more) {
            return Run(Test::Words(u"one.sif -hide -verbose -save out.c -merge two.c "_s + more))
                .output;
        };
        QCOMPARE(merge(u"replaceold"_s),
                 u"Opened font file: one.sif\n[Font]: Font merged with: two.c\n"
                 "Saved font file: out.c\n"_s);
        // Nobody answers the questions here.
        const QString question = merge({});
        QVERIFY2(
            question.contains(u"Duplicate characters have been found in both fonts. How should "
                              "duplicate characters be handled?\nPlease select a merge mode "
                              "that should be used:\n"_s) &&
                question.endsWith(u"Standard input ended before a merge mode was "
                                  "selected.\nFile: two.c\n"_s),
            qUtf8Printable(question));
        Test::WriteAll(File(u"one.sif"_s), Test::ReadAll(File(u"one.sif"_s)).chopped(4));
        QVERIFY(merge(u"KEEP"_s).startsWith(u"Font format not found in the file.\n"_s));
        QVERIFY(merge(u"KEEP -format AA4"_s).contains(u"Saved font file: out.c"_s));
    }

    void PatternsSelect()
    {
        Test::WriteAll(File(u"one.txt"_s), QByteArray::fromHex("fffe 4100 9c4e"));
        const QString font = Test::FontPath("outlines.ttf");
        QStringList arguments =
            Test::Words(u"%1 -hide -height 9px -p one.txt -e 0x56 -save out.c"_s.arg(font));
        QVERIFY(Run(arguments).output.contains(u"Saved"_s));
        const QByteArray text = Test::ReadAll(File(u"out.c"_s));
        QVERIFY(text.contains("_CharInfo[3] = {"));
        QVERIFY(text.contains("_0041[") && text.contains("_0056[") && text.contains("_4E9C["));
        arguments[5] = u"none.txt"_s;
        const QString output = Run(arguments).output;
        QVERIFY2(output.startsWith(u"Critical error!\n"_s) && output.contains(u"none.txt"_s),
                 qUtf8Printable(output));
    }

    void FontsByName()
    {
        const QString folder = QFileInfo(Test::FontPath("black.ttf")).path();
        Configure([&](Settings& settings) { settings.additionalFontDirs.setValue({folder}); });
        const QStringList list = Run({u"-hide"_s, u"-listfonts"_s}).output.split(u'\n');
        const qsizetype column = list[0].indexOf(u"Styles"_s);
        QVERIFY(list[0].startsWith(u"Font family "_s) && column > 0);
        QVERIFY(list.contains(u"Test Collection"_s.leftJustified(column) +
                              u"Regular, Oblique, Black"_s));
        QVERIFY(list.contains(u"Test Variable"_s.leftJustified(column) + u"Plain, Heavy"_s));

        QStringList create = Test::Words(u"-hide -create X Oblique -height 9px -save out.c"_s);
        create[2] = u"Test Collection"_s;
        QCOMPARE(Run(create).output,
                 u"Opened font file: %1/collection.ttc\nSaved font file: out.c\n"_s.arg(folder));
        const QByteArray text = Test::ReadAll(File(u"out.c"_s));
        QVERIFY(text.contains("Font:         Test Collection Oblique "));
        QVERIFY(text.contains("[Font]: Initial height of font: 9px."));
        create[3] = u"Obliqe"_s;
        QVERIFY(Run(create).output.contains(
            u"Font Test Collection Obliqe could not be found!\nIts styles are: Regular, Oblique, Black"_s));
        create[2] = u"Test Colection"_s;
        QVERIFY(Run(create).output.contains(u"Test Colection Obliqe could not be found!\n"
                                            "Families with a similar name: Test Collection"_s));
    }

    void HostileFontsTakeNoMemory_data()
    {
        const Test::Rows<QString, QStringList> row;
        const QByteArray header = Test::ReadAll(Test::FontPath("bitmap.bdf"));
        const QByteArray character =
            "STARTCHAR a\nENCODING 65\nSWIDTH 1 0\nDWIDTH 8 0\nBBX 8x 65000x 0 0\nBITMAP\n";
        QByteArray bdf = header.left(header.indexOf("STARTCHAR")) + character.repeated(15000);
        const QString names[] = {u"/boxes.bdf"_s, u"/lines.bdf"_s, u"/boxes.ttf"_s};
        for (const QString& name : names) {
            Test::WriteAll(hostile_.path() + name,
                           name == names[1] ? QByteArray(bdf).replace('\n', '\r') : bdf);
            row(qPrintable(name), hostile_.path() + name, QStringList{});
        }
        row("packed", Test::FontPath("packed.woff"), QStringList{});
        const QStringList large = Test::Words(u"-height 250px -format AA4"_s);
        row("one glyph for all codes", Test::FontPath("hostile.ttf"), large);
        row("damaged box", Test::FontPath("damaged.ttf"), large);
        row("too high", Test::FontPath("outlines.ttf"),
            Test::Words(u"-height 65535px -format FRM"_s));
        row("in a font folder", QString(), QStringList{u"-listfonts"_s});
    }

    // Neither a font that is opened nor one that lies in a font directory.
    void HostileFontsTakeNoMemory()
    {
        auto [font, more] = Test::Row<QString, QStringList>();
        Configure([&](Settings& settings) {
            settings.additionalFontDirs.setValue(
                {hostile_.path(), QFileInfo(Test::FontPath("packed.woff")).path()});
        });
        if (more.isEmpty())
            more = {u"-height"_s, u"24px"_s};
        if (!font.isEmpty())
            more.prepend(font);
        const auto [megabytes, seconds] = Usage(QStringList{u"-hide"_s} + more);
        QVERIFY2(megabytes < 300, qPrintable(QString::number(megabytes)));
        QVERIFY2(seconds < 10, qPrintable(QString::number(seconds)));
    }

    void FullDiskKeepsTheOldFile()
    {
        Test::WriteAll(File(u"old.c"_s), "old");
        const Result result = Run(Arguments(Test::FontPath("outlines.ttf")), [] {
            const rlimit limit = {1000, 1000}; // bytes that a file may have
            ::setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        QVERIFY2(result.output.contains(u"Critical error!\nError saving file!\n"_s),
                 qUtf8Printable(result.output));
        QCOMPARE(Test::ReadAll(File(u"old.c"_s)), QByteArray("old"));
        QCOMPARE(QDir(folder_->path()).entryList(QDir::Files).size(), 1);
    }

    void ClosedStreams()
    {
        const Result result = Run(Arguments(Test::FontPath("outlines.ttf"), u"out.c"_s), [] {
            for (const int stream : {0, 1, 2})
                ::close(stream);
        });
        QCOMPARE(result.status, 0);
        QVERIFY(Test::ReadAll(File(u"out.c"_s))
                    .endsWith("End of file ****************************/\r\n"));
    }

    void ErrorFile()
    {
        Run(Test::Words(u"-hide none.ttf -XIRTSEK -height 9px"_s));
        QCOMPARE(Test::ReadAll(File(u"Glyphor.err"_s)), QByteArray("Given file does not exist!"));
        Run({u"-hide"_s, u"-xirtsek"_s, u"-save"_s});
        QCOMPARE(Test::ReadAll(File(u"Glyphor.err"_s)), QByteArray("Parameter missing!"));
        Run(Arguments(Test::FontPath("outlines.ttf")) + QStringList{u"-xirtsek"_s});
        QCOMPARE(Test::ReadAll(File(u"Glyphor.err"_s)), QByteArray("Parameter missing!"));
    }

    // The store is decoded before anything else, in a process that knows no types yet.
    void StoredRecordsAreKnown()
    {
        Configure([](Settings& settings) {
            settings.commandDialog.save({640, 480});
            settings.mainWindow.save({"geometry", "state"});
        });
        const Result result = Run(Arguments(Test::FontPath("strike.ttf")));
        QCOMPARE(result.errors.count(u'\n'), 1); // of missing characters
        QVERIFY(result.output.contains(u"Saved"_s));
    }

    void WithoutDisplay()
    {
        // The tests' own display is of another kind.
        const QByteArray own = qgetenv("QT_QPA_PLATFORM");
        qunsetenv("QT_QPA_PLATFORM");
        const Result result = Run({u"-help"_s});
        QCOMPARE(Run({u"-help"_s, u"-strict"_s}).status, 1);
        qputenv("QT_QPA_PLATFORM", own);
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output, QString());
        QCOMPARE(result.errors.count(u'\n'), 1);
        QVERIFY(result.errors.contains(u"-hide"_s));
        QVERIFY(Run({u"none.ttf"_s, u"-hide"_s, u"-help"_s}).output.startsWith(u"USAGE:\n"_s));
    }

private:
    static QStringList Arguments(const QString& font, const QString& target = u"old.c"_s)
    {
        return QStringList{font} +
               Test::Words(u"-hide -height 24px -format AA4 -enable 0x21-0x7E -save"_s) +
               QStringList{target};
    }

    // For the programs that run from now on.
    void Configure(const std::function<void(Settings&)>& change)
    {
        Settings settings(
            std::make_unique<QSettings>(File(u"Morvek/Glyphor.conf"_s), QSettings::IniFormat));
        change(settings);
        qputenv("XDG_CONFIG_HOME", folder_->path().toLocal8Bit());
    }

    // The rights of root would let it read and write everything.
    static void BecomeNobody()
    {
        constexpr uid_t nobody = 65534;
        if (::geteuid() == 0 && ::setuid(nobody) != 0)
            ::_exit(1);
    }

    Result Run(const QStringList& arguments, const std::function<void()>& prepare = {})
    {
        return RunProgram(QString::fromUtf8(GLYPHOR_PROGRAM), arguments, prepare);
    }

    // With arguments as a shell writes them, since the toolkit passes on no others than UTF-8.
    Result RunInShell(const QString& arguments)
    {
        return RunProgram(u"/bin/sh"_s,
                          {u"-c"_s,
                           u"E9=$(printf '\\351') FE=$(printf '\\376') FF=$(printf '\\377')\n"
                           "exec \"$0\" -hide "_s +
                               arguments,
                           QString::fromUtf8(GLYPHOR_PROGRAM)});
    }

    Result RunProgram(const QString& program, const QStringList& arguments,
                      const std::function<void()>& prepare = {})
    {
        return Test::RunProgram(folder_->path(), program, arguments, {}, prepare);
    }

    struct ProcessUsage
    {
        long megabytes; // at its largest
        long seconds;   // of the processor
    };

    ProcessUsage Usage(const QStringList& arguments)
    {
        QList<QByteArray> texts = {GLYPHOR_PROGRAM};
        for (const QString& argument : arguments)
            texts.append(argument.toLocal8Bit());
        std::vector<char*> pointers;
        for (QByteArray& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        const pid_t child = ::fork();
        if (child == 0) {
            // The sanitizers keep freed memory for a while.
            ::setenv("ASAN_OPTIONS", "quarantine_size_mb=1:malloc_context_size=0", 1);
            ::execv(pointers[0], pointers.data());
            ::_exit(1);
        }
        int status = 0;
        rusage usage{};
        if (::wait4(child, &status, 0, &usage) != child || status != 0)
            qFatal("the program did not end as it should");
        return {usage.ru_maxrss / 1024, usage.ru_utime.tv_sec + usage.ru_stime.tv_sec};
    }

    [[nodiscard]] QString File(const QString& name) const { return folder_->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder_;
    QTemporaryDir hostile_;
};

GLYPHOR_TEST(TestProcess)

} // namespace Glyphor

#include "tst_process.moc"
