#include "actions/action_open_font.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/user_interface.h"
#include "render/font_file_scalable.h"

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

const QString& CreationFailed()
{
    static const QString title = u"Font creation failed!"_s;
    return title;
}

void WarnOfPoints(const FontSize& size)
{
    if (!size.inPoints || size.PixelHeight() != 0)
        return;
    CurrentInterface().warning(
        u"Height in points"_s,
        u"A height in points needs the resolution of a desktop, which a run without a window does "
        "not have. Give the height in pixels (px)."_s);
}

QString MissingFace(const QString& path, int index, int faceCount)
{
    const QString faces = faceCount == 1
                              ? u"its only face has the index 0"_s
                              : u"the indices of its faces are 0 to %1"_s.arg(faceCount - 1);
    return u"The file %1 has no face with the index %2: %3."_s.arg(path, QString::number(index),
                                                                   faces);
}

} // namespace

bool ActionOpenFont::Execute()
{
    const FontFormat format = Args().format.value_or(FontFormat::Standard);
    if (!IsValidCombination(format, Args().encoding.value_or(EncodingType::Unicode)))
        ThrowActionError(
            u"Invalid combination of encoding and font format!"_s,
            u"SJIS fonts have to be in a legacy font format [LEG, LEG_AA2, LEG_AA4]."_s);
    font_ = IsScalable(CheckInputFile(Args().path)) ? Render() : ReadFile();
    return true;
}

void ActionOpenFont::RedoOnce()
{
    CurrentSession().ReplaceFont(std::move(font_), Args().path);
}

QString ActionOpenFont::LogText() const
{
    if (Type() == ActionType::CreateFont)
        return MessageFor().arg(Args().size.PixelHeight());
    return MessageFor().arg(Args().path);
}

std::unique_ptr<Font> ActionOpenFont::Render() const
{
    const RenderOptions options{
        .format = Args().format.value_or(FontFormat::Standard),
        .encoding = Args().encoding.value_or(EncodingType::Unicode),
        .size = Args().size,
        .effects = Args().effects,
        .faceIndex = Args().faceIndex,
    };
    const auto file = MakeScalableFontFile(Args().path, options);
    const int faceCount = file->FaceCount();
    if (faceCount > 0 && (options.faceIndex < 0 || options.faceIndex >= faceCount))
        ThrowActionError(CreationFailed(), MissingFace(Args().path, options.faceIndex, faceCount));
    if (!file->OpenFault().isEmpty())
        ThrowActionError(CreationFailed(), u"The font file %1 can't be used: %2"_s.arg(
                                               Args().path, file->OpenFault()));
    WarnOfPoints(options.size);
    file->SetCharacterFilter(Args().selection);
    auto font = file->Read();
    if (font->Metrics().height == 0)
        ThrowActionError(CreationFailed(), u"Font has invalid metrics."_s);
    return font;
}

std::unique_ptr<Font> ActionOpenFont::ReadFile() const
{
    auto font = MakeFontFile(Args().path)->Read();
    if (Args().selection) {
        CodeSet enabled = font->EnabledCodes();
        enabled &= *Args().selection;
        font->SetEnabledCodes(enabled);
    }
    return font;
}

} // namespace Glyphor
