#include "render/font_assembly.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "app/user_interface.h"
#include "model/code_text.h"

#include <QFileInfo>

#include <algorithm>

namespace Glyphor {

FontAssembly::FontAssembly(Font& font, const QString& name, int threads)
    : font_(font), name_(name), threads_(threads)
{}

void FontAssembly::AddOwn(GlyphSource source)
{
    parts_.push_back({std::move(source), true});
}

void FontAssembly::Add(GlyphSource source)
{
    source.StandOn(font_.Metrics().baseline);
    parts_.push_back({std::move(source), false});
}

void FontAssembly::Add(PictureGlyph picture)
{
    picture.glyph.yPos += font_.Metrics().baseline;
    pictures_.push_back(std::move(picture));
}

void FontAssembly::Fit()
{
    InkOverflow overflow;
    for (const Part& part : parts_)
        overflow.Add(part.source.Measure(font_.Metrics(), threads_));
    for (const PictureGlyph& picture : pictures_)
        overflow.Add(OverflowOf(picture.glyph, font_.Metrics()));
    const int height = font_.Metrics().height + overflow.above + overflow.below;
    if (height > CharInfo::MaxSize)
        throw CriticalException(
            Engine::tr("Font creation failed!"),
            Engine::tr("The ink of all characters needs a line of %1 rows; a font has 255 at most.")
                .arg(height));
    font_.SetHeight(static_cast<quint8>(height));
    font_.SetBaseline(static_cast<quint8>(
        std::min(CharInfo::MaxSize, font_.Metrics().baseline + overflow.above)));
    for (Part& part : parts_)
        part.source.MoveDown(overflow.above);
    for (PictureGlyph& picture : pictures_)
        picture.glyph.yPos += overflow.above;
}

void FontAssembly::Render(const std::function<void(const PlannedGlyph&)>& onOwn)
{
    for (const Part& part : parts_)
        RenderPart(part, onOwn);
    for (const PictureGlyph& picture : pictures_)
        RenderPicture(picture);
}

void FontAssembly::RenderPart(const Part& part,
                              const std::function<void(const PlannedGlyph&)>& onOwn)
{
    const GlyphSource& source = part.source;
    GlyphCollector collector(font_);
    if (!part.isOwn)
        collector.NameSource(source.Name());
    CodeSet own; // a code that comes up twice is no second claim, unless a map says so
    source.Render(
        collector, threads_,
        [&](const PlannedGlyph& planned) {
            if (font_.FindChar(planned.code) == nullptr)
                return true;
            const bool isClaimed = !planned.onlyMissing && (!part.isOwn || own.Test(planned.code));
            if (isClaimed && planned.isMapped)
                RefuseSecond(planned, source.Name());
            return false;
        },
        [&](const PlannedGlyph& planned) {
            own.Set(planned.code, true);
            if (planned.isLabelled)
                SetLabel(planned, source.Face());
            if (part.isOwn)
                onOwn(planned);
            else
                given_.emplace(planned.code, source.Name());
        });
    collector.Warn();
}

void FontAssembly::RenderPicture(const PictureGlyph& picture)
{
    const QString path = Shown(picture.image.path);
    if (font_.FindChar(picture.code) != nullptr)
        throw CriticalException(Engine::tr("Font creation failed!"),
                                Engine::tr("Both %1 and %2 give the character 0x%3.")
                                    .arg(GiverOf(picture.code), path, Hex4Text(picture.code)),
                                {picture.image.path, 0, {}});
    GlyphCollector collector(font_);
    collector.NameSource(path);
    if (collector.Add(picture.code, picture.glyph)) {
        given_.emplace(picture.code, path);
        const QFileInfo file(picture.image.path);
        const QString name =
            picture.image.name.isEmpty() ? file.completeBaseName() : picture.image.name;
        font_.FindChar(picture.code)->label =
            std::make_shared<const CharacterLabel>(CharacterLabel{name, file.fileName()});
    }
    collector.Warn();
}

// Names of glyphs come from the file, in any bytes.
void FontAssembly::SetLabel(const PlannedGlyph& glyph, const FreeTypeFace& face)
{
    const QString glyphName = QString::fromLatin1(face.GlyphName(glyph.glyph));
    QString origin = UnicodeNotation(glyph.faceCode);
    if (!glyphName.isEmpty())
        origin += u' ' + glyphName;
    font_.FindChar(glyph.code)->label = std::make_shared<const CharacterLabel>(
        CharacterLabel{glyph.name.isEmpty() ? glyphName : glyph.name, origin});
}

QString FontAssembly::GiverOf(quint16 code) const
{
    const auto given = given_.find(code);
    return given != given_.end() ? given->second : name_;
}

void FontAssembly::RefuseSecond(const PlannedGlyph& glyph, const QString& second) const
{
    throw CriticalException(
        Engine::tr("Font creation failed!"),
        Engine::tr("Both %1 and %2 give the character 0x%3. A ? in front of a mapping has it fill "
                   "gaps only.")
            .arg(GiverOf(glyph.code), second, Hex4Text(glyph.code)));
}

void TellOfCodes(const GlyphSource& source, bool tellsBeyond)
{
    for (const QString& text : source.Lacking())
        CurrentInterface().Lacking(text);
    const GlyphSource::Beyond& beyond = source.BeyondFonts();
    if (!tellsBeyond || beyond.count == 0)
        return;
    constexpr char32_t privateUse = 0xE000;
    constexpr char32_t room = 0x1900;
    const char32_t last = std::min<char32_t>(beyond.last, beyond.first + room - 1);
    const auto hex = [](char32_t code) { return QString::number(code, 16).toUpper(); };
    CurrentInterface().Hint(
        Engine::tr("Characters above U+FFFF, which were left out: %1. -map brings them in, e.g. "
                   "-map 0x%2-0x%3=0x%4.")
            .arg(QString::number(beyond.count), hex(beyond.first), hex(last), hex(privateUse)));
}

} // namespace Glyphor
