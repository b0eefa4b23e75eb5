#pragma once

#include <QApplication>

namespace Glyphor {

// The application object of a run with windows.
class Application final : public QApplication
{
public:
    Application(int& argc, char** argv);
    ~Application() override;

    // Null in a run without windows.
    static Application* Instance();
};

} // namespace Glyphor
