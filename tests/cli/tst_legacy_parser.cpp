#include "actions/session.h"
#include "app/settings.h"
#include "cli/command_line.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

using Test::Words;

namespace {

// Rows of lines, each with what comes of it. Each of the words stands for %1 in a row of its own.
class LineRows
{
public:
    void operator()(const QString& line, const QString& result, const char* words = "%1") const
    {
        for (const QString& word : QString::fromUtf8(words).split(u' '))
            rows_(qPrintable(QString(line).replace(u"%1"_s, word)),
                  QString(line).replace(u"%1"_s, word), QString(result).replace(u"%1"_s, word));
    }

private:
    Test::Rows<QString, QString> rows_;
};

// The file that the arguments make.
QByteArray SavedBy(const QStringList& arguments, const QString& path)
{
    QList<QByteArray> texts = {"Glyphor"};
    for (const QString& argument : arguments)
        texts.append(argument.toLocal8Bit());
    const std::vector<const char*> pointers(texts.begin(), texts.end());
    Session session;
    CommandLine commandLine;
    SetCurrentInterface(&commandLine);
    commandLine.RunGuarded(int(pointers.size()), pointers.data(), session);
    SetCurrentInterface(nullptr);
    const QByteArray contents = Test::ReadAll(path);
    QFile::remove(path);
    return contents;
}

} // namespace

