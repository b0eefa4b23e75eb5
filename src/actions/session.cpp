#include "actions/session.h"

namespace Glyphor {

void Session::ReplaceFont(std::unique_ptr<Font> font, const QString& path,
                          const std::optional<FileStamp>& stamp)
{
    stack_.Clear();
    font_ = std::move(font);
    path_ = path;
    stamp_ = stamp;
    isChanged_ = false;
    kerningState_ = 0;
    savedKerningState_ = 0;
}

void Session::SetSaved(const QString& path)
{
    path_ = path;
    stamp_ = StampOf(path);
    isChanged_ = false;
    stack_.MarkSaved();
}

} // namespace Glyphor
