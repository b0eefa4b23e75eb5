#include "render/face_variations.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/shown_text.h"
#include "render/free_type_face.h"

#include <QHash>
#include <QtEndian>

#include FT_MULTIPLE_MASTERS_H
#include FT_SFNT_NAMES_H

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

struct VariationsDeleter
{
    FT_Library library;
    void operator()(FT_MM_Var* variations) const { FT_Done_MM_Var(library, variations); }
};

using Variations = std::unique_ptr<FT_MM_Var, VariationsDeleter>;

// The axes and named instances of a multi-master face; null for any other.
Variations VariationsOf(FT_Face face)
{
    FT_MM_Var* variations = nullptr;
    if (face == nullptr || FT_Get_MM_Var(face, &variations) != 0)
        return {nullptr, VariationsDeleter{nullptr}};
    return {variations, VariationsDeleter{face->glyph->library}};
}

// Only the encoding tells how a name is read, not the platform.
QString DecodeName(const FT_SfntName& name)
{
    const QByteArrayView bytes(reinterpret_cast<const char*>(name.string), name.string_len);
    QString text;
    switch (name.encoding_id) {
    case 1:
        for (qsizetype i = 1; i < bytes.size(); i += 2)
            text.append(QLatin1Char(bytes[i]));
        break;
    case 10:
        for (qsizetype i = 0; i + 4 <= bytes.size(); i += 4)
            text.append(QChar::fromUcs4(qFromBigEndian<char32_t>(bytes.data() + i)));
        break;
    default:
        text = QString::fromLatin1(bytes);
    }
    return text;
}

// The first name of each number. Names that no menu could show count as unreadable.
QHash<FT_UInt, QString> AllNames(FT_Face face)
{
    QHash<FT_UInt, QString> names;
    constexpr FT_UInt longest = 1024;
    const FT_UInt count = FT_Get_Sfnt_Name_Count(face);
    for (FT_UInt index = 0; index < count; ++index) {
        FT_SfntName name{};
        if (FT_Get_Sfnt_Name(face, index, &name) == 0 && !names.contains(name.name_id))
            names.insert(name.name_id, name.string_len <= longest ? DecodeName(name) : QString());
    }
    return names;
}

// The place of a named instance on the weight axis; 0 without such an axis.
quint32 InstanceWeight(const FT_MM_Var& variations, FT_UInt instance)
{
    const std::span axes(variations.axis, variations.num_axis);
    const auto weight = std::ranges::find_if(axes, [](const FT_Var_Axis& axis) {
        const QLatin1StringView name(axis.name);
        return name.compare(u"Weight", Qt::CaseInsensitive) == 0 ||
               name.compare(u"wght", Qt::CaseInsensitive) == 0;
    });
    if (weight == axes.end())
        return 0;
    const FT_Fixed place = variations.namedstyle[instance].coords[weight - axes.begin()];
    return static_cast<quint32>(place >> 16);
}

constexpr double FixedOne = 65536;

QByteArray TagText(FT_ULong tag)
{
    QByteArray text;
    for (const int shift : {24, 16, 8, 0})
        text.append(static_cast<char>(tag >> shift & 0xFF));
    return text;
}

QString NumberText(double value)
{
    return QString::number(value, 'g', 10);
}

QString AxisList(const std::vector<FaceAxis>& axes)
{
    QStringList texts;
    for (const FaceAxis& axis : axes)
        texts.append(Engine::tr("%1 from %2 to %3")
                         .arg(Shown(QString::fromLatin1(axis.tag)), NumberText(axis.minimum),
                              NumberText(axis.maximum)));
    return texts.join(u", "_s);
}

std::vector<FaceAxis>::const_iterator FindAxis(const std::vector<FaceAxis>& axes,
                                               const AxisPosition& position)
{
    const auto axis = std::ranges::find(axes, position.tag, &FaceAxis::tag);
    if (axis == axes.end() || position.value < axis->minimum || position.value > axis->maximum)
        throw CriticalException(
            Engine::tr("Font creation failed!"),
            Engine::tr("The face has no position %1 on its axes, which are: %2.")
                .arg(Shown(TextOf({position})), AxisList(axes)));
    return axis;
}

} // namespace

