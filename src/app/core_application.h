#pragma once

#include <QCoreApplication>

namespace Glyphor {

// The application object of a headless run, which has no widgets.
class CoreApplication : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;
};

} // namespace Glyphor
