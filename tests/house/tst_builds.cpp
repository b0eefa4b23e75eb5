#include "support/program.h"
#include "support/rows.h"
#include "support/test_main.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

using Test::Words;

// What build scripts rely on.
class TestBuilds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Write("de.po", "msgid \"a\"\nmsgstr \"A\"\n\nmsgid \"b\"\nmsgstr \"A€\"\n");
        Write("bad.po", "msgid \"a\"\nmsgstr \"A\n");
        Write("empty.ttf", "");
        Write("letters.ttf", Test::ReadAll(Test::FontPath("variable.ttf")));
        Write("font.opt", "# the font\n'" + Font().toUtf8() + "' -height 24px\n-format AA4\n");
        Write("bad.opt", "@font.opt\n-bold\n-face one\n");
        Write("quote.opt", "-hide\n-save \"a.c\n");
        Write("loop.opt", "@loop.opt\n");
        Write("latin1.opt", "-save caf\xE9.c\n");
        Write("cut.png", Icon("24").left(200));
        Write("icon.png", Icon("16"));
        Write("large.png", Icon("512"));
        Write("no/chars.h", "");
    }

    void StrictRuns_data()
    {
        const Test::Rows<QString, int, QString> row; // line, status, standard error
        const QString bad = u"Glyphor: error: "_s;
        const QString euro = u"de.po:5: warning: U+20AC EURO SIGN is not in the font\n"_s;
        row("well", u"-hide @font.opt -chars A -save a.c"_s, 0, QString());
        row("missing", u"-hide @font.opt -text de.po -save a.c"_s, 2, euro);
        row("check", u"-hide FONT -check -text de.po"_s, 2, euro);
        row("left out again", u"-hide @font.opt -text de.po -d 0x20AC -save a.c"_s, 0, QString());
        row("option", u"-hide @font.opt -chars A中 -save a.c"_s, 2,
            u"Glyphor: warning: U+4E2D is not in the font (-chars)\n"_s);
        row("above", u"-hide @font.opt -chars A😀 -save a.c"_s, 2,
            u"Glyphor: warning: U+1F600 is above U+FFFF, where fonts have no characters: use one "
            "of U+E000 to U+F8FF in its place, where -map and -source can put it (-chars)\n"_s);
        row("range", u"-hide @font.opt -e 0x41-0x42 -e 0-0x1F -save a.c"_s, 2,
            u"Glyphor: warning: 1 of the 2 characters 0x0041-0x0042 are not in the font: 0x0042 "
            "(-e)\n"_s);
        row("edit", u"-hide @font.opt -chars A -ec DELR 0x41 500 -save a.c"_s, 2, QString());
        row("value", u"-hide @font.opt -chars A -ec SETX 0x41 -2 -ec SETADV 0x41 0 -save a.c"_s, 0,
            QString());
        row("value beyond", u"-hide @font.opt -chars A -ec SETY 0x41 128 -save a.c"_s, 2,
            u"Glyphor: warning: 0x0041: 128 does not fit, so it was left out on 1 of 1 characters "
            "(-ec)\n"_s);
        row("no kerning", u"-hide @font.opt -chars A -kerning k.c"_s, 2, QString());
        row("lacks", u"-werror -hide @font.opt -text de.po -save a.c"_s, 1, euro);
        row("lacks kerning", u"-werror -hide @font.opt -chars A -save a.c -kerning k.c"_s, 1,
            QString());
        row("warned", u"-werror -hide FONT -h 24 -chars A -save a.c"_s, 1,
            bad + u"Invalid measuring format, assuming px. (-h)\n"_s);
        row("no unit", u"-hide FONT -chars A -h 24 -save a.c"_s, 2,
            u"Glyphor: warning: Invalid measuring format, assuming px. (-h)\n"_s);
        row("missing file", u"-hide none.ttf -h 9px -save a.c"_s, 1,
            u"none.ttf: error: Given file does not exist!\n"_s);
        row("source without the letter",
            u"-hide FONT -h cap:9px -source letters.ttf 0x41=0xE000 -save a.c"_s, 1,
            u"letters.ttf: error: A height of cap:9px needs the letter H"_s);
        row("empty source", u"-hide FONT -h 9px -source empty.ttf 0x41=0xE000 -save a.c"_s, 1,
            u"empty.ttf: error: The file empty.ttf is empty.\n"_s);
        row("empty file", u"-hide empty.ttf -h 9px -save a.c"_s, 1,
            u"empty.ttf: error: The file empty.ttf is empty.\n"_s);
        row("damaged text", u"-hide @font.opt -text bad.po -save a.c"_s, 1, u"bad.po:2: error: "_s);
        row("no parameter", u"-hide FONT -save"_s, 1, bad + u"Parameter missing! (-save)\n"_s);
        row("unknown kind", u"-hide @font.opt -save a.x"_s, 1, u"Glyphor: error: "_s);
        row("huge", u"-hide FONT -h 65535px -save a.c"_s, 1, QString());
        row("argument file", u"-hide @bad.opt"_s, 1,
            u"bad.opt:3: error: Error while parsing number: one (-face)\n"_s);
        row("quotes", u"@quote.opt"_s, 1, u"quote.opt:2: error: A quotation mark is missing.\n"_s);
        row("nesting", u"@loop.opt"_s, 1, u"loop.opt:1: error: "_s);
        row("encoding", u"@latin1.opt"_s, 1, bad);
        row("no such file", u"@none.opt"_s, 1, bad + u"The argument file none.opt could "_s);
        row("name", u"-hide @font.opt -name a-b -save a.c"_s, 1, bad + u"The name a-b is "_s);
        row("charset", u"-hide @font.opt -charset none -save a.c"_s, 1, bad);
        row("setting", u"-hide @font.opt -set LineEndings=3 -save a.c"_s, 1,
            bad + u"The setting LineEndings can't be \"3\": it takes 0, 1 or 2."_s);
        row("unknown setting", u"-hide @font.opt -set Zoom=3 -save a.c"_s, 1, bad);
        row("no target", u"-hide @font.opt -depfile a.d"_s, 1, bad);
        row("check and save", u"-hide @font.opt -check -save a.c"_s, 1, bad);
        const QString rest = u" -chars A -save a.c"_s;
        const auto image = [&](const char* name, const QString& words, const QString& errors) {
            row(name, u"-hide @font.opt -image "_s + words + rest, 1, errors);
        };
        row("image", u"-hide @font.opt -image icon.png 0xE000 -1"_s + rest, 0, QString());
        image("no image", u"none.png 0xE000"_s, u"none.png: error: Given file does not exist!\n"_s);
        image("image folder", u"no 0xE000"_s, u"no: error: The file no is a directory.\n"_s);
        image("image without bytes", u"empty.ttf 0xE000"_s, u"empty.ttf: error: The file"_s);
        image("image of text", u"de.po 0xE000"_s, u"de.po: error: The file de.po is no PNG"_s);
        image("cut image", u"cut.png 0xE000"_s, u"cut.png: error: The file cut.png is no PNG"_s);
        image("large image", u"large.png 0xE000"_s,
              u"large.png: error: The picture large.png has 512 x 512 pixels;"_s);
        image("second image", u"icon.png 1 -image icon.png 1"_s,
              u"icon.png: error: Both icon.png and icon.png give the character 0x0001.\n"_s);
        image("image in the font", u"icon.png 0x41"_s,
              u"icon.png: error: Both "_s + Font() + u" and icon.png give the character 0x0041."_s);
        image("code above", u"icon.png 0x10000"_s, bad + u"The code 0x10000 is not usable:"_s);
        image("codes", u"icon.png 1-2"_s, bad + u"The code 1-2 is not usable:"_s);
        image("mapping", u"icon.png 1=2"_s, bad + u"The code 1=2 is not usable:"_s);
        image("name of an image", u"icon.png 1:a-b"_s, bad + u"The name in 1:a-b is not usable:"_s);
        image("rows", u"icon.png 1 -256"_s, bad + u"The rows of -image have to be"_s);
        row("encoding of images",
            u"-hide FONT -height 9px -format LEG -encoding SJIS -image icon.png 0xE000"_s + rest, 1,
            u"icon.png: error: The encoding of the font has no U+E000,"_s);
        image("threshold", u"icon.png 1 -threshold 256"_s, bad + u"The threshold 256 is not"_s);
        row("threshold alone", u"-hide @font.opt -threshold 9"_s + rest, 2,
            u"Glyphor: warning: -threshold was not used:"_s);
        row("nothing to align", u"-hide @font.opt -align baseline"_s + rest, 2,
            u"Glyphor: warning: -align was not used:"_s);
        row("header without names", u"-hide @font.opt -header a.h"_s + rest, 2,
            u"a.h: warning: No character of the font has a name:"_s);
        row("strict header", u"-werror -hide @font.opt -header a.h"_s + rest, 1, QString());
        row("kind of header", u"-hide @font.opt -header a.c"_s + rest, 1,
            bad + u"-header writes a C header: the name a.c"_s);
        row("header in place of the font", u"-hide @font.opt -header b.h -chars A -save b.h"_s, 1,
            bad + u"-header and -save can't write the same file b.h."_s);
        row("unwritable header",
            u"-hide @font.opt -image icon.png 1 -header none/a.h -chars A -save b.c"_s, 1,
            u"none/a.h: error: The file none/a.h could not be written"_s);
        row("check and header", u"-hide @font.opt -check -header a.h"_s, 1, bad);
    }

    void StrictRuns()
    {
        const auto [line, status, errors] = Test::Row<QString, int, QString>();
        QFile::remove(Path(u"a.c"_s));
        const Test::ProgramResult result = Run(u"-strict "_s + line);
        QCOMPARE(result.status, status);
        QVERIFY2(result.errors.startsWith(errors) && result.errors.isEmpty() == (status == 0),
                 qUtf8Printable(result.errors));
        QVERIFY(!result.output.contains(u"Critical"_s));
        const bool isSaved = line.contains(u"-save a.c"_s) && status != 1;
        QCOMPARE(QFile::exists(Path(u"a.c"_s)), isSaved);
        QCOMPARE(Run(line).status, 0);
    }

    void Messages()
    {
        const QString failed = u"Critical error!\n"_s;
        QCOMPARE(Run(u"-hide none.ttf -h 9px"_s).output,
                 failed + u"Error opening file!\nGiven file does not exist!\nFile: none.ttf\n"_s);
        QCOMPARE(Run(u"-hide FONT -save"_s).output,
                 failed + u"Parameter missing!\nOption: -save\n"_s);
        QCOMPARE(Run(u"-hide @bad.opt"_s).output,
                 failed + u"Error while parsing number: one\nOption: -face (bad.opt:3)\n"_s);
        const Test::ProgramResult quiet = Run(u"-hide -quiet @font.opt -chars AB -v -save a.c"_s);
        QCOMPARE(quiet.output + quiet.errors, QString());
        QVERIFY(Run(u"-hide -q none.ttf -h 9px"_s).output.startsWith(failed));
        for (const QString& help : {u"-hide -save -help -bold -bold"_s, u"-? -hide -nonsense"_s,
                                    u"-hide @none.opt -help"_s})
            QVERIFY(Run(help).output.startsWith(u"USAGE:\n"_s));
        QVERIFY(Run(u"-version"_s).output.startsWith(u"Glyphor "_s));
        QVERIFY(Run(u"-listcharsets"_s).output.contains(u"ascii "_s));
        Run(u"-hide @font.opt -chars A -save a.sif"_s);
        QVERIFY(Run(u"-hide a.sif -h 9px -bold"_s).output.contains(u"-bold was not used"_s));
        QVERIFY(Run(u"-hide a.sif -features zero"_s).output.contains(u"-features was not used"_s));
    }

    void WithoutHarfBuzz()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_PRELOAD"_s, QString::fromUtf8(TEST_FAULTS));
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
        environment.insert(u"FAULTS_NO_LIBRARY"_s, u"harfbuzz"_s);
        const auto run = [&](const QString& options) {
            const QString line =
                u"-hide %1 -height 20px -strict "_s.arg(Test::FontPath("layout.ttf")) + options;
            return Test::RunProgram(folder_.path(), QString::fromUtf8(GLYPHOR_PROGRAM), Words(line),
                                    {}, {}, environment);
        };
        QCOMPARE(run(u"-save plain.c"_s).status, 0);
        const auto kerning = run(u"-save plain.c -kerning kerning.c"_s);
        QCOMPARE(kerning.status, 2);
        QVERIFY(kerning.errors.contains(u"HarfBuzz, which reads it, could not be loaded."_s));
        const auto features = run(u"-save other.c -features zero"_s);
        QCOMPARE(features.status, 1);
        QVERIFY(features.errors.contains(u"HarfBuzz, which could not be loaded."_s));
        QVERIFY(!QFile::exists(Path(u"other.c"_s)));
    }

    void EndlessAnswers()
    {
        Write("old.sif", Test::ReadAll(Path(u"a.sif"_s)).chopped(4));
        const auto result =
            Test::RunProgram(folder_.path(), QString::fromUtf8(GLYPHOR_PROGRAM),
                             Words(u"-hide old.sif"_s), QByteArray("y\n").repeated(200));
        QCOMPARE(result.output.count(u"Invalid font format \"y\""_s), 100);
        QVERIFY(result.output.contains(u"Critical error!"_s));
    }

    // What the user prefers does not matter, nor where the project lies.
    void SettingsStayOutside()
    {
        Write("Morvek/Glyphor.conf", "[General]\nLogActions=false\nUseSysLineEndings=false\n");
        const QByteArray ownHome = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", folder_.path().toLocal8Bit());
        Run(u"-hide @font.opt -chars A -defaults -save one.c"_s);
        qputenv("XDG_CONFIG_HOME", ownHome);
        const QByteArray one = Test::ReadAll(Path(u"one.c"_s));
        QVERIFY(one.contains("Opened font file: /") && one.contains("\r\n"));
        Run(u"-hide @font.opt -chars A -set writepaths=false -set UseSysLineEndings=0 -set "
            "LineEndings=2 -save one.c"_s);
        const QByteArray two = Test::ReadAll(Path(u"one.c"_s));
        QVERIFY(two.contains("Opened font file: outlines.ttf") && !two.contains('\r'));
    }

    void ReportsAndDependencies()
    {
        Write("sp ace#$.txt", "A€");
        const auto result = Test::RunProgram(
            folder_.path(), QString::fromUtf8(GLYPHOR_PROGRAM),
            Words(u"-hide @font.opt -name Ui24 -save a.c -kerning k.c -report r.json -depfile a.d "
                  "-text"_s) +
                QStringList{u"sp ace#$.txt"_s});
        QCOMPARE(result.status, 0);
        const QByteArray font = Font().toUtf8();
        QCOMPARE(Test::ReadAll(Path(u"a.d"_s)),
                 "a.c k.c r.json: \\\n  font.opt \\\n  sp\\ ace\\#$$.txt \\\n  " + font +
                     "\nfont.opt:\nsp\\ ace\\#$$.txt:\n" + font + ":\n");
        const QByteArray text = Test::ReadAll(Path(u"a.c"_s));
        QVERIFY(text.contains("GUI_FONT GUI_FontUi24 = {"));
        QVERIFY(Test::ReadAll(Path(u"k.c"_s)).contains("aUi24[] = {\r\n  0, \r\n};"));

        const QJsonObject report =
            QJsonDocument::fromJson(Test::ReadAll(Path(u"r.json"_s))).object();
        QCOMPARE(report[u"font"_s][u"identifier"_s], u"GUI_FontUi24"_s);
        QCOMPARE(report[u"font"_s][u"format"_s], u"AA4"_s);
        QVERIFY(report[u"font"_s][u"em"_s].toInt() > 0);
        QCOMPARE(report[u"font"_s][u"ranges"_s],
                 (QJsonArray{QJsonArray{u"0x0041"_s, u"0x0041"_s}}));
        QCOMPARE(report[u"missing"_s][0], (QJsonObject{{u"code"_s, u"U+20AC"_s},
                                                       {u"name"_s, u"EURO SIGN"_s},
                                                       {u"reason"_s, u"not in the font"_s},
                                                       {u"file"_s, u"sp ace#$.txt"_s},
                                                       {u"line"_s, 1}}));
        const QJsonValue output = report[u"outputs"_s][0];
        QCOMPARE(output[u"size"_s], text.size());
        QCOMPARE(output[u"sha256"_s],
                 QString::fromLatin1(
                     QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex()));
        const QJsonObject flash = report[u"flash"_s].toObject();
        QCOMPARE(flash[u"total"_s].toInt(),
                 flash[u"pixels"_s].toInt() + 12 + 12 + 16); // one character, one range
        QCOMPARE(report[u"inputs"_s].toArray().size(), 3);
        QCOMPARE(report[u"warnings"_s].toArray().size(), 1);
        const QString manual = Test::Document(u"docs/manual/index.html"_s);
        for (const auto& [key, value] : report.toVariantMap().asKeyValueRange())
            QVERIFY2(manual.contains(u"<tr><td><code>%1</code></td>"_s.arg(key)), qPrintable(key));
    }

    void NamesWhatItMade()
    {
        // What a map and sources say is said of the opened font alone.
        QVERIFY(Run(u"-hide @font.opt -chars V -save m.sif"_s).status == 0);
        const Test::ProgramResult result = Run(
            u"-hide -strict @font.opt -source FONT 0x1F600=0xE000:Up -image icon.png 0xE001 "
            "-chars A -merge m.sif REPLACE -name Ui -editchar MOVEU all -header c.h -depfile c.d "
            "-report c.json"_s);
        QVERIFY2(!result.errors.contains(u"error"_s), qPrintable(result.errors));
        const QByteArray header = Test::ReadAll(Path(u"c.h"_s));
        QVERIFY(header.contains("#define UI_UP         0xE000 /* U+1F600 a */"));
        QVERIFY(header.contains("#define UI_ICON       0xE001 /* icon.png */"));
        const QByteArray font = Font().toUtf8();
        QVERIFY(Test::ReadAll(Path(u"c.d"_s))
                    .startsWith("c.h c.json: \\\n  font.opt \\\n  " + font + " \\\n  " + font +
                                " \\\n  icon.png \\\n  m.sif\n"));
        const QJsonObject report =
            QJsonDocument::fromJson(Test::ReadAll(Path(u"c.json"_s))).object();
        QCOMPARE(report[u"outputs"_s][0][u"kind"_s], u"header"_s);
        QCOMPARE(report[u"inputs"_s][2][u"kind"_s], u"source"_s);
        QCOMPARE(report[u"inputs"_s][3][u"kind"_s], u"image"_s);
    }

private:
    [[nodiscard]] static QByteArray Icon(const char* size)
    {
        return Test::ReadAll(QStringLiteral(PROJECT_SOURCES "/packaging/icons/") +
                             QString::fromUtf8(size) + u".png"_s);
    }
    [[nodiscard]] static QString Font() { return Test::FontPath("outlines.ttf"); }
    [[nodiscard]] QString Path(const QString& name) const { return folder_.filePath(name); }

    void Write(const char* name, const QByteArray& contents) const
    {
        const QString path = Path(QString::fromUtf8(name));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        Test::WriteAll(path, contents);
    }

    Test::ProgramResult Run(QString line) const
    {
        line.replace(u"FONT"_s, Font());
        return Test::RunProgram(folder_.path(), QString::fromUtf8(GLYPHOR_PROGRAM), Words(line));
    }

    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestBuilds)

} // namespace Glyphor

#include "tst_builds.moc"