// Old lines do what their new forms do.
class TestLegacyParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NewForms_data()
    {
        const LineRows row;
        const QRegularExpression entry(
            u"<td><code>(-[^<]*)</code></td><td><code>(-[^<]*)</code>"_s);
        const QString manual = Test::Document(u"docs/manual/index.html"_s);
        QVERIFY(manual.contains(entry));
        for (const QRegularExpressionMatch& match : entry.globalMatch(manual))
            row(match.captured(1), match.captured(2));
        for (const auto& [old, now] : {std::pair(u"STD"_s, u"LEG"_s),
                                       {u"AA2"_s, u"LEG_AA2"_s},
                                       {u"aa4"_s, u"LEG_AA4"_s},
                                       {u"EXT"_s, u"STD"_s},
                                       {u"EXT_FRM"_s, u"FRM"_s},
                                       {u"Ext_AA2"_s, u"AA2"_s},
                                       {u"EXT_AA4"_s, u"AA4"_s}})
            row(u"-createA~B~24~%2~UC16"_s.arg(old), u"-c A B -h 24px -f %2 -enc UC"_s.arg(now));
        row(u"-CREATEA,C~B~0x18~STD~jis~1,"_s, u"-c A,C B -h 24px -f LEG -enc SJIS"_s);
        row(u"-createA~B~9~STD~ISO8859 -enable0-0xFFFF~1 -readpatterna~b,"_s,
            u"-c A B -h 9px -f LEG -enc UC -e all -p a~b, "
            "-d 0-0x1F -d 0x7F-0x9F -d 0x100-0xFFFF"_s);
        row(u"-enable0x20-0x7e~1 -enableall~0 -Enable0x7E-32~1, -enable160,1,"_s,
            u"-e 0x20-0x7E -d all -e 0x7E-32 -e 160"_s);
        row(u"-editSHIFTH~L/1~1 -editshifth~r/2-3~2 -editSHIFTV~U/all~3 -editSHIFTV~D/4~0x4,"_s,
            u"-ec SHIFTL 1 1 -ec SHIFTR 2-3 2 -ec SHIFTU all 3 -ec SHIFTD 4 4"_s);
        row(u"-editMOVEH~L/1 -editMOVEH~R/1 -editMOVEV~U/1 -editMOVEV~d/1"_s,
            u"-ec MOVEL 1 -ec MOVER 1 -ec MOVEU 1 -ec MOVED 1"_s);
        row(u"-edit%1~9-1~2"_s, u"-ec %1 9-1 2"_s,
            "CINC CDEC INST INSB INSL INSR DELT DELB DELL DELR");
        row(u"-mergea~b.c -saveasFONTS~1/out~c,"_s, u"-m a~b.c -s FONTS~1/out.c"_s);
        row(u"-saveasout.CPP~C"_s, u"-s out.CPP"_s);
        row(u"-saveasout.c~XBF"_s, u"-s out.c.xbf"_s);
        row(u"-merge a.c -saveasb~SIF"_s, u"-m a.c -s b.sif"_s);
    }

    void NewForms()
    {
        const auto [old, now] = Test::Row<QString, QString>();
        const auto areEqual = [](const OptionOccurrence& left, const OptionOccurrence& right) {
            return left.option == right.option && left.values == right.values;
        };
        const CommandLineParser parser;
        QVERIFY(std::ranges::equal(parser.parse(Words(old)), parser.parse(Words(now)), areEqual));
    }

    void Failures_data()
    {
        const LineRows row;
        row(u"-create%1"_s, u"Invalid create string syntax: %1"_s,
            "x ~ , A~B~24~STD ~B~24~STD~UC16 A~~24~STD~UC16 A~B~24~STD~UC16~ A~B~24~STD~UC16~0~0");
        row(u"-createA~B~%1~STD~UC16"_s, u"Invalid create string syntax: W%1"_s,
            "24px -1 99999999999");
        row(u"-createA~B~24~STD~UC16~AA"_s, u"Invalid create string syntax: WAA"_s);
        row(u"-createA~B~24~LEG~UC16"_s, u"Invalid font format: LEG"_s);
        row(u"-createA~B~24~STD~%1"_s, u"Invalid encoding type: %1"_s, "SJIS %2");
        for (const QString& form : {u"-enable%1~1"_s, u"-editINST~%1~1"_s})
            row(form, u"Error parsing range: %1"_s, "1-2-3 0x10000 1- L/1 a");
        row(u"-editMOVEH~%1"_s, u"Error parsing range: %1"_s, "1-2 U/1-2 L /1 LL/1");
        row(u"-edit%1~1~1"_s, u"Given parameter %1 did not match constraint!"_s, "SHIFTR charINST");
        row(u"-editINST~1~one"_s, u"Error while parsing number: one"_s);
        row(u"-enable1~2"_s, u"Given parameter 2 did not match constraint!"_s);
        row(u"-saveasa.bdf~BDF"_s, u"Given parameter BDF did not match constraint!"_s);
        row(u"%1"_s, u"Invalid argument %1 entered!"_s,
            "-enable1 -enable~1 -enable1~ -enable1~1~1 -enable1~1,2~1, -edit~ -editINST "
            "-editINST~~1 -editINST~1~ -editINST~1~1~1 -editfonts -saveas -saveasout.c -saveas~C "
            "-saveasout~ -saveasout~, --enable1~1");
        row(u"-createA~B~1~STD~UC16 -h 1px"_s, u"Argument -height supplied more than once!"_s);
        row(u"-save a.c -saveasa~C"_s, u"Argument -save supplied more than once!"_s);
        row(u"-enable -enable1~1"_s,
            u"Read new argument -enable1~1 where a parameter was expected!"_s);
    }

    void Failures()
    {
        const auto [line, text] = Test::Row<QString, QString>();
        QCOMPARE(Test::FailureOf([&line = line] { (void)CommandLineParser().parse(Words(line)); }),
                 u"Critical error!: "_s + text);
    }

    void FilesAreEqual()
    {
        Settings::Instance().additionalFontDirs.setValue(
            {QFileInfo(Test::FontPath("outlines.ttf")).path()});
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"out.c"_s);
        const QByteArray old = SavedBy({u"-saveas%1~C"_s.arg(folder.filePath(u"out"_s)),
                                        u"-createTest Outlines~Regular~20~EXT_AA4~ISO8859~0"_s,
                                        u"-enable0x41-0xFFFF~1"_s, u"-editMOVEV~U/0x41~3"_s},
                                       path);
        QVERIFY(old.contains("_0041[") && !old.contains("_0391["));
        QStringList now = Words(u"-create X Regular -height 20px -format AA4 -encoding UC -enable "
                                "0x41-0xFF -editchar MOVEU 0x41 3 -save"_s);
        now[1] = u"Test Outlines"_s;
        QCOMPARE(SavedBy(now + QStringList{path}, path), old);
    }
};

GLYPHOR_TEST(TestLegacyParser)

} // namespace Glyphor

#include "tst_legacy_parser.moc"
