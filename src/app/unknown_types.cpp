#include "app/unknown_types.h"

#include <QDataStream>
#include <QFile>
#include <QIODevice>
#include <QMetaType>
#include <QtEndian>

#include <cctype>
#include <deque>
#include <optional>

namespace Glyphor {

namespace {

struct UnknownValue
{
    QByteArray bytes;

    bool operator==(const UnknownValue&) const = default;
};

QDataStream& operator<<(QDataStream& out, const UnknownValue& value)
{
    out.writeRawData(value.bytes.constData(), static_cast<int>(value.bytes.size()));
    return out;
}

QDataStream& operator>>(QDataStream& in, UnknownValue& value)
{
    value.bytes = RestOfValue(in);
    return in;
}

// The type of an UnknownValue under another name, which it is stored with again.
struct NamedType
{
    explicit NamedType(const QByteArray& typeName)
        : name(typeName), type{own.revision,
                               own.alignment,
                               own.size,
                               own.flags,
                               {0},
                               own.metaObjectFn,
                               name.constData(),
                               own.defaultCtr,
                               own.copyCtr,
                               own.moveCtr,
                               own.dtor,
                               own.equals,
                               own.lessThan,
                               own.debugStream,
                               own.dataStreamOut,
                               own.dataStreamIn,
                               own.legacyRegisterOp}
    {}

    static inline const QtPrivate::QMetaTypeInterface& own =
        *QMetaType::fromType<UnknownValue>().iface();
    QByteArray name;
    QtPrivate::QMetaTypeInterface type;
};

void RegisterAs(const QByteArray& name)
{
    static std::deque<NamedType> types; // the toolkit refers to them to the end
    types.emplace_back(name);
    (void)QMetaType(&types.back().type).id(); // which registers it
}

// The character that an escape of the settings file stands for; moves behind it.
char Unescaped(QByteArrayView text, qsizetype& at)
{
    constexpr QByteArrayView letters = "abfnrtv0";
    constexpr QByteArrayView meanings("\a\b\f\n\r\t\v\0", 8);
    const char letter = text[at++];
    if (letter != 'x') {
        const qsizetype index = letters.indexOf(letter);
        return index >= 0 ? meanings[index] : letter;
    }
    const qsizetype start = at;
    while (at < text.size() && std::isxdigit(static_cast<uchar>(text[at])) != 0)
        ++at;
    return static_cast<char>(text.sliced(start, at - start).toUInt(nullptr, 16));
}

// The name of the type of a stored value, of which the text begins behind "@Variant("; nothing for
// the toolkit's own types. A value is the number of its type, and for others than the toolkit's the
// length of the name with the zero that ends it, the name, and the contents.
std::optional<QByteArray> TypeName(QByteArrayView text)
{
    constexpr quint32 foreignType = 0x7F;
    constexpr qsizetype nameStart = 8;
    constexpr quint32 longest = 200;
    QByteArray bytes;
    qsizetype needed = nameStart;
    for (qsizetype at = 0; at < text.size() && bytes.size() < needed;) {
        const char character = text[at++];
        bytes += character == '\\' && at < text.size() ? Unescaped(text, at) : character;
        if (bytes.size() == nameStart) {
            const auto length = qFromBigEndian<quint32>(bytes.constData() + 4);
            if (qFromBigEndian<quint32>(bytes.constData()) != foreignType || length < 2 ||
                length > longest)
                return std::nullopt;
            needed += length;
        }
    }
    if (bytes.size() < needed || needed == nameStart)
        return std::nullopt;
    return bytes.sliced(nameStart).chopped(1);
}

} // namespace

// The stream ends with the value, but the toolkit leaves the parenthesis in it that closes a value
// in the file.
QByteArray RestOfValue(QDataStream& in)
{
    QByteArray bytes = in.device()->readAll();
    if (bytes.endsWith(')'))
        bytes.chop(1);
    return bytes;
}

void KeepUnknownTypes(const QString& settingsFile)
{
    QFile file(settingsFile);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray text = file.readAll();
    constexpr QByteArrayView mark = "@Variant(";
    for (qsizetype at = text.indexOf(mark); at >= 0; at = text.indexOf(mark, at + 1)) {
        const auto name = TypeName(QByteArrayView(text).sliced(at + mark.size()));
        if (name && !QMetaType::fromName(*name).isValid())
            RegisterAs(*name);
    }
}

} // namespace Glyphor
