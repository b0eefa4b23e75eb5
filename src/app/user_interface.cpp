#include "app/user_interface.h"

namespace Glyphor {

namespace {

BasicInterface* current = nullptr;

} // namespace

void UserInterface::information(const QString&, const QString&) {}

void UserInterface::warning(const QString&, const QString&) {}

void UserInterface::critical(const QString&, const QString&) {}

bool UserInterface::handleRequest(ActionType)
{
    return false;
}

bool UserInterface::requestAction(Action&)
{
    return false;
}

bool UserInterface::actionPerformed(const std::shared_ptr<Action>& action, const QString&)
{
    return action != nullptr;
}

void UserInterface::ActionChanged(const std::shared_ptr<Action>&) {}

bool UserInterface::ProgressChanged(const QString&, int, int)
{
    return true;
}

void UserInterface::ProgressFinished() {}

std::optional<FormatChoice> UserInterface::askFontFormat(EncodingType)
{
    return std::nullopt;
}

std::optional<MergeMode> UserInterface::askMergeMode()
{
    return std::nullopt;
}

Answer UserInterface::Ask(const QString&, const QString&)
{
    return Answer::Nobody;
}

BasicInterface& CurrentInterface()
{
    static UserInterface silent;
    return current != nullptr ? *current : silent;
}

void SetCurrentInterface(BasicInterface* interface)
{
    current = interface;
}

} // namespace Glyphor
