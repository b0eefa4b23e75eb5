#pragma once

#include "proof/canvas.h"

#include <QByteArray>

#include <memory>

namespace Glyphor {

// A PDF file of pictures, each on a page of A4. The library that makes it is loaded with the first
// one. Nothing in the file tells when it was made.
class PdfWriter
{
public:
    // Throws a CriticalException where the library is not installed.
    PdfWriter();
    ~PdfWriter();
    PdfWriter(const PdfWriter&) = delete;
    PdfWriter& operator=(const PdfWriter&) = delete;

    // How high a picture of this width may be to fill the page between its margins; a higher one
    // becomes smaller.
    [[nodiscard]] static int PageHeight(int width);

    void AddPage(const Canvas& canvas);
    void SetTitle(const QByteArray& title);

    // The whole file. Throws a CriticalException where anything failed.
    [[nodiscard]] QByteArray Contents();

private:
    class Library;

    std::unique_ptr<Library> library_;
};

} // namespace Glyphor
