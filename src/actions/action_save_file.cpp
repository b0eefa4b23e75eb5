#include "actions/action_save_file.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/log_file.h"
#include "app/settings.h"
#include "app/user_interface.h"
#include "files/kerning_file.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

bool ActionSaveFile::Execute()
{
    const Font* const font = CurrentSession().CurrentFont();
    const bool isXbf = FileTypeOf(Args().path) == FileType::Xbf;
    if (isXbf && font != nullptr && IsLegacyFormat(font->Metrics().format))
        ThrowActionError(Engine::tr("Invalid file format!"),
                         Engine::tr("Legacy font formats cannot be saved in the XBF format."));
    if (font == nullptr || !font->HasEnabledChars())
        ThrowActionError(Engine::tr("Font is empty!"),
                         Engine::tr("The font has no enabled characters that could be saved."));
    const QStringList actionLog = CurrentSession().Stack().LogLines();
    if (IsKerning()) {
        SaveKerning(*font, actionLog);
        return true;
    }
    MakeOutputFile(Args().path, actionLog)->Write(*font);
    WriteLogFile(actionLog);
    return true;
}

bool ActionSaveFile::IsKerning() const
{
    return Type() == ActionType::SaveKerning || IsBinaryKerningName(Args().path);
}

void ActionSaveFile::SaveKerning(const Font& font, const QStringList& actionLog) const
{
    const auto file = MakeKerningFile(Args().path, CFileOptionsOfSettings(actionLog));
    if (file == nullptr)
        ThrowUnsupportedFormat();
    const std::vector<KerningEntry> pairs = EnabledKerning(font);
    if (pairs.empty())
        ThrowActionError(
            Engine::tr("No kerning data!"),
            Engine::tr("The enabled characters don't have any kerning data that could be "
                       "saved to a file."));
    file->Write(pairs, font);
}

// The font is safe by now, whatever becomes of its log.
void ActionSaveFile::WriteLogFile(const QStringList& actionLog) const
{
    const Settings& settings = Settings::Instance();
    if (!settings.createLogFile.value())
        return;
    try {
        LogFile(Args().path).Write(actionLog, settings.LineEnding());
    } catch (const CriticalException& error) {
        CurrentInterface().warning(error.Title(), error.Text());
    }
}

void ActionSaveFile::RedoOnce()
{
    if (!IsKerning())
        CurrentSession().SetSaved(Args().path);
}

QString ActionSaveFile::LogText() const
{
    return (IsKerning() ? u"Saved kerning file: %1"_s : u"Saved font file: %1"_s).arg(Args().path);
}

} // namespace Glyphor
