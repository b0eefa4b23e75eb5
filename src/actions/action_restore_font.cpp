#include "actions/action_restore_font.h"

#include "actions/session.h"

namespace Glyphor {

void ActionRestoreFont::RedoOnce()
{
    CurrentSession().ReplaceFont(std::move(Args().font), Args().path, Args().stamp);
    CurrentSession().MarkChanged();
}

LogEntry ActionRestoreFont::Log() const
{
    return LogEntry(QT_TRANSLATE_NOOP("Engine", "Restored unsaved changes: %1"),
                    {LoggedPath(Args().path)});
}

} // namespace Glyphor
