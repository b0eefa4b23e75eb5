#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace Glyphor::Test {

struct ProgramResult
{
    QString output;
    QString errors;
    int status = -1; // -1: it crashed
};

// Runs a program in a folder, with an input that ends, and waits for its end. What prepare changes
// in the memory of the child may change here as well.
inline ProgramResult
RunProgram(const QString& folder, const QString& program, const QStringList& arguments,
           const QByteArray& input = {}, const std::function<void()>& prepare = {},
           const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environment);
    if (prepare)
        process.setChildProcessModifier(prepare);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        qFatal("the program does not end");
    const bool ended = process.exitStatus() == QProcess::NormalExit;
    return {QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()), ended ? process.exitCode() : -1};
}

} // namespace Glyphor::Test
