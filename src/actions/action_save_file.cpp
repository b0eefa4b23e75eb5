#include "actions/action_save_file.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_system.h"
#include "app/log_file.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "files/c_survey.h"
#include "files/character_header.h"
#include "files/kerning_file.h"

#include <QScopeGuard>

namespace Glyphor {

namespace {

// Thrown where the user keeps what a file holds.
class Declined : public std::exception
{};

} // namespace

bool ActionSaveFile::Execute()
{
    Font* const font = CurrentSession().CurrentFont();
    const auto type = IsHeader() ? std::nullopt : FileTypeOf(Args().path);
    const char* const refusal = type ? RowOf(*type).legacyRefusal : nullptr;
    if (refusal != nullptr && font != nullptr && IsLegacyFormat(font->Metrics().format))
        ThrowActionError(Engine::tr("Invalid file format!"), Engine::tr(refusal));
    if (font == nullptr || !font->HasEnabledChars())
        ThrowActionError(Engine::tr("Font is empty!"),
                         Engine::tr("The font has no enabled characters that could be saved."));
    // No reader takes a font without rows.
    if (!IsKerning() && !IsHeader() && font->Metrics().height == 0)
        ThrowActionError(Engine::tr("Font has no rows!"),
                         Engine::tr("All rows of the font were deleted, so it can't be saved."));
    if (!Args().name)
        return Write(*font);
    const QString before = font->Name();
    font->SetName(*Args().name);
    auto restore = qScopeGuard([&] { font->SetName(before); });
    const bool isWritten = Write(*font);
    if (isWritten)
        restore.dismiss();
    return isWritten;
}

bool ActionSaveFile::Write(const Font& font) const
{
    const QStringList actionLog = CurrentSession().Stack().LogLines();
    if (IsKerning()) {
        SaveKerning(font, actionLog);
        return true;
    }
    if (IsHeader()) {
        SaveHeader(font, actionLog);
        return true;
    }
    const auto file = MakeOutputFile(Args().path, actionLog);
    std::future<QStringList> others = LookBesideTheFont();
    file->SetApproval([&] {
        if (others.valid() && !MayReplace(others.get()))
            throw Declined();
    });
    try {
        file->Write(font);
    } catch (const Declined&) {
        return false;
    }
    WriteLogFile(actionLog);
    return true;
}

// What else the file holds that is to be replaced. A large one is looked through on another thread
// while the new one is written.
std::future<QStringList> ActionSaveFile::LookBesideTheFont() const
{
    if (FileTypeOf(Args().path) != FileType::C || KindOf(Args().path) != FileKind::Ordinary)
        return {};
    auto file = std::make_shared<File>(Args().path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {}; // writing will tell
    constexpr qint64 worthAThread = 1'000'000;
    const bool isOnThread = Args().threads != 1 && file->size() > worthAThread;
    return std::async(isOnThread ? std::launch::async : std::launch::deferred, [file] {
        QStringList others = BesideTheFontOfFile(*file);
        if (others.isEmpty())
            file->ForgetContents();
        file->close();
        return others;
    });
}

// False where the user does not want a file replaced that holds more than a font.
bool ActionSaveFile::MayReplace(const QStringList& others) const
{
    if (others.isEmpty())
        return true;
    const QString loss = Engine::tr("Beside the font: %1").arg(Enumerated(others));
    const QString name = Shown(Args().path);
    switch (CurrentInterface().Ask(
        Engine::tr("More than a font"),
        Engine::tr("The file %1 holds more than a font. Replace all of it?").arg(name) + u'\n' +
            loss)) {
    case Answer::Yes:
        return true;
    case Answer::No:
        return false;
    default:
        ThrowActionError(
            Engine::tr("Error saving file!"),
            Engine::tr("The file %1 holds more than a font; save under another name.").arg(name) +
                u'\n' + loss);
    }
}

bool ActionSaveFile::IsKerning() const
{
    return Type() == ActionType::SaveKerning || (!IsHeader() && IsBinaryKerningName(Args().path));
}

void ActionSaveFile::SaveKerning(const Font& font, const QStringList& actionLog) const
{
    const auto file = MakeKerningFile(Args().path, CFileOptionsOfSettings(actionLog));
    if (file == nullptr)
        ThrowUnsupportedFormat();
    const std::vector<KerningEntry> pairs = EnabledKerning(font);
    if (pairs.empty()) {
        const QString title = Engine::tr("No kerning data!");
        const QString text =
            Engine::tr("The enabled characters don't have any kerning data that could be "
                       "saved to a file.");
        if (!Args().writesEmptyKerning)
            ThrowActionError(title, text);
        CurrentInterface().warning(title, text);
    }
    file->Write(pairs, font);
}

void ActionSaveFile::SaveHeader(const Font& font, const QStringList& actionLog) const
{
    if (!IsCHeaderName(Args().path))
        ThrowNoHeaderName(Args().path);
    if (!HasNamedChars(font))
        CurrentInterface().warning(
            Engine::tr("No names"),
            Engine::tr("No character of the font has a name: the header names those that -map and "
                       "-source put elsewhere or name, and those of -image."));
    CharacterHeader(Args().path, CFileOptionsOfSettings(actionLog)).Write(font);
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
    if (!IsKerning() && !IsHeader())
        CurrentSession().SetSaved(Args().path);
    else if (IsKerning() && !IsBinaryKerningName(Args().path)) // those are empty
        CurrentSession().SetKerningSaved();
}

LogEntry ActionSaveFile::Log() const
{
    return LogEntry(IsKerning()  ? QT_TRANSLATE_NOOP("Engine", "Saved kerning file: %1")
                    : IsHeader() ? QT_TRANSLATE_NOOP("Engine", "Saved header file: %1")
                                 : QT_TRANSLATE_NOOP("Engine", "Saved font file: %1"),
                    {LoggedPath(Args().path)});
}

} // namespace Glyphor
