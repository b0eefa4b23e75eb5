#pragma once

#include "render/render_options.h"

#include <QString>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <vector>

namespace Glyphor {

// One axis along which a variable face changes.
struct FaceAxis
{
    QByteArray tag; // four characters
    double minimum = 0;
    double standard = 0;
    double maximum = 0;
    double place = 0;  // where the face stands
    QString name = {}; // empty where it can't be read

    bool operator==(const FaceAxis&) const = default;
};

struct NamedInstance;

// Of a multi-master face; there are none of any other, nor without a face.
[[nodiscard]] std::vector<FaceAxis> AxesOf(FT_Face face);

// All of them, the first one with the index 1; nothing for faces that are not multi-master faces.
[[nodiscard]] std::vector<NamedInstance> NamedInstancesOf(FT_Face face);

[[nodiscard]] bool HasVariations(FT_Face face);
[[nodiscard]] int NamedInstanceCountOf(FT_Face face);

// The place on the weight axis of a named instance, counted from 0; 0 where there is none.
[[nodiscard]] quint32 InstanceWeightOf(FT_Face face, FT_Long instance);

// Moves the face along its axes. Throws a CriticalException for an axis that it does not have and
// for a value beyond its ends.
void MoveAlongAxes(FT_Face face, const std::vector<AxisPosition>& positions);

// Where the face stands on each of its axes; and the way back there for one with the same axes.
[[nodiscard]] std::vector<FT_Fixed> PlacesOnAxes(FT_Face face);
void SetPlacesOnAxes(FT_Face face, const std::vector<FT_Fixed>& places);

// "wght=550, wdth=87"
[[nodiscard]] QString TextOf(const std::vector<AxisPosition>& positions);

// "wght=550,wdth=87" as positions. Throws a CriticalException for anything else.
[[nodiscard]] std::vector<AxisPosition> ParseAxes(const QString& text);

} // namespace Glyphor
