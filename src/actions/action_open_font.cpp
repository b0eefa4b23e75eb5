#include "actions/action_open_font.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/progress.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "render/font_assembly.h"
#include "render/font_file_bdf.h"
#include "render/font_file_scalable.h"
#include "render/glyph_outlines.h"

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

// A scalable font whose face could be opened.
std::unique_ptr<FontFileScalable> OpenScalable(const QString& path, const RenderOptions& options)
{
    auto file = MakeScalableFontFile(path, options);
    const int faceCount = file->FaceCount();
    if (faceCount > 0 && (options.faceIndex < 0 || options.faceIndex >= faceCount))
        throw CriticalException(CreationFailed(), MissingFace(path, options.faceIndex, faceCount));
    if (!file->OpenFault().isEmpty())
        throw CriticalException(
            CreationFailed(),
            Engine::tr("The font file %1 can't be used: %2").arg(Shown(path), file->OpenFault()));
    return file;
}

// What does not belong to the font's own face is the same for all sources.
RenderOptions OptionsOf(const FontSource& source, const RenderOptions& own, int dotsPerInch)
{
    RenderOptions options = own;
    options.faceIndex = 0;
    options.charmapIndex = -1;
    options.axes.clear();
    options.features.clear();
    options.map = source.map;
    if (source.size)
        options.SetHeight(*source.size, dotsPerInch);
    return options;
}

GlyphSource OpenSource(const FontSource& source, const ActionOpenFontArgs& args,
                       const RenderOptions& own)
{
    const FileType type = CheckInputFile(source.path);
    if (type == FileType::Bdf) {
        GlyphSource glyphs(FontFileBDF(source.path).SourceFace(), Shown(source.path));
        glyphs.PlanGiven(source.map, own.encoding, args.selection);
        return glyphs;
    }
    if (!IsScalable(type))
        throw CriticalException(CreationFailed(),
                                Engine::tr("The file %1 can't be a source of characters: -source "
                                           "takes TTF, TTC and BDF files.")
                                    .arg(Shown(source.path)));
    const RenderOptions options = OptionsOf(source, own, args.dotsPerInch);
    if (options.height == 0 && options.sixtyFourths == 0)
        throw CriticalException(
            CreationFailed(),
            Engine::tr("The source %1 needs a height, behind its mapping or with -height.")
                .arg(Shown(source.path)));
    const auto file = OpenScalable(source.path, options);
    file->SetCharacterFilter(args.selection);
    return file->Source();
}

std::vector<GlyphSource> OpenSources(const ActionOpenFontArgs& args, const RenderOptions& options)
{
    std::vector<GlyphSource> sources;
    for (const FontSource& source : args.sources) {
        try {
            sources.push_back(OpenSource(source, args, options));
        } catch (const CriticalException& error) { // is about the source, not the opened file
            throw CriticalException(error.Title(), error.Text(), {source.path, 0, {}});
        }
        TellOfCodes(sources.back(), false);
    }
    return sources;
}

PictureGlyph OpenImage(const FontImage& image, int threshold, EncodingType encoding)
{
    CheckReadableFile(image.path);
    const auto code = EncodingFor(EncodingType::Unicode).Converted(encoding, image.code);
    if (!code)
        throw CriticalException(CreationFailed(),
                                Engine::tr("The encoding of the font has no %1, which the picture "
                                           "%2 is to be.")
                                    .arg(UnicodeNotation(image.code), Shown(image.path)),
                                {image.path, 0, {}});
    PictureGlyph picture{image, *code, ReadPicture(image.path, threshold)};
    picture.glyph.yPos -= image.rows;
    if (!HasInk(picture.glyph))
        CurrentInterface().warning(
            Engine::tr("Picture without ink"),
            Engine::tr("The picture %1 has no ink, so its character is empty: dark pixels are ink, "
                       "white and transparent ones are none.")
                .arg(Shown(image.path)));
    return picture;
}

std::vector<PictureGlyph> OpenImages(const ActionOpenFontArgs& args, EncodingType encoding)
{
    std::vector<PictureGlyph> pictures;
    for (const FontImage& image : args.images)
        pictures.push_back(OpenImage(image, args.threshold, encoding));
    return pictures;
}

std::unique_ptr<Font> Render(const ActionOpenFontArgs& args)
{
    const RenderOptions options = OptionsOf(args);
    const auto file = OpenScalable(args.path, options);
    WarnOfPoints(args);
    file->SetCharacterFilter(args.selection);
    for (GlyphSource& source : OpenSources(args, options))
        file->AddSource(std::move(source));
    for (PictureGlyph& picture : OpenImages(args, options.encoding))
        file->AddPicture(std::move(picture));
    return file->Read();
}

// Characters of the sources and images for a font that was read from a file of its own format.
void AddSources(const ActionOpenFontArgs& args, Font& font)
{
    RenderOptions options = args.render;
    options.format = font.Metrics().format;
    options.encoding = font.Metrics().encoding;
    FontAssembly assembly(font, Shown(args.path), options.threads);
    for (GlyphSource& source : OpenSources(args, options))
        assembly.Add(std::move(source));
    for (PictureGlyph& picture : OpenImages(args, options.encoding))
        assembly.Add(std::move(picture));
    assembly.Render([](const PlannedGlyph&) {});
}

// The file object; where neither the file nor the arguments tell the format, the user does.
std::unique_ptr<FontFile> FileWithFormat(const ActionOpenFontArgs& args)
{
    if (FileTypeOf(args.path) == FileType::Bdf)
        return std::make_unique<FontFileBDF>(args.path, args.render.map);
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
    if (!args.sources.empty() || !args.images.empty())
        AddSources(args, *font);
    return font;
}

// Such a font is in no file until it is saved.
bool IsGenerated(const ActionOpenFontArgs& args)
{
    return IsScalable(FileTypeOf(args.path)) || !args.sources.empty() || !args.images.empty();
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

std::unique_ptr<GlyphOutlines> OutlinesOf(const ActionOpenFontArgs& args)
{
    if (!IsScalable(FileTypeOf(args.path)))
        return nullptr;
    try {
        return OpenScalable(args.path, OptionsOf(args))->Outlines();
    } catch (const CriticalException&) { // the font was made, so the file is another one now
        return nullptr;
    }
}

int EmSize(const ActionOpenFontArgs& args)
{
    return MakeScalableFontFile(args.path, OptionsOf(args))->EmSize();
}

bool ActionOpenFont::Execute()
{
    stamp_ = StampOf(Args().path); // before: what is written meanwhile is a change
    font_ = ReadFont(Args());
    if (Args().name)
        font_->SetName(*Args().name);
    return true;
}

void ActionOpenFont::RedoOnce()
{
    CurrentSession().ReplaceFont(std::move(font_), Args().path, stamp_);
    if (Type() == ActionType::CreateFont || IsGenerated(Args()))
        CurrentSession().MarkChanged();
}

LogEntry ActionOpenFont::Log() const
{
    const bool isCreated = Type() == ActionType::CreateFont;
    return LogEntry(MessageFor(),
                    {isCreated ? QString::number(Args().render.height) : LoggedPath(Args().path)});
}

} // namespace Glyphor