std::vector<FaceAxis> AxesOf(FT_Face face)
{
    std::vector<FaceAxis> axes;
    const Variations variations = VariationsOf(face);
    if (!variations)
        return axes;
    std::vector<FT_Fixed> places(variations->num_axis);
    const bool hasPlaces =
        FT_Get_Var_Design_Coordinates(face, FT_UInt(places.size()), places.data()) == 0;
    const QHash<FT_UInt, QString> names = AllNames(face);
    for (FT_UInt index = 0; index < variations->num_axis; ++index) {
        const FT_Var_Axis& axis = variations->axis[index];
        axes.push_back({TagText(axis.tag), double(axis.minimum) / FixedOne,
                        double(axis.def) / FixedOne, double(axis.maximum) / FixedOne,
                        double(hasPlaces ? places[index] : axis.def) / FixedOne,
                        names.value(axis.strid)});
    }
    return axes;
}

bool HasVariations(FT_Face face)
{
    return VariationsOf(face) != nullptr;
}

int NamedInstanceCountOf(FT_Face face)
{
    const Variations variations = VariationsOf(face);
    return variations ? static_cast<int>(variations->num_namedstyles) : 0;
}

std::vector<NamedInstance> NamedInstancesOf(FT_Face face)
{
    const Variations variations = VariationsOf(face);
    if (!variations)
        return {};
    const QHash<FT_UInt, QString> names = AllNames(face);
    std::vector<NamedInstance> instances;
    for (FT_UInt index = 0; index < variations->num_namedstyles; ++index)
        instances.push_back({names.value(variations->namedstyle[index].strid),
                             {.weight = InstanceWeight(*variations, index)}});
    return instances;
}

quint32 InstanceWeightOf(FT_Face face, FT_Long instance)
{
    const Variations variations = VariationsOf(face);
    return variations && instance >= 0 && instance < FT_Long(variations->num_namedstyles)
               ? InstanceWeight(*variations, static_cast<FT_UInt>(instance))
               : 0;
}

void MoveAlongAxes(FT_Face face, const std::vector<AxisPosition>& positions)
{
    if (positions.empty() || face == nullptr)
        return;
    const std::vector<FaceAxis> axes = AxesOf(face);
    if (axes.empty())
        throw CriticalException(
            Engine::tr("Font creation failed!"),
            Engine::tr("The face has no axes: it is not variable, and -axes can't be used."));
    std::vector<FT_Fixed> places = PlacesOnAxes(face);
    for (const AxisPosition& position : positions) {
        const auto axis = FindAxis(axes, position);
        places[std::size_t(axis - axes.begin())] =
            static_cast<FT_Fixed>(std::lround(position.value * FixedOne));
    }
    SetPlacesOnAxes(face, places);
}

std::vector<FT_Fixed> PlacesOnAxes(FT_Face face)
{
    std::vector<FT_Fixed> places(AxesOf(face).size());
    if (!places.empty())
        FT_Get_Var_Design_Coordinates(face, FT_UInt(places.size()), places.data());
    return places;
}

void SetPlacesOnAxes(FT_Face face, const std::vector<FT_Fixed>& places)
{
    std::vector<FT_Fixed> copy = places;
    if (!copy.empty())
        FT_Set_Var_Design_Coordinates(face, FT_UInt(copy.size()), copy.data());
}

QString TextOf(const std::vector<AxisPosition>& positions)
{
    QStringList texts;
    for (const AxisPosition& position : positions)
        texts.append(u"%1=%2"_s.arg(QString::fromLatin1(position.tag), NumberText(position.value)));
    return texts.join(u", "_s);
}

std::vector<AxisPosition> ParseAxes(const QString& text)
{
    std::vector<AxisPosition> positions;
    for (const QString& part : text.split(u',')) {
        const QString axis = part.section(u'=', 0, 0).trimmed();
        const QString number = part.section(u'=', 1).trimmed();
        bool isNumber = false;
        const double value = number.toDouble(&isNumber);
        const QByteArray tag = axis.toLatin1();
        const bool isTag = tag.size() == 4 && std::ranges::all_of(tag, [](char character) {
                               return character >= ' ' && character <= '~';
                           });
        if (!isTag || !isNumber || !std::isfinite(value))
            throw CriticalException(
                Engine::tr("The axes %1 are not usable: -axes takes tags of four letters with "
                           "their values (e.g. wght=550,wdth=87).")
                    .arg(Shown(text)));
        if (std::ranges::find(positions, tag, &AxisPosition::tag) != positions.end())
            throw CriticalException(
                Engine::tr("The axes %1 name %2 twice.").arg(Shown(text), Shown(axis)));
        positions.push_back({tag, value});
    }
    return positions;
}

} // namespace Glyphor
