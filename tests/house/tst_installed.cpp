#include "files/file_types.h"
#include "support/test_main.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace Glyphor {

// Installs the program somewhere else than it was configured for.
class TestInstalled : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    QString Installed(const QString& path) const { return folder_.filePath(path); }

    QByteArray Run(const QString& program, const QStringList& arguments) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setWorkingDirectory(folder_.path());
        process.start(program, arguments);
        return process.waitForFinished() ? process.readAll() : process.errorString().toUtf8();
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray said =
            Run(QStringLiteral(CMAKE),
                {u"--install"_s, QStringLiteral(PROJECT_BUILD), u"--prefix"_s, folder_.path()});
        QVERIFY2(QFileInfo::exists(Installed(u"bin/Glyphor"_s)), said.constData());
    }

    void FindsItsWindowAndManual()
    {
        const QByteArray said =
            Run(Installed(u"bin/Glyphor"_s),
                {Test::FontPath("bitmap.bdf"), u"-save"_s, u"out.c"_s, u"-exit"_s});
        QVERIFY2(QFileInfo::exists(Installed(u"out.c"_s)), said.constData());
        QVERIFY(QFileInfo::exists(
            Installed(QStringLiteral(WINDOW_FOLDER "/" MANUAL_FOLDER "/index.html"))));
    }

    // Desktops know each kind of file that no other program has.
    void KindsAreKnown()
    {
        const QByteArray kinds =
            Test::ReadAll(Installed(u"share/mime/packages/com.example.morvek.Glyphor.xml"_s));
        for (const FileTypeRow& row : FileTypeTable) {
            if (!row.isWritten || row.type == FileType::C)
                continue;
            for (const QLatin1StringView suffix : row.suffixes)
                QVERIFY2(kinds.contains("<glob pattern=\"*" + QByteArray(suffix.data()) + "\"/>"),
                         suffix.data());
        }
    }
};

GLYPHOR_TEST(TestInstalled)

} // namespace Glyphor

#include "tst_installed.moc"
