#include "ui/window/main_window.h"
#include "actions/session.h"
#include "cli/command_line.h"
#include "ui/support/application.h"
#include "ui/support/undo_stack.h"

#include <cstdio>
#include <cstdlib>

namespace {

int argumentCount = 0;
char** argumentList = nullptr;

// The toolkit ends the program where it finds no display; this tells what to do instead of why.
void HandleMessage(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type != QtFatalMsg)
        return;
    std::_Exit(Glyphor::CommandLine::TellNoWindow(
        argumentCount, argumentList,
        QStringLiteral(
            "Glyphor can't open a window here: add -hide to run its options without one.")));
}

} // namespace

// The run with a window. The exit status is 0 unless -strict is given.
int main(int argc, char** argv)
{
    using namespace Glyphor;

    std::setvbuf(stdout, nullptr, _IONBF, 0);
    argumentCount = argc;
    argumentList = argv;
    qInstallMessageHandler(HandleMessage);
    Application application(argc, argv);
    qInstallMessageHandler(nullptr);
    UndoStack history;
    Session session(history);
    MainWindow window(session, history);
    SetCurrentInterface(&window);
    window.show();
    CommandLine::Instance().RunGuarded(argc, argv, session);
    if (window.isVisible()) { // not closed meanwhile
        window.OfferRecovery();
        Application::exec();
    }
    SetCurrentInterface(nullptr);
    return CommandLine::Instance().ExitStatus();
}
