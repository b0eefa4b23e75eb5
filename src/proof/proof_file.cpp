#include "proof/proof_file.h"

#include "app/engine_texts.h"
#include "app/progress.h"
#include "files/c_file_text.h"
#include "files/font_file.h"
#include "model/font.h"
#include "proof/pdf_writer.h"
#include "proof/png_writer.h"

#include <QFileInfo>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// Many programs show no picture that is taller.
constexpr int TallestPicture = 16'000;

// Of zlib: more makes the files little smaller.
constexpr int PngLevel = 3;

bool IsPdfName(QStringView fileName)
{
    return fileName.endsWith(".pdf"_L1, Qt::CaseInsensitive);
}

// The first one has the name itself, which build tools can rely on.
QString NumberedName(const QString& path, std::size_t index)
{
    if (index == 0)
        return path;
    const qsizetype suffix = path.lastIndexOf(u'.');
    return path.left(suffix) + u"-%1"_s.arg(index + 1) + path.mid(suffix);
}

} // namespace

bool IsProofName(QStringView fileName)
{
    return IsPdfName(fileName) || fileName.endsWith(".png"_L1, Qt::CaseInsensitive);
}

QString ProofFileFilter()
{
    return u"%1 (*.png);;%2 (*.pdf)"_s.arg(Engine::tr("PNG pictures"), Engine::tr("PDF files"));
}

QStringList WriteProof(const ProofContents& contents, const QString& path)
{
    if (!IsProofName(path))
        ThrowUnsupportedFormat();
    const ProofLayout layout = LayOutProof(contents);
    const bool isPdf = IsPdfName(path);
    std::optional<PdfWriter> pdf;
    if (isPdf)
        pdf.emplace();
    const auto pages =
        PagesOf(layout, isPdf ? PdfWriter::PageHeight(layout.width) : TallestPicture);
    Progress progress(Engine::tr("Writing proof..."), int(pages.size()));
    QStringList written;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        const Canvas canvas = PaintPage(layout, pages[index]);
        if (pdf) {
            pdf->AddPage(canvas);
        } else {
            written.append(NumberedName(path, index));
            File(written.last()).Replace([&canvas](const File::Sink& sink) {
                ComposePng(canvas, PngLevel, sink);
            });
        }
        progress.Advance();
    }
    if (pdf) {
        pdf->SetTitle("GUI_Font" + CName(contents.font.Name()));
        File(path).Replace(pdf->Contents());
        written.append(path);
    }
    return written;
}

ProofContents ProofOf(const Font& font, const QString& path)
{
    return {.font = font,
            .kerningSource = font,
            .fileName = QFileInfo(path).fileName(),
            .texts = BuiltInTexts(font)};
}

} // namespace Glyphor
