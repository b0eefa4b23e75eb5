#include "app/file_name.h"

#include <QFile>
#include <QStringDecoder>
#include <QUrl>

#include <algorithm>

namespace Glyphor {

#ifdef Q_OS_UNIX

namespace {

constexpr char16_t RawByteBase = 0xDC00;

// The second half of a character beyond the first plane may have the same number.
bool IsRawByte(QStringView name, qsizetype at)
{
    const char16_t unit = name[at].unicode();
    return unit >= RawByteBase + 0x80 && unit <= RawByteBase + 0xFF &&
           (at == 0 || !name[at - 1].isHighSurrogate());
}

// The bytes of the character that comes first; 0 where there is none.
qsizetype CharacterLength(QByteArrayView bytes)
{
    constexpr qsizetype longest = 4;
    for (qsizetype length = 1; length <= std::min(longest, bytes.size()); ++length) {
        if (bytes.first(length).isValidUtf8())
            return length;
    }
    return 0;
}

} // namespace

QString FileNameOf(QByteArrayView bytes)
{
    // A byte order mark is part of the name.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    if (bytes.isValidUtf8())
        return decoder(bytes);
    QString name;
    while (!bytes.isEmpty()) {
        const qsizetype length = CharacterLength(bytes);
        if (length > 0)
            name += QString(decoder(bytes.first(length)));
        else
            name += QChar(char16_t(RawByteBase + uchar(bytes.front())));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return name;
}

QByteArray BytesOf(const QString& name)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype at = 0; at < name.size(); ++at) {
        if (!IsRawByte(name, at))
            continue;
        bytes += QFile::encodeName(name.sliced(start, at - start));
        bytes += char(name[at].unicode() - RawByteBase);
        start = at + 1;
    }
    return start == 0 ? QFile::encodeName(name) : bytes + QFile::encodeName(name.sliced(start));
}

bool HasRawBytes(QStringView name)
{
    for (qsizetype at = 0; at < name.size(); ++at) {
        if (IsRawByte(name, at))
            return true;
    }
    return false;
}

QString WithoutRawBytes(QString name, QChar substitute)
{
    for (qsizetype at = 0; at < name.size(); ++at) {
        if (IsRawByte(name, at))
            name[at] = substitute;
    }
    return name;
}

#else // where names are texts

QString FileNameOf(QByteArrayView bytes)
{
    return QString::fromLocal8Bit(bytes);
}

QByteArray BytesOf(const QString& name)
{
    return QFile::encodeName(name);
}

bool HasRawBytes(QStringView)
{
    return false;
}

QString WithoutRawBytes(QString name, QChar)
{
    return name;
}

#endif

// The toolkit's own conversion loses the bytes that are no characters.
QString FileNameOf(const QUrl& url)
{
    const QByteArray bytes =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    const bool isPlain = bytes.isValidUtf8() || !url.isLocalFile() || !url.host().isEmpty();
    return isPlain ? url.toLocalFile() : FileNameOf(bytes);
}

} // namespace Glyphor
