#include "actions/session.h"
#include "app/core_application.h"
#include "cli/command_line.h"

#include <csignal>
#include <cstdio>

// The exit status is 0 whatever happens: callers tell a failure by the console text or by the error
// file.
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

    if (!CommandLine::isCommandLineMode(argc, argv)) {
        std::fputs("Glyphor has no window yet: add -hide to run its options without one.\n",
                   stderr);
        return 0;
    }

    const CoreApplication application(argc, argv);
    CommandLine& commandLine = CommandLine::instance();
    Session session;
    SetCurrentInterface(&commandLine);
    commandLine.runGuarded(argc, argv, session);
    SetCurrentInterface(nullptr);
    return 0;
}
