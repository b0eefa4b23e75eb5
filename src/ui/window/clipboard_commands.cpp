#include "ui/window/clipboard_commands.h"

#include "actions/paste_action.h"
#include "actions/session.h"
#include "app/critical_exception.h"
#include "render/picture_glyph.h"
#include "ui/editor/char_bitmap_view.h"
#include "ui/editor/pixel_selection.h"
#include "ui/support/char_picture.h"
#include "ui/support/guarded.h"
#include "ui/table/character_table.h"
#include "ui/window/edit_commands.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr auto CharactersType = "application/x-glyphor-characters"_L1;
constexpr auto PictureType = "image/png"_L1;

QByteArray PngOf(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

// Characters side by side as a text has them; one alone is its box. Null where there is nothing.
QImage PictureOf(const Font& font, const CodeSet& codes)
{
    constexpr int widest = 4096;
    const auto pixelsOf = [&font](const Character& character) {
        return BlockPicture(PixelsOf(*character.bitmap), font.Metrics().bitsPerPixel);
    };
    if (codes.Count() == 1)
        return pixelsOf(*font.FindChar(*codes.begin()));
    int width = 0;
    for (const quint16 code : codes)
        width +=
            std::max(font.FindChar(code)->info.cursorDistance, font.FindChar(code)->info.width);
    if (width == 0 || font.Metrics().height == 0)
        return {};
    QImage picture(std::min(width, widest), font.Metrics().height, QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Darken);
    int x = 0;
    for (const quint16 code : codes) {
        const Character& character = *font.FindChar(code);
        const CharInfo& info = character.info;
        painter.drawImage(x + info.xPos, info.yPos, pixelsOf(character));
        x += info.cursorDistance;
        if (x >= widest)
            break;
    }
    return picture;
}

[[noreturn]] void RefusePaste(const QString& reason)
{
    throw CriticalException(ClipboardCommands::tr("Pasting is not possible!"), reason);
}

// As a PNG file, in which its size can be seen before it is unpacked; empty for no picture.
QByteArray PictureIn(const QMimeData& data)
{
    if (data.hasFormat(PictureType))
        return data.data(PictureType);
    const auto picture = data.hasImage() ? qvariant_cast<QImage>(data.imageData()) : QImage();
    return picture.isNull() ? QByteArray() : PngOf(picture);
}

RenderedGlyph GlyphIn(const QMimeData& data)
{
    QByteArray png = PictureIn(data);
    if (png.isEmpty())
        RefusePaste(ClipboardCommands::tr("The clipboard has neither characters nor a picture."));
    QBuffer buffer(&png);
    const QSize size = QImageReader(&buffer, "png").size();
    if (size.width() > CharInfo::MaxSize || size.height() > CharInfo::MaxSize)
        RefusePaste(ClipboardCommands::tr("The picture on the clipboard has %1 x %2 pixels; a "
                                          "character has 255 x 255 at most.")
                        .arg(size.width())
                        .arg(size.height()));
    try {
        constexpr int noThreshold = 0;
        return GlyphOfPng(png, {}, noThreshold);
    } catch (const CriticalException&) { // speaks of a file
        RefusePaste(ClipboardCommands::tr("The picture on the clipboard can't be read."));
    }
}

// Nothing where there are none.
std::optional<CopiedCharacters> CopiedIn(const QMimeData& data)
{
    if (!data.hasFormat(CharactersType))
        return std::nullopt;
    auto copied = CharactersIn(data.data(CharactersType));
    if (!copied)
        RefusePaste(ClipboardCommands::tr("The characters on the clipboard can't be read."));
    return copied;
}

} // namespace

ClipboardCommands::ClipboardCommands(Session& session, CharacterTable& table,
                                     CharBitmapView& editor, PixelSelection& selection,
                                     EditCommands& edits)
    : QObject(&edits),
      session_(session),
      table_(table),
      editor_(editor),
      selection_(selection),
      edits_(edits)
{}

int ClipboardCommands::Depth() const
{
    return session_.CurrentFont()->Metrics().bitsPerPixel;
}

