#include "actions/session.h"
#include "app/core_application.h"
#include "cli/command_line.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The window is a program of its own, so that a headless run loads no widgets: where it is
// installed, or beside this one in the folder of the build.
QString WindowProgram(int argc, char** argv)
{
    const Glyphor::CoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath();
    QString built = folder + u"/Glyphor-window"_s;
    if (QFile::exists(built))
        return built;
    return QDir::cleanPath(folder + QStringLiteral("/" GLYPHOR_WINDOW_FOLDER "/Glyphor-window"));
}

// Returns where that fails.
int BecomeWindow(int argc, char** argv)
{
    const QString program = WindowProgram(argc, argv);
#ifdef Q_OS_UNIX
    ::execv(QFile::encodeName(program).constData(), argv);
#else
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    if (QProcess::startDetached(program, arguments))
        return 0;
#endif
    return Glyphor::CommandLine::TellNoWindow(
        argc, argv,
        QStringLiteral("Glyphor's window, %1, can't be started: add -hide to run the options "
                       "without it.")
            .arg(program));
}

} // namespace

// Unless -strict is given, the exit status is 0 whatever happens: callers tell a failure by the
// console text or by the error file.
int main(int argc, char** argv)
{
    using namespace Glyphor;

    std::setvbuf(stdout, nullptr, _IONBF, 0);
#ifdef Q_OS_UNIX
    // A reader of the messages that goes away must not keep the font from being saved, and a file
    // that grows too large is to be reported.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif

    if (!CommandLine::isCommandLineMode(argc, argv))
        return BecomeWindow(argc, argv);

    const CoreApplication application(argc, argv);
    CommandLine& commandLine = CommandLine::Instance();
    // Its memory goes with the process: to free a large font first takes time.
    static Session& session = *new Session;
    SetCurrentInterface(&commandLine);
    commandLine.RunGuarded(argc, argv, session);
    SetCurrentInterface(nullptr);
    return commandLine.ExitStatus();
}
