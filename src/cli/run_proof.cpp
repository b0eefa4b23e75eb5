#include "cli/run_proof.h"

#include "actions/font_files.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "files/file_types.h"
#include "proof/proof_file.h"

#include <QFileInfo>

namespace Glyphor {

namespace {

// The options that say how a font is opened speak of the other font where its file asks for them;
// what they leave open is as the font at work has it.
ActionOpenFontArgs ArgsOfOther(const QString& path, const FontMetrics& metrics,
                               const RunOptions& options)
{
    ActionOpenFontArgs args = options.open;
    args.path = path;
    args.name.reset();
    args.format = options.open.format.value_or(metrics.format);
    args.encoding = options.open.encoding.value_or(metrics.encoding);
    args.render.useStrikes = Settings::Instance().useIncludedBitmaps.value();
    if (IsScalable(CheckInputFile(path))) {
        if (args.size.value == 0)
            throw CriticalException(
                Engine::tr("A scalable font needs a height: give -height (e.g. -height 24px)."));
        return args;
    }
    args.selection.reset();
    if (MakeInputFile(path, {})->TellsFormat()) {
        args.format.reset();
        args.encoding.reset();
    }
    return args;
}

// Other kinds are called as their files are.
bool HasName(const QString& path)
{
    const auto type = FileTypeOf(path);
    return type != FileType::Xbf && type != FileType::Sif;
}

// Null where nothing was saved that can be read again.
std::unique_ptr<Font> ReadSaved(const QString& path, const FontMetrics& metrics)
{
    if (path.isEmpty() || KindOf(path) != FileKind::Ordinary)
        return nullptr;
    ActionOpenFontArgs args;
    args.path = path;
    args.format = metrics.format;
    args.encoding = metrics.encoding;
    return ReadFont(args);
}

} // namespace

void RunProof::ReadText(const QString& path)
{
    texts_ = {ReadSampleText(path)};
}

QString RunProof::Compare(const Session& session, const QString& path, const RunOptions& options)
{
    const Font& font = *session.CurrentFont();
    other_ = ReadFont(ArgsOfOther(path, font.Metrics(), options));
    otherPath_ = path;
    comparesNames_ = HasName(path) && (HasName(session.Path()) || options.open.name);
    const FontComparison comparison = CompareFonts(*other_, font, comparesNames_);
    foundDifferences_ = !comparison.IsEqual();
    return ComparisonText(comparison, path);
}

QStringList RunProof::Write(const Session& session, const QString& savedPath,
                            const std::vector<DemandGap>& missing, const QString& path) const
{
    const Font& current = *session.CurrentFont();
    const std::unique_ptr<Font> saved = ReadSaved(savedPath, current.Metrics());
    if (saved != nullptr)
        saved->SetName(current.Name());
    const Font& font = saved != nullptr ? *saved : current;
    ProofContents contents{.font = font,
                           .kerningSource = current,
                           .fileName = QFileInfo(session.Path()).fileName(),
                           .texts = texts_.empty() ? BuiltInTexts(font) : texts_};
    for (const DemandGap& gap : missing)
        contents.missing.insert(gap.codes.begin(), gap.codes.end());
    FontComparison comparison;
    if (other_ != nullptr) {
        comparison = CompareFonts(*other_, font, comparesNames_);
        contents.comparison = &comparison;
        contents.comparedFont = other_.get();
        contents.comparedName = QFileInfo(otherPath_).fileName();
    }
    return WriteProof(contents, path);
}

} // namespace Glyphor
