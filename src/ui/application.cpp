#include "ui/application.h"

namespace Glyphor {

namespace {

Application* current = nullptr;

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    current = this;
}

Application::~Application()
{
    current = nullptr;
}

Application* Application::Instance()
{
    return current;
}

} // namespace Glyphor
