#pragma once

#include "actions/action_stack.h"
#include "app/file_system.h"
#include "model/font.h"

#include <QString>

#include <memory>
#include <optional>

namespace Glyphor {

// The font at work, the file that it belongs to, and its history. Every front end has one.
class Session
{
public:
    Session() : stack_(ownStack_) {}

    // With a history of the front end's, which must outlive the session.
    explicit Session(ActionStack& stack) : stack_(stack) {}

    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Null until a font was opened.
    [[nodiscard]] Font* CurrentFont() const { return font_.get(); }

    // As the user gave it.
    [[nodiscard]] const QString& Path() const { return path_; }

    // Of the file when the font was read from it or saved to it.
    [[nodiscard]] const std::optional<FileStamp>& Stamp() const { return stamp_; }

    // True where the font has changes that are not in its file, or kerning that is in none.
    [[nodiscard]] bool IsModified() const { return !IsFontSaved() || HasUnsavedKerning(); }
    [[nodiscard]] bool IsFontSaved() const { return !isChanged_ && stack_.IsAsSaved(); }

    // Font files hold no kerning, so its changes stay unsaved until a kerning file has them. Each
    // change leads to a state with a number of its own, and undo back to the one before.
    [[nodiscard]] int KerningState() const { return kerningState_; }
    [[nodiscard]] int NewKerningState() { return ++lastKerningState_; }
    void SetKerningState(int state) { kerningState_ = state; }
    [[nodiscard]] bool HasUnsavedKerning() const { return kerningState_ != savedKerningState_; }
    void SetKerningSaved() { savedKerningState_ = kerningState_; }

    // The font has a change that its history does not tell of.
    void MarkChanged() { isChanged_ = true; }

    [[nodiscard]] ActionStack& Stack() { return stack_; }

    // Takes a new font and begins its history.
    void ReplaceFont(std::unique_ptr<Font> font, const QString& path,
                     const std::optional<FileStamp>& stamp = {});

    void SetSaved(const QString& path);

private:
    std::unique_ptr<Font> font_;
    QString path_;
    std::optional<FileStamp> stamp_;
    ActionStack ownStack_;
    ActionStack& stack_;
    bool isChanged_ = false;
    int kerningState_ = 0;
    int savedKerningState_ = 0;
    int lastKerningState_ = 0;
};

} // namespace Glyphor
