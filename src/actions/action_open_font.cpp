#include "actions/action_open_font.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "render/font_file_scalable.h"

namespace Glyphor {

namespace {

const QString& CreationFailed()
{
    static const QString title = Engine::tr("Font creation failed!");
    return title;
}

void WarnOfPoints(const ActionOpenFontArgs& args)
{
    if (!args.size.inPoints || args.render.height != 0)
        return;
    CurrentInterface().warning(Engine::tr("Height in points"),
                               Engine::tr("A height in points needs the resolution of a desktop, "
                                          "which a run without a window does "
                                          "not have. Give the height in pixels (px)."));
}

QString MissingFace(const QString& path, int index, int faceCount)
{
    const QString faces =
        faceCount == 1 ? Engine::tr("its only face has the index 0")
                       : Engine::tr("the indices of its faces are 0 to %1").arg(faceCount - 1);
    return Engine::tr("The file %1 has no face with the index %2: %3.")
        .arg(Shown(path), QString::number(index), faces);
}

void CheckCombination(FontFormat format, EncodingType encoding)
{
    if (!IsValidCombination(format, encoding))
        throw CriticalException(
            Engine::tr("Invalid combination of encoding and font format!"),
            Engine::tr("SJIS fonts have to be in a legacy font format [LEG, LEG_AA2, LEG_AA4]."));
}

RenderOptions OptionsOf(const ActionOpenFontArgs& args)
{
    RenderOptions options = args.render;
    options.format = args.format.value_or(FontFormat::Standard);
    options.encoding = args.encoding.value_or(EncodingType::Unicode);
    return options;
}

std::unique_ptr<Font> Render(const ActionOpenFontArgs& args)
{
    const RenderOptions options = OptionsOf(args);
    const auto file = MakeScalableFontFile(args.path, options);
    const int faceCount = file->FaceCount();
    if (faceCount > 0 && (options.faceIndex < 0 || options.faceIndex >= faceCount))
        throw CriticalException(CreationFailed(),
                                MissingFace(args.path, options.faceIndex, faceCount));
    if (!file->OpenFault().isEmpty())
        throw CriticalException(CreationFailed(), Engine::tr("The font file %1 can't be used: %2")
                                                      .arg(Shown(args.path), file->OpenFault()));
    WarnOfPoints(args);
    file->SetCharacterFilter(args.selection);
    return file->Read();
}

// The file object; where neither the file nor the arguments tell the format, the user does.
std::unique_ptr<FontFile> FileWithFormat(const ActionOpenFontArgs& args)
{
    auto file = MakeInputFile(args.path, {args.format, args.encoding});
    if (args.format || file->TellsFormat())
        return file;
    const auto choice =
        CurrentInterface().askFontFormat(args.encoding.value_or(EncodingType::Unicode));
    if (!choice)
        throw WorkStopped();
    return MakeInputFile(args.path, {choice->format, choice->encoding});
}

// Files other than those that are rendered have a format of their own.
std::unique_ptr<Font> ReadFile(const ActionOpenFontArgs& args)
{
    auto font = FileWithFormat(args)->Read();
    const FontMetrics& metrics = font->Metrics();
    CheckCombination(metrics.format, metrics.encoding);
    if (args.format && *args.format != metrics.format)
        CurrentInterface().warning(
            Engine::tr("Font format"),
            Engine::tr("The file %1 has the format \"%2\"; the format \"%3\" was not used.")
                .arg(Shown(args.path), FormatDisplayName(metrics.format),
                     FormatDisplayName(*args.format)));
    if (args.encoding && *args.encoding != metrics.encoding)
        CurrentInterface().warning(
            Engine::tr("Encoding"),
            Engine::tr("The file %1 has an encoding of its own; the one given was not used.")
                .arg(Shown(args.path)));
    if (args.selection) {
        CodeSet enabled = font->EnabledCodes();
        enabled &= *args.selection;
        font->SetEnabledCodes(enabled);
    }
    return font;
}

} // namespace

std::unique_ptr<Font> ReadFont(const ActionOpenFontArgs& args)
{
    if (args.format || IsScalable(FileTypeOf(args.path)))
        CheckCombination(args.format.value_or(FontFormat::Standard),
                         args.encoding.value_or(EncodingType::Unicode));
    auto font = IsScalable(CheckInputFile(args.path)) ? Render(args) : ReadFile(args);
    if (font->Metrics().height == 0)
        throw CriticalException(CreationFailed(), Engine::tr("Font has invalid metrics."));
    return font;
}

int EmSize(const ActionOpenFontArgs& args)
{
    return MakeScalableFontFile(args.path, OptionsOf(args))->EmSize();
}

bool ActionOpenFont::Execute()
{
    font_ = ReadFont(Args());
    if (Args().name)
        font_->SetName(*Args().name);
    return true;
}

void ActionOpenFont::RedoOnce()
{
    CurrentSession().ReplaceFont(std::move(font_), Args().path);
}

LogEntry ActionOpenFont::Log() const
{
    const bool isCreated = Type() == ActionType::CreateFont;
    return LogEntry(MessageFor(),
                    {isCreated ? QString::number(Args().render.height) : LoggedPath(Args().path)});
}

} // namespace Glyphor
