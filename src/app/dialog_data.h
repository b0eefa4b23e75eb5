#pragma once

#include "app/unknown_types.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QString>
#include <QStringList>

#include <tuple>

namespace Glyphor {

// What the dialogs remember: their geometry in the toolkit's own form, and their last entries.
// Every record is stored with the number of its layout; another layout, or a damaged one, gives the
// defaults. What has another layout stays in the store as it is until the dialog is used.

// The contents of a record whose layout is not known. They make no difference to the entries.
struct UnreadRecord
{
    QByteArray bytes;

    bool operator==(const UnreadRecord&) const { return true; }
};

// A height with its unit and what it is the height of.
struct SizeData
{
    qint32 value = 16;
    bool inPoints = false;
    qint32 unit = 0;
    qint32 sixtyFourths = 0;

    bool operator==(const SizeData&) const = default;
};

struct FontDialogData
{
    static constexpr quint32 Layout = 2;

    QByteArray geometry;
    QString family;
    QString style;
    SizeData size;
    QString script; // empty for all
    UnreadRecord unread = {};

    [[nodiscard]] auto Fields()
    {
        return std::tie(geometry, family, style, size.value, size.inPoints, size.unit,
                        size.sixtyFourths, script);
    }
    bool operator==(const FontDialogData&) const = default;
};

// Which characters are generated. The numbers are stored; several ones as bits above them.
enum class CharacterChoice : qint32 { All = 0, Blocks = 1, Pattern = 2, Text = 3 };

struct FontGenerationDialogData
{
    static constexpr quint32 Layout = 2;

    QByteArray geometry;
    SizeData size;
    qint32 format = 3; // standard, 1bpp
    qint32 encoding = 0;
    bool bold = false;
    bool italic = false;
    qint32 characters = qint32(CharacterChoice::All);
    QList<qint32> blocks = {0}; // the first codes of the chosen ones
    QString patternPath;
    QString text;
    QString sample;
    bool fitsInk = false;
    qint32 hinting = 0;
    double gamma = 1;

    // Of one face of one file, and for no other.
    QString path;
    qint32 face = 0;
    QString axes; // as on the command line, like the others
    QString features;
    qint32 charmap = -1;
    QString map;
    QStringList sources; // for each the path, the mapping, and a height or nothing

    UnreadRecord unread = {};

    [[nodiscard]] auto Fields()
    {
        return std::tie(geometry, size.value, size.inPoints, size.unit, size.sixtyFourths, format,
                        encoding, bold, italic, characters, blocks, patternPath, text, sample,
                        fitsInk, hinting, gamma, path, face, axes, features, charmap, map, sources);
    }
    bool operator==(const FontGenerationDialogData&) const = default;
};

struct EnableRangeDialogData
{
    static constexpr quint32 Layout = 1;

    QByteArray geometry;
    qint32 first = -1; // -1 where nothing was entered
    qint32 last = -1;
    UnreadRecord unread = {};

    [[nodiscard]] auto Fields() { return std::tie(geometry, first, last); }
    bool operator==(const EnableRangeDialogData&) const = default;
};

struct MergeModeDialogData
{
    static constexpr quint32 Layout = 1;

    QByteArray geometry;
    qint32 mode = -1; // -1 where none was chosen
    UnreadRecord unread = {};

    [[nodiscard]] auto Fields() { return std::tie(geometry, mode); }
    bool operator==(const MergeModeDialogData&) const = default;
};

struct PreferencesDialogData
{
    static constexpr quint32 Layout = 1;

    QByteArray geometry;
    qint32 page = 0;
    UnreadRecord unread = {};

    [[nodiscard]] auto Fields() { return std::tie(geometry, page); }
    bool operator==(const PreferencesDialogData&) const = default;
};

// The size of the dialog with the command-line options; -1 where nothing is remembered.
struct CommandDialogData
{
    qint32 width = -1;
    qint32 height = -1;

    bool operator==(const CommandDialogData&) const = default;
};

QDataStream& operator<<(QDataStream& out, const CommandDialogData& data);
QDataStream& operator>>(QDataStream& in, CommandDialogData& data);

template <typename Record>
concept NumberedRecord = requires(Record record)
{
    Record::Layout;
    record.Fields();
};

template <NumberedRecord Record>
QDataStream& operator<<(QDataStream& out, Record record)
{
    const QByteArray& unread = record.unread.bytes;
    if (!unread.isEmpty()) {
        out.writeRawData(unread.constData(), static_cast<int>(unread.size()));
        return out;
    }
    out << Record::Layout;
    std::apply([&out](const auto&... field) { (out << ... << field); }, record.Fields());
    return out;
}

template <NumberedRecord Record>
QDataStream& operator>>(QDataStream& in, Record& record)
{
    quint32 layout = 0;
    in >> layout;
    record = {};
    if (in.status() == QDataStream::Ok && layout != Record::Layout) {
        QDataStream(&record.unread.bytes, QIODevice::WriteOnly) << layout;
        record.unread.bytes += RestOfValue(in);
        return in;
    }
    std::apply([&in](auto&... field) { (in >> ... >> field); }, record.Fields());
    if (in.status() != QDataStream::Ok)
        record = {};
    return in;
}

} // namespace Glyphor
