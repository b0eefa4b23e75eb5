#pragma once

#include "app/version.h"
#include "support/test_main.h"

#include <QProcess>
#include <QTest>

namespace Glyphor::Test {

// Compares a generated C file with the expected one, but for what changes from build to build. With
// GLYPHOR_RENEW_GOLDEN set it writes the expected file anew.
inline void CompareWithGolden(QByteArray text, const QString& name)
{
    const QByteArray version = Program::Version.data();
    const QByteArray built =
        QByteArray(Program::BuildDate.data()) + ' ' + Program::BuildTime.data();
    QVERIFY(text.contains(Program::Name.data() + QByteArray(" ") + version));
    QVERIFY(text.contains("Compiled: " + built));
    text.replace(built, QByteArray("<date and time>").leftJustified(built.size()));
    text.replace("Glyphor " + version, "Glyphor " + QByteArray("#").leftJustified(version.size()));

    const QString path =
        QString::fromUtf8(TEST_SOURCES "/files/") + name + QStringLiteral(".golden");
    if (qEnvironmentVariableIsSet("GLYPHOR_RENEW_GOLDEN"))
        WriteAll(path, text);
    QCOMPARE(text, ReadAll(path));
}

// What the program prints, on standard output and standard error together.
inline QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished())
        return process.errorString().toUtf8();
    return process.readAll();
}

// What the compiler says to sources that include the library's header and files of the folder.
inline QByteArray Compile(const QString& folder, const QStringList& arguments)
{
    const QString header = QStringLiteral("-I" PROJECT_SOURCES "/docs/examples/firmware");
    return OutputOf(QStringLiteral("gcc"),
                    QStringList{QStringLiteral("-std=gnu99"), QStringLiteral("-Wall"),
                                QStringLiteral("-Wextra"), QStringLiteral("-Werror"), header,
                                QStringLiteral("-I") + folder} +
                        arguments);
}

} // namespace Glyphor::Test
