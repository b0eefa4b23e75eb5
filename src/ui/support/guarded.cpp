#include "ui/support/guarded.h"

#include "app/critical_exception.h"
#include "app/progress.h"
#include "app/user_interface.h"

#include <QCoreApplication>

#include <new>

namespace Glyphor {

bool Guarded(const std::function<void()>& work)
{
    try {
        work();
        return true;
    } catch (const CriticalException& error) {
        CurrentInterface().critical(error.Title(), error.Text());
    } catch (const WorkStopped&) {
        // The user knows.
    } catch (const std::bad_alloc&) {
        CurrentInterface().critical(
            CriticalException::DefaultTitle(),
            QCoreApplication::translate("Glyphor::Guarded", "There is not enough memory."));
    }
    return false;
}

} // namespace Glyphor
