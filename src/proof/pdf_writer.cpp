#include "proof/pdf_writer.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/version.h"
#include "proof/png_writer.h"

#include <QLibrary>

#include <algorithm>
#include <array>
#include <hpdf.h>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// In points.
constexpr int SheetWidth = 595;
constexpr int SheetHeight = 842;
constexpr int SheetMargin = 28;

[[noreturn]] void FailPdf(const QString& text)
{
    throw CriticalException(Engine::tr("Error saving file!"), text);
}

} // namespace

// The functions of the library, and the document.
class PdfWriter::Library
{
public:
    Library()
    {
        // As its releases are called.
        static constexpr std::array names = {"hpdf-2.3.0", "hpdf.so.2.4", "hpdf", "hpdf-2.4.0"};
        for (const char* const name : names) {
            const QString base = QString::fromLatin1(name);
            file_.setFileName(base.contains(".so."_L1) ? u"lib"_s + base : base);
            if (file_.load() && ResolveAll())
                break;
        }
        if (!isComplete_)
            FailPdf(Engine::tr("PDF files need the library libhpdf, which is not installed."));
        document = newDocument(nullptr, nullptr);
        if (document == nullptr)
            throw std::bad_alloc();
    }
    ~Library()
    {
        if (document != nullptr)
            freeDocument(document);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    decltype(&HPDF_New) newDocument = nullptr;
    decltype(&HPDF_Free) freeDocument = nullptr;
    decltype(&HPDF_GetError) error = nullptr;
    decltype(&HPDF_SetCompressionMode) setCompression = nullptr;
    decltype(&HPDF_SetInfoAttr) setInfo = nullptr;
    decltype(&HPDF_AddPage) addPage = nullptr;
    decltype(&HPDF_Page_SetWidth) setWidth = nullptr;
    decltype(&HPDF_Page_SetHeight) setHeight = nullptr;
    decltype(&HPDF_LoadPngImageFromMem) loadPng = nullptr;
    decltype(&HPDF_Page_DrawImage) drawImage = nullptr;
    decltype(&HPDF_SaveToStream) save = nullptr;
    decltype(&HPDF_GetStreamSize) streamSize = nullptr;
    decltype(&HPDF_ReadFromStream) readStream = nullptr;

    HPDF_Doc document = nullptr;

private:
    template <typename Function>
    bool Resolve(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(file_.resolve(name));
        return function != nullptr;
    }

    bool ResolveAll()
    {
        isComplete_ =
            Resolve(newDocument, "HPDF_New") && Resolve(freeDocument, "HPDF_Free") &&
            Resolve(error, "HPDF_GetError") && Resolve(setCompression, "HPDF_SetCompressionMode") &&
            Resolve(setInfo, "HPDF_SetInfoAttr") && Resolve(addPage, "HPDF_AddPage") &&
            Resolve(setWidth, "HPDF_Page_SetWidth") && Resolve(setHeight, "HPDF_Page_SetHeight") &&
            Resolve(loadPng, "HPDF_LoadPngImageFromMem") &&
            Resolve(drawImage, "HPDF_Page_DrawImage") && Resolve(save, "HPDF_SaveToStream") &&
            Resolve(streamSize, "HPDF_GetStreamSize") && Resolve(readStream, "HPDF_ReadFromStream");
        return isComplete_;
    }

    QLibrary file_;
    bool isComplete_ = false;
};

PdfWriter::PdfWriter() : library_(std::make_unique<Library>())
{
    library_->setCompression(library_->document, HPDF_COMP_ALL);
    library_->setInfo(library_->document, HPDF_INFO_PRODUCER,
                      Program::Name.toString().toLatin1().constData());
}

PdfWriter::~PdfWriter() = default;

int PdfWriter::PageHeight(int width)
{
    return width * (SheetHeight - 2 * SheetMargin) / (SheetWidth - 2 * SheetMargin);
}

void PdfWriter::SetTitle(const QByteArray& title)
{
    library_->setInfo(library_->document, HPDF_INFO_TITLE, title.constData());
}

void PdfWriter::AddPage(const Canvas& canvas)
{
    QByteArray picture;
    ComposePng(canvas, 0, [&picture](QByteArrayView bytes) { picture.append(bytes); });
    const auto page = library_->addPage(library_->document);
    const auto image = library_->loadPng(library_->document,
                                         reinterpret_cast<const HPDF_BYTE*>(picture.constData()),
                                         HPDF_UINT(picture.size()));
    if (page == nullptr || image == nullptr)
        return; // the document knows
    constexpr auto roomWidth = HPDF_REAL(SheetWidth - 2 * SheetMargin);
    constexpr auto roomHeight = HPDF_REAL(SheetHeight - 2 * SheetMargin);
    const HPDF_REAL scale =
        std::min(roomWidth / HPDF_REAL(canvas.Width()), roomHeight / HPDF_REAL(canvas.Height()));
    const HPDF_REAL width = scale * HPDF_REAL(canvas.Width());
    const HPDF_REAL height = scale * HPDF_REAL(canvas.Height());
    library_->setWidth(page, SheetWidth);
    library_->setHeight(page, SheetHeight);
    library_->drawImage(page, image, SheetMargin, SheetHeight - SheetMargin - height, width,
                        height);
}

QByteArray PdfWriter::Contents()
{
    library_->save(library_->document);
    const HPDF_STATUS status = library_->error(library_->document);
    if (status != HPDF_OK)
        FailPdf(Engine::tr("libhpdf could not make the PDF file: error %1.")
                    .arg(u"0x"_s + QString::number(status, 16)));
    HPDF_UINT32 size = library_->streamSize(library_->document);
    QByteArray contents(qsizetype(size), '\0');
    library_->readStream(library_->document, reinterpret_cast<HPDF_BYTE*>(contents.data()), &size);
    contents.truncate(qsizetype(size));
    return contents;
}

} // namespace Glyphor
