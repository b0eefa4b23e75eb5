#include "actions/pattern_file.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/user_interface.h"

#include <QtEndian>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 ByteOrderMark = 0xFEFF;

void AppendUnit(QByteArray& bytes, quint16 unit)
{
    bytes.append(static_cast<char>(unit & 0xFF));
    bytes.append(static_cast<char>(unit >> 8));
}

} // namespace

CodeSet PatternFile::Read()
{
    const bool isOpen = open(QIODevice::ReadOnly);
    const QByteArray bytes = isOpen ? readAll() : QByteArray();
    if (!isOpen || error() != QFileDevice::NoError)
        throw CriticalException(
            Engine::tr("Error opening file!"),
            Engine::tr("The pattern file %1 could not be read: %2").arg(fileName(), errorString()));
    close();
    const auto unit = [&bytes](qsizetype offset) {
        return qFromLittleEndian<quint16>(bytes.constData() + offset);
    };
    if (bytes.size() < 2 || unit(0) != ByteOrderMark)
        throw CriticalException(Engine::tr("Wrong encoding in pattern file!"),
                                Engine::tr("UTF-16 LE byte order mark was not found."));
    CodeSet codes;
    for (qsizetype offset = 2; offset + 2 <= bytes.size(); offset += 2)
        codes.Set(unit(offset), true);
    if (bytes.size() % 2 != 0)
        CurrentInterface().warning(
            Engine::tr("Pattern file"),
            Engine::tr("The pattern file %1 ends in the middle of a character, which was left out.")
                .arg(fileName()));
    return codes;
}

void PatternFile::Write(const CodeSet& codes)
{
    QByteArray bytes;
    AppendUnit(bytes, ByteOrderMark);
    for (int code = codes.Next(0); code < CodeSet::Count; code = codes.Next(code + 1))
        AppendUnit(bytes, static_cast<quint16>(code));
    Replace(bytes);
}

} // namespace Glyphor
