#include "actions/pattern_file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "app/user_interface.h"

#include <QDataStream>
#include <QtEndian>

namespace Glyphor {

namespace {

constexpr quint16 ByteOrderMark = 0xFEFF;

} // namespace

CodeSet PatternFile::Read()
{
    const auto fail = [this](const QString& reason) {
        throw CriticalException(
            Engine::tr("Error opening file!"),
            Engine::tr("The pattern file %1 could not be read: %2").arg(Shown(fileName()), reason));
    };
    if (KindOf(fileName()) == FileKind::Other)
        fail(Engine::tr("It is not an ordinary file."));
    if (!open(QIODevice::ReadOnly))
        fail(errorString());
    const auto unit = [](const QByteArray& bytes, qsizetype offset) {
        return qFromLittleEndian<quint16>(bytes.constData() + offset);
    };
    constexpr qint64 unitSize = 2;
    constexpr qint64 pieceSize = 0x10000;
    const QByteArray mark = read(unitSize);
    if (error() == QFileDevice::NoError &&
        (mark.size() < unitSize || unit(mark, 0) != ByteOrderMark))
        throw CriticalException(Engine::tr("Wrong encoding in pattern file!"),
                                Engine::tr("UTF-16 LE byte order mark was not found."));
    CodeSet codes;
    QByteArray piece;
    do {
        piece = read(pieceSize);
        for (qsizetype offset = 0; offset + unitSize <= piece.size(); offset += unitSize)
            codes.Set(unit(piece, offset), true);
    } while (piece.size() == pieceSize);
    if (error() != QFileDevice::NoError)
        fail(errorString());
    close();
    if (piece.size() % unitSize != 0)
        CurrentInterface().warning(
            Engine::tr("Pattern file"),
            Engine::tr("The pattern file %1 ends in the middle of a character, which was left out.")
                .arg(Shown(fileName())));
    return codes;
}

void PatternFile::Write(const CodeSet& codes)
{
    QByteArray bytes;
    QDataStream units(&bytes, QIODevice::WriteOnly);
    units.setByteOrder(QDataStream::LittleEndian);
    units << ByteOrderMark;
    for (const quint16 code : codes)
        units << code;
    Replace(bytes);
}

} // namespace Glyphor
