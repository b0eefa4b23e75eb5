#include "actions/action_read_pattern.h"

#include "actions/pattern_file.h"
#include "app/file_system.h"

namespace Glyphor {

bool ActionReadPattern::Execute()
{
    SetRepeat(1);
    if (CurrentFont() == nullptr || KindOf(Args().path) == FileKind::None)
        return false;
    pattern_ = PatternFile(Args().path).Read();
    return true;
}

void ActionReadPattern::RedoOnce()
{
    previousCodes_ = CurrentFont()->EnabledCodes();
    CodeSet codes = previousCodes_;
    ApplyTo(codes);
    CurrentFont()->SetEnabledCodes(codes);
}

} // namespace Glyphor
