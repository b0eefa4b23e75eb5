#include "support/rows.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace Glyphor {

// Ends the program in front of every system call of a save: what is left is the old file or the new
// one, as a whole.
class TestInterruptedSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EndedAnywhere_data()
    {
        const Test::Rows<int, bool, bool> row;
        for (const auto& [name, signal] :
             {std::pair("TERM", SIGTERM), {"INT", SIGINT}, {"HUP", SIGHUP}, {"KILL", SIGKILL}}) {
            for (const bool hasUnnamedFiles : {true, false}) {
                for (const bool isReplaced : {true, false})
                    row(QTest::addRow("%s, %s, %s", name, hasUnnamedFiles ? "unnamed" : "named",
                                      isReplaced ? "replaced" : "new"),
                        signal, hasUnnamedFiles, isReplaced);
            }
        }
    }

    void EndedAnywhere()
    {
        const auto [signal, hasUnnamedFiles, isReplaced] = Test::Row<int, bool, bool>();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"font.xbf"_s);
        QVERIFY(Save(folder, true, {}));
        const QByteArray whole = Test::ReadAll(path);
        QVERIFY(whole.endsWith("XBF\6"));
        constexpr int mostCalls = 100;
        int call = 1;
        bool isDone = false;
        for (; call < mostCalls && !isDone; ++call) {
            QFile::remove(path);
            if (isReplaced)
                Test::WriteAll(path, "old");
            isDone = Save(folder, hasUnnamedFiles,
                          QByteArray::number(call) + ' ' + QByteArray::number(signal));
            const QByteArray left = Test::ReadAll(path);
            QVERIFY2(left == whole || left == QByteArray(isReplaced ? "old" : ""),
                     qPrintable(QString::number(call)));
            QVERIFY(!isDone || left == whole);
            const QStringList files = FilesIn(folder);
            // Nobody can clean up after a kill, until the next save.
            QVERIFY2(files.size() <= (signal == SIGKILL ? 2 : 1), qPrintable(files.join(u' ')));
            QVERIFY(Save(folder, hasUnnamedFiles, {}));
            QCOMPARE(FilesIn(folder), QStringList{u"font.xbf"_s});
        }
        QVERIFY(call > 5 && call < mostCalls);
    }

    // Signals that the caller ignores, as nohup does, do not end a save.
    void IgnoredSignals()
    {
        const QTemporaryDir folder;
        QVERIFY(Save(folder, false, "3 " + QByteArray::number(SIGHUP),
                     [] { std::signal(SIGHUP, SIG_IGN); }));
        QCOMPARE(FilesIn(folder), QStringList{u"font.xbf"_s});
    }

private:
    // True where the program came to its end.
    static bool Save(const QTemporaryDir& folder, bool hasUnnamedFiles, const QByteArray& signal,
                     const std::function<void()>& prepare = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_PRELOAD"_s, QString::fromUtf8(TEST_FAULTS));
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
        environment.insert(u"FAULTS_SIGNAL"_s, QString::fromLatin1(signal));
        if (!hasUnnamedFiles)
            environment.insert(u"FAULTS_NO_TMPFILE"_s, u"1"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        if (prepare)
            process.setChildProcessModifier(prepare);
        process.start(QString::fromUtf8(GLYPHOR_PROGRAM),
                      Test::Words(u"%1 -hide -height 20px -format AA4 -enable 0x41-0x61 "
                                  "-save font.xbf"_s.arg(Test::FontPath("outlines.ttf"))));
        process.closeWriteChannel();
        if (!process.waitForFinished())
            qFatal("the program does not end");
        return process.exitStatus() == QProcess::NormalExit &&
               process.readAllStandardOutput().contains("Saved font file: ");
    }

    static QStringList FilesIn(const QTemporaryDir& folder)
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
};

GLYPHOR_TEST(TestInterruptedSave)

} // namespace Glyphor

#include "tst_interrupted_save.moc"
