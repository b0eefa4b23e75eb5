#include "app/user_interface.h"

namespace Glyphor {

namespace {

BasicInterface* current = nullptr;

} // namespace

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
