#pragma once

#include <QCoreApplication>

namespace Glyphor {

// Texts of the engine for the user: Engine::tr(). A run with a window shows them in its language;
// on the command line, where no translation is loaded, they stay as they are written.
class Engine
{
    Q_DECLARE_TR_FUNCTIONS(Engine)
};

} // namespace Glyphor
