#pragma once

#include "app/file.h"
#include "files/c_file_text.h"
#include "model/font.h"

namespace Glyphor {

// A C header with the codes of the enabled characters that have labels, and each as a string: names
// for firmware.
class CharacterHeader final : public File
{
public:
    CharacterHeader(const QString& path, const CFileOptions& options)
        : File(path), options_(options)
    {}

    // Throws a CriticalException where the file can't be written.
    void Write(const Font& font);

private:
    CFileOptions options_;
};

// Whether it would name any character.
[[nodiscard]] bool HasNamedChars(const Font& font);

// True for ".h", in any letter case.
[[nodiscard]] bool IsCHeaderName(QStringView fileName);

[[noreturn]] void ThrowNoHeaderName(const QString& path);

// A name as macros are called: "UiIcon", "UI Icon" and "ui-icon" are UI_ICON. Empty where nothing
// is left of it.
[[nodiscard]] QByteArray MacroName(const QByteArray& name);

} // namespace Glyphor