void ClipboardCommands::Copy(bool isInEditor)
{
    if (isInEditor && !selection_.IsEmpty())
        CopyPixels();
    else
        CopyCharacters();
}

void ClipboardCommands::Cut(bool isInEditor)
{
    Copy(isInEditor);
    if (isInEditor && !selection_.IsEmpty())
        selection_.Erase();
    else
        edits_.DeleteSelection();
}

void ClipboardCommands::CopyPixels()
{
    auto* const data = new QMimeData;
    data->setData(PictureType, PngOf(BlockPicture(selection_.Pixels(), Depth())));
    QGuiApplication::clipboard()->setMimeData(data);
    Q_EMIT Done(tr("Copied pixels: %1 x %2.")
                    .arg(selection_.Area().width())
                    .arg(selection_.Area().height()));
}

void ClipboardCommands::CopyCharacters()
{
    const CodeSet codes = edits_.SelectedCharacters();
    if (codes.IsEmpty())
        return;
    const Font& font = *session_.CurrentFont();
    auto* const data = new QMimeData;
    data->setData(CharactersType, BytesOf(Glyphor::CopyCharacters(font, codes)));
    if (const QImage picture = PictureOf(font, codes); !picture.isNull())
        data->setData(PictureType, PngOf(picture));
    QGuiApplication::clipboard()->setMimeData(data);
    Q_EMIT Done(tr("Copied characters: %L1.").arg(codes.Count()));
}

// Characters go to the selected pixels only where there is no doubt that these are meant.
bool ClipboardCommands::HasPlaceForPixels() const
{
    return !selection_.IsEmpty() || editor_.SelectedPixel().x() >= 0;
}

void ClipboardCommands::Paste(bool isInEditor)
{
    Guarded([&] {
        const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
        if (data == nullptr)
            RefusePaste(tr("The clipboard has neither characters nor a picture."));
        const auto copied = CopiedIn(*data);
        const bool isForPixels =
            isInEditor && (copied ? !selection_.IsEmpty() : HasPlaceForPixels());
        if (isForPixels)
            PastePixels(PixelsOf(GlyphIn(*data), Depth()));
        else if (copied)
            PasteCharacters(*copied);
        else
            PastePicture(GlyphIn(*data));
    });
}

void ClipboardCommands::PastePixels(const PixelBlock& block)
{
    const CharInfo& info = editor_.CurrentCharacter()->info;
    const bool isLarger = block.width > info.width || block.rows > info.Rows();
    selection_.Paste(block,
                     selection_.IsEmpty() ? editor_.SelectedPixel() : selection_.Area().topLeft());
    if (isLarger)
        Q_EMIT Done(tr("Pasted pixels: %1 x %2. The character has no room for all of them.")
                        .arg(block.width)
                        .arg(block.rows));
}

void ClipboardCommands::PasteCharacters(const CopiedCharacters& copied)
{
    const int fromDepth = BitsPerPixel(copied.format);
    const PreparedPaste paste = PreparePaste(session_, copied, quint16(table_.CurrentCode()));
    paste.action->Run();
    QString text = tr("Pasted characters: %L1.").arg(copied.characters.size());
    if (fromDepth != Depth())
        text += u' ' +
                tr("Their pixels were converted from %1 to %2 bits.").arg(fromDepth).arg(Depth());
    if (paste.cut > 0)
        text += u' ' + tr("Characters that lost ink beyond the line: %L1.").arg(paste.cut);
    Q_EMIT Done(text);
}

void ClipboardCommands::PastePicture(const RenderedGlyph& picture)
{
    const PreparedPaste paste = PreparePaste(session_, picture, quint16(table_.CurrentCode()));
    paste.action->Run();
    QString text = tr("Pasted a picture: %1 x %2.").arg(picture.width).arg(picture.rows);
    if (paste.cut > 0)
        text += u' ' + tr("It lost ink beyond the line.");
    Q_EMIT Done(text);
}

} // namespace Glyphor
