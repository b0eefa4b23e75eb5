#pragma once

#include "app/user_interface.h"

namespace Glyphor {

// The user interface of a run with windows: what there is to say and to
// ask is shown in boxes.
class GuiInterface : public UserInterface
{
public:
    void information(const QString& title, const QString& text) override;
    void warning(const QString& title, const QString& text) override;
    void critical(const QString& title, const QString& text) override;
    Answer Ask(const QString& title, const QString& text) override;
    std::optional<FormatChoice> askFontFormat(EncodingType assumed) override;
    std::optional<MergeMode> askMergeMode() override;
};

} // namespace Glyphor
