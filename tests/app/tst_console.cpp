#include "app/console.h"
#include "app/progress.h"
#include "support/test_main.h"

#include <QTest>

namespace Glyphor {

class TestConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Attributes()
    {
        const QList<int> attributes = {12, 10, 14, 9, 13, 11};
        for (int colour = 31; colour <= 36; ++colour)
            QCOMPARE(ConsoleAttribute(ConsoleColour(colour)), attributes[colour - 31]);
        QCOMPARE(ConsoleAttribute(ConsoleColour::Default), 7);
        QVERIFY(!ConsoleAttribute(ConsoleColour(37)));
    }

    void PlainWithoutTerminal()
    {
        std::FILE* const stream = std::tmpfile();
        Console console(stream);
        QVERIFY(!console.IsTerminal());
        console.PrintLine(u"Gr\u00fc\u00dfe", ConsoleColour::Red);
        std::rewind(stream);
        char text[64] = {};
        QVERIFY(std::fgets(text, sizeof text, stream) != nullptr);
        QCOMPARE(QString::fromLocal8Bit(text), QStringLiteral("Gr\u00fc\u00dfe\n"));
        std::fclose(stream);
    }

    void ProgressTellsFullPercents()
    {
        struct : UserInterface
        {
            bool progressChanged(const QString&, int value, int maximum) override
            {
                values.append(value * 100 / maximum);
                return value != stopsAt;
            }
            void progressFinished() override { ++finished; }
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
        SetCurrentInterface(nullptr);
        QCOMPARE(interface.finished, 2);
    }
};

GLYPHOR_TEST(TestConsole)

} // namespace Glyphor

#include "tst_console.moc"
