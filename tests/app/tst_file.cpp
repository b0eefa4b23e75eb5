#include "app/critical_exception.h"
#include "app/error_file.h"
#include "app/log_file.h"
#include "support/sample_font.h"
#include "support/test_main.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace Glyphor {

class TestFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Replaces_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("short") << u"file.c"_s;
        QTest::newRow("as long as a name can be") << QString(255, u'n');
    }

    void Replaces()
    {
        QFETCH(const QString, name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        File(path).Replace("first");
        QCOMPARE(Test::ReadAll(path), QByteArray("first"));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        const auto permissions = QFile::permissions(path);
        File(path).Replace("second");
        QCOMPARE(Test::ReadAll(path), QByteArray("second"));
        QCOMPARE(QFile::permissions(path), permissions);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void FollowsLinks()
    {
        const QString target = folder_.filePath(u"target.c"_s);
        const QString link = folder_.filePath(u"link.c"_s);
        QVERIFY(QFile::link(u"target.c"_s, link));
        for (const QByteArray contents : {"of a link that dangles", "of one that does not"}) {
            File(link).Replace(contents);
            QVERIFY(QFileInfo(link).isSymLink());
            QCOMPARE(Test::ReadAll(target), contents);
        }
    }

    void HardLinks()
    {
        Test::RecordingInterface interface;
        const QString path = folder_.filePath(u"one.c"_s);
        const QString other = folder_.filePath(u"other.c"_s);
        Test::WriteAll(path, "old");
        QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()),
                 0);
        File(path).Replace("new");
        QCOMPARE(Test::ReadAll(path), QByteArray("new"));
        QCOMPARE(Test::ReadAll(other), QByteArray("old"));
        QCOMPARE(interface.warnings.size(), 1);
        File(path).Replace("newer");
        QCOMPARE(interface.warnings.size(), 1);
    }

    void KeepsTheOwner()
    {
        if (::geteuid() != 0)
            QSKIP("only root may give files away");
        constexpr uid_t owner = 1234;
        constexpr gid_t group = 5678;
        const QString path = folder_.filePath(u"owned.c"_s);
        Test::WriteAll(path, "old");
        QCOMPARE(::chown(QFile::encodeName(path).constData(), owner, group), 0);
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0640), 0);
        File(path).Replace("new");
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_uid, owner);
        QCOMPARE(status.st_gid, group);
        QCOMPARE(status.st_mode & 0777, mode_t(0640));
    }

    void Failures_data()
    {
        QTest::addColumn<QString>("path");
        const QString loop = folder_.filePath(u"loop.c"_s);
        QVERIFY(QFile::link(u"loop.c"_s, loop));
        QTest::newRow("loop of links") << loop;
        QTest::newRow("directory") << folder_.path();
        QTest::newRow("missing directory") << folder_.filePath(u"none/file.c"_s);
        QTest::newRow("full disk") << u"/dev/full"_s;
        QTest::newRow("no name") << QString();
    }

    void Failures()
    {
        QFETCH(const QString, path);
        const QString failure = Test::FailureOf([&path] { File(path).Replace("contents"); });
        const QString start = u"Error saving file!: The file %1 could not be written: "_s.arg(path);
        QVERIFY2(failure.startsWith(start) && failure.size() > start.size(), qPrintable(failure));
    }

    void WritesToPipes()
    {
        const QString path = folder_.filePath(u"pipe.c"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QFile reader(path);
        // For both, so as not to wait for a writer; a buffer would wait for more than there is.
        QVERIFY(reader.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        File(path).Replace("through");
        QCOMPARE(reader.read(7), QByteArray("through"));
        QVERIFY(QFileInfo(path).exists() && !QFileInfo(path).isFile());
    }

    void Logs()
    {
        LogFile(folder_.filePath(u"Arial.16.xbf"_s)).Write({u"one"_s, u"two"_s}, "\r\n");
        QCOMPARE(Test::ReadAll(folder_.filePath(u"Arial.16.log"_s)),
                 QByteArray("Log file for: Arial\r\n\r\none\r\ntwo\r\n"));

        // One of ours is replaced, what somebody else keeps there is not.
        const QString log = folder_.filePath(u"Arial.16.log"_s);
        LogFile(folder_.filePath(u"Arial.16.c"_s)).Write({}, "\n");
        QCOMPARE(Test::ReadAll(log), QByteArray("Log file for: Arial\n\n"));
        Test::WriteAll(log, "Log of the day");
        QVERIFY_THROWS_EXCEPTION(CriticalException, LogFile(log).Write({}, "\n"));
        QCOMPARE(Test::ReadAll(log), QByteArray("Log of the day"));
        Test::WriteAll(log, {});
        LogFile(log).Write({}, "\n");
        QVERIFY(!Test::ReadAll(log).isEmpty());

        const QString before = QDir::currentPath();
        QDir::setCurrent(folder_.path());
        ErrorFile().Write(u"first"_s);
        ErrorFile().Write(u"second"_s);
        QDir::setCurrent(before);
        QCOMPARE(Test::ReadAll(folder_.filePath(u"Glyphor.err"_s)), QByteArray("second"));
    }

private:
    QTemporaryDir folder_;
};

GLYPHOR_TEST(TestFile)

} // namespace Glyphor

#include "tst_file.moc"
