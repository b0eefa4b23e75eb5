#include "render/font_family.h"

#include <algorithm>
#include <tuple>

namespace Glyphor {

namespace {

// Variable faces do not tell the slant of their instances.
bool SoundsItalic(const QString& style)
{
    return style.contains(u"italic", Qt::CaseInsensitive) ||
           style.contains(u"oblique", Qt::CaseInsensitive);
}

} // namespace

FontFamily::FontFamily(const FreeTypeFace& face)
    : name_(face.FamilyName()), unicodeRanges_(face.UnicodeRanges())
{}

void FontFamily::AddStyle(const QString& name, const QString& path, int faceIndex, bool isInstance,
                          const FaceStyle& style)
{
    styles_.try_emplace(name, Entry{path, faceIndex, isInstance, style});
}

FontFamily::Entry FontFamily::Find(const QString& style) const
{
    const auto found = styles_.find(style);
    return found != styles_.end() ? found->second : Entry();
}

FreeTypeFace FontFamily::Face(const QString& style) const
{
    const Entry entry = Find(style);
    if (entry.path.isEmpty())
        return {};
    FreeTypeFace face(entry.path, entry.isInstance ? 0 : entry.faceIndex, FreeTypeLibrary());
    if (entry.isInstance)
        face.SetNamedInstance(entry.faceIndex);
    return face;
}

QStringList FontFamily::StyleNames() const
{
    QStringList names;
    for (const auto& [name, entry] : styles_)
        names.append(name);
    std::ranges::stable_sort(names, {}, [this](const QString& name) {
        const FaceStyle style = Style(name);
        return std::tuple(style.weight, style.width, style.italic || SoundsItalic(name));
    });
    return names;
}

void FontFamily::AddStyles(const FontFamily& other)
{
    for (const auto& style : other.styles_)
        styles_.insert(style);
}

FontFamilyTTF::FontFamilyTTF(const FreeTypeFace& face) : FontFamily(face)
{
    AddStyle(face.StyleName(), face.Path(), 0, false, face.Style());
}

FontFamilyTTC::FontFamilyTTC(const FreeTypeFace& face, int faceIndex) : FontFamily(face)
{
    AddStyle(face.StyleName(), face.Path(), faceIndex, false, face.Style());
}

FontFamilyTTF_MM::FontFamilyTTF_MM(const FreeTypeFace& face) : FontFamily(face)
{
    int index = 0;
    for (const NamedInstance& instance : face.NamedInstances()) {
        ++index;
        if (!instance.name.isEmpty())
            AddStyle(instance.name, face.Path(), index, true, instance.style);
    }
}

FontFamilies ListFamilies(const QString& path, FileType type, FontLibrary& library)
{
    FontFamilies families;
    FreeTypeFace face(path, 0, library);
    if (type == FileType::TrueTypeCollection) {
        const int count = face.FaceCount();
        for (int index = 0; index < count; ++index) {
            if (index > 0) {
                face = FreeTypeFace(); // first, as a file may be unpacked into memory
                face = FreeTypeFace(path, index, library);
            }
            if (face.IsOpen())
                families.push_back(std::make_unique<FontFamilyTTC>(face, index));
        }
    } else if (face.NamedInstanceCount() > 0) {
        families.push_back(std::make_unique<FontFamilyTTF_MM>(face));
    } else if (face.IsOpen()) {
        families.push_back(std::make_unique<FontFamilyTTF>(face));
    }
    return families;
}

} // namespace Glyphor
