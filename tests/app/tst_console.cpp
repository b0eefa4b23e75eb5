#include "app/console.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "support/test_main.h"

#include <QTest>

#include <array>
#include <sys/socket.h>
#include <unistd.h>

namespace Glyphor {

class TestConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NamesHaveNoEffects()
    {
        QCOMPARE(Shown(u"a b\u00e9\u4e9c"), QStringLiteral("a b\u00e9\u4e9c"));
        QCOMPARE(Shown(u"\u001b[31m\n\r\t\u0007\u009b\u007f"),
                 QStringLiteral("\\x1B[31m\\n\\r\\t\\x07\\u009B\\x7F"));
        QCOMPARE(Shown(u"\u202etxt.exe\u2028"), QStringLiteral("\\u202Etxt.exe\\u2028"));
        // A byte that is no character is told from the character of its number.
        const QString raw = u"\u00e9\U0001F480"_s + QChar(0xDCE9);
        QCOMPARE(Shown(raw), u"\u00e9\U0001F480\\xE9"_s);
        QCOMPARE(ShownBytes(u'\t' + raw), u"\t\u00e9\U0001F480\\xE9"_s);
        QCOMPARE(Shown(QString(QChar(0xD800))), u"\\uD800"_s);
        QCOMPARE(ShownLines(u"one\n\u001btwo\tthree"), QStringLiteral("one\n\\x1Btwo\tthree"));
        std::FILE* const stream = std::tmpfile(); // no terminal, so without colours
        Console(stream).PrintLine(u"Gr\u00fc\u00dfe\u001b]0;title\u0007\nb", ConsoleColour::Red);
        std::rewind(stream);
        char text[64] = {};
        const std::size_t length = std::fread(text, 1, sizeof text, stream);
        QCOMPARE(QString::fromLocal8Bit(text, qsizetype(length)),
                 QStringLiteral("Gr\u00fc\u00dfe\\x1B]0;title\\x07\nb\n"));
        std::fclose(stream);
    }

    // Each line is a write of its own, so that those of parallel programs don't mix.
    void LinesAreWrittenAtOnce()
    {
        std::array<int, 2> ends{};
        QCOMPARE(::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), 0);
        std::FILE* const stream = ::fdopen(ends[0], "w");
        std::setvbuf(stream, nullptr, _IONBF, 0);
        Console console(stream);
        console.PrintLine(u"one");
        console.PrintLine(QString(3000, u'x'), ConsoleColour::Red);
        std::array<char, 4000> packet{};
        QCOMPARE(::read(ends[1], packet.data(), packet.size()), 4);
        QCOMPARE(::read(ends[1], packet.data(), packet.size()), 3001);
        std::fclose(stream);
        ::close(ends[1]);
    }

    void ProgressTellsFullPercents()
    {
        struct : UserInterface
        {
            bool ProgressChanged(const QString&, int value, int maximum) override
            {
                values.append(value * 100 / maximum);
                return value != stopsAt;
            }
            void ProgressFinished() override { ++finished; }
            QList<int> values;
            int finished = 0;
            int stopsAt = -1;
        } interface;
        SetCurrentInterface(&interface);
        {
            Progress progress(QStringLiteral("Work"), 100000);
            for (int step = 0; step < 100000; ++step)
                progress.Advance();
        }
        QCOMPARE(interface.values.size(), 101);
        QCOMPARE(interface.values.last(), 100);
        QCOMPARE(interface.finished, 1);
        interface.stopsAt = 50000;
        const auto work = [] {
            Progress progress(QStringLiteral("Work"), 100000);
            progress.SetValue(50000);
        };
        QVERIFY_THROWS_EXCEPTION(WorkStopped, work());
        // What does not count gives the interface its turn as well.
        interface.stopsAt = 0;
        const auto look = [] {
            Progress progress(QStringLiteral("Work"), 100000);
            for (int step = 0; step < 100; ++step)
                progress.LookedAt();
        };
        QVERIFY_THROWS_EXCEPTION(WorkStopped, look());
        SetCurrentInterface(nullptr);
        QCOMPARE(interface.finished, 3);
    }
};

GLYPHOR_TEST(TestConsole)

} // namespace Glyphor

#include "tst_console.moc"
