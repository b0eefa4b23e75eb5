#include "actions/action_read_pattern.h"
#include "actions/pattern_file.h"
#include "app/critical_exception.h"
#include "support/rows.h"
#include "support/sample_font.h"
#include "support/test_main.h"
#include "support/undo_session.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace Glyphor {

class TestPattern : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Reading_data()
    {
        const Test::Rows<const char*, QList<int>, int, QString> row;
        const QString encoding = u"Wrong encoding in pattern file!"_s;
        row("mark only", "fffe", {}, 0, {});
        row("AB and a line break", "fffe 4200 4100 4100 0d00 0a00", {0x0A, 0x0D, 0x41, 0x42}, 0,
            {});
        row("first and last code", "fffe ffff 0000", {0, 0xFFFF}, 0, {});
        row("odd byte", "fffe 4100 42", {0x41}, 1, {});
        row("UTF-8", "efbbbf 41", {}, 0, encoding);
        row("big-endian", "feff 0041", {}, 0, encoding);
        row("empty", "", {}, 0, encoding);
    }

    void Reading()
    {
        const auto [hex, codes, warnings, failure] =
            Test::Row<const char*, QList<int>, int, QString>();
        Test::WriteAll(Path(), QByteArray::fromHex(hex));
        Test::RecordingInterface interface;
        try {
            const CodeSet read = PatternFile(Path()).Read();
            QVERIFY(failure.isEmpty());
            QList<int> found;
            for (const quint16 code : read)
                found.append(code);
            QCOMPARE(found, codes);
            QCOMPARE(interface.warnings.size(), warnings);
        } catch (const CriticalException& error) {
            QCOMPARE(error.Title(), failure);
            QCOMPARE(error.Text(), u"UTF-16 LE byte order mark was not found."_s);
        }
    }

    // What never ends, and what never answers.
    void NoOrdinaryFiles()
    {
        const QString pipe = folder_.filePath(u"pipe.txt"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString& path : {u"/dev/zero"_s, pipe, folder_.path()})
            QVERIFY(Test::FailureOf([&path] { (void)PatternFile(path).Read(); })
                        .startsWith(u"Error opening file!: The pattern file %1 could not be "
                                    "read: "_s.arg(path)));
    }

    void RoundTrip()
    {
        CodeSet codes;
        codes.SetRange(0x20, 0x7E, true);
        codes.Set(0xFFFF, true);
        PatternFile(Path()).Write(codes);
        const QByteArray written = Test::ReadAll(Path());
        QCOMPARE(written.left(6), QByteArray::fromHex("fffe20002100"));
        QCOMPARE(PatternFile(Path()).Read(), codes);
        // Longer than what is read at a time.
        const QByteArray letters = QByteArray::fromHex("4100").repeated(0x20000);
        Test::WriteAll(Path(), written.left(2) + letters + written.mid(2));
        QCOMPARE(PatternFile(Path()).Read(), codes);
    }

    void Applying()
    {
        auto font = std::make_unique<Font>(FontFormat::AA2, EncodingType::Unicode);
        font->SetEnabled('A', 'B', true);
        font->SetEnabled('A', 'A', false);
        Test::UndoSession session(std::move(font));
        const Font& current = *session.CurrentFont();
        const CodeSet before = current.EnabledCodes();
        Test::WriteAll(Path(), QByteArray::fromHex("fffe 4100 4300"));

        const auto action = std::make_shared<ActionReadPattern>(session);
        action->Args().path = Path();
        QVERIFY(action->Run());
        QVERIFY(current.IsEnabled('A') && current.IsEnabled('B'));
        QVERIFY(current.EnabledCodes().Test('C') && current.FindChar('C') == nullptr);
        QCOMPARE(session.Stack().LogLines(),
                 QStringList{u"[Font]: Read pattern file: %1."_s.arg(Path())});
        session.Stack().Undo();
        QCOMPARE(current.EnabledCodes(), before);

        const auto missing = std::make_shared<ActionReadPattern>(session);
        missing->Args().path = u"none.txt"_s;
        QVERIFY(!missing->Run());
    }

private:
    [[nodiscard]] QString Path() const { return folder_.filePath(u"pattern.txt"_s); }

    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestPattern)

} // namespace Glyphor

#include "tst_pattern.moc"
