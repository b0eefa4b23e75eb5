#pragma once

#include "app/file.h"
#include "model/font.h"

#include <functional>
#include <memory>
#include <optional>

namespace Glyphor {

// What the user says about files that do not tell it themselves.
struct FormatAnswer
{
    std::optional<FontFormat> format;
    std::optional<EncodingType> encoding;
};

// A file that holds a font. Each kind opens its device itself; a kind that can't be read or written
// says so with a CriticalException.
class FontFile : public File
{
public:
    using File::File;

    // False for a file that the format has to be told of. One that can't be read tells that in
    // Read.
    [[nodiscard]] virtual bool TellsFormat() { return true; }

    // Throws a CriticalException where the file doesn't hold a font.
    virtual std::unique_ptr<Font> Read() = 0;

    // Writes the enabled characters, of which there must be some. Throws a CriticalException where
    // the file can't be written.
    virtual void Write(const Font& font);

    // Called when the contents are ready, before they take the place of the old ones; what it
    // throws keeps those. C files alone ask.
    void SetApproval(std::function<void()> approval) { approval_ = std::move(approval); }

    // Where set, rendering leaves out the characters that are not in it.
    void SetCharacterFilter(const std::optional<CodeSet>& filter) { filter_ = filter; }

protected:
    [[nodiscard]] const std::optional<CodeSet>& CharacterFilter() const { return filter_; }

    void AskForApproval() const
    {
        if (approval_)
            approval_();
    }

private:
    std::function<void()> approval_;
    std::optional<CodeSet> filter_;
};

// Throws the failure of a file kind that can't do what is asked.
[[noreturn]] void ThrowUnsupportedFormat();

// Bytes that a character with these metrics has in a file, all planes together. Any values give a
// size, so that it can be compared before the metrics are checked.
[[nodiscard]] qint64 BitmapSize(const CharMetrics& metrics, const FontMetrics& font);

} // namespace Glyphor
