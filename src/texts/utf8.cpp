#include "texts/utf8.h"

#include "app/engine_texts.h"
#include "texts/text_collector.h"

#include <QtEndian>

#include <array>

namespace Glyphor {

namespace {

constexpr qsizetype UnitSize = 2;

// UTF-16 without its mark as text in the order of this machine.
QString UnitsOf(QByteArrayView bytes, bool isBigEndian)
{
    QString text(bytes.size() / UnitSize, Qt::Uninitialized);
    if (isBigEndian)
        qFromBigEndian<char16_t>(bytes.data(), text.size(), text.data());
    else
        qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
    return text;
}

void CheckUtf16(QStringView text, const TextCollector& collector)
{
    int line = 1;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair =
            text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (text[at].isSurrogate() && !isPair)
            collector.Fail(Engine::tr("It holds one half of a surrogate pair."), line);
        if (isPair)
            ++at;
        else if (text[at] == u'\n')
            ++line;
    }
}

QByteArray Utf8OfUtf16(QByteArrayView bytes, bool isBigEndian, const TextCollector& collector)
{
    const QString text = UnitsOf(bytes, isBigEndian);
    CheckUtf16(text, collector);
    QByteArray utf8 = text.toUtf8();
    if (bytes.size() % UnitSize != 0)
        collector.Fail(Engine::tr("It ends in the middle of a character."),
                       LineAt(utf8, utf8.size()));
    return utf8;
}

void CheckUtf8(QByteArrayView bytes, const TextCollector& collector)
{
    if (bytes.isValidUtf8())
        return;
    qsizetype at = 0;
    for (int size = 1; size != 0 && at < bytes.size(); at += size)
        size = FirstCharacter(bytes.sliced(at)).size;
    collector.Fail(Engine::tr("It is not valid UTF-8."), LineAt(bytes, at));
}

// Without a mark, UTF-16 may pass for UTF-8 with zero bytes, all of them in the same place of their
// pairs.
bool MayBeUtf16(QByteArrayView bytes)
{
    std::array<int, UnitSize> zeros{};
    for (qsizetype at = bytes.indexOf('\0'); at >= 0; at = bytes.indexOf('\0', at + 1))
        ++zeros[static_cast<std::size_t>(at % UnitSize)];
    return bytes.size() % UnitSize == 0 && (zeros[0] == 0) != (zeros[1] == 0) &&
           zeros[0] + zeros[1] > 1;
}

} // namespace

int LineAt(QByteArrayView text, qsizetype at)
{
    int line = 1;
    for (qsizetype before = 0; before < at; ++before) {
        if (EndsLine(text, before))
            ++line;
    }
    return line;
}

QByteArray TextInUtf8(const QByteArray& contents, const TextCollector& collector)
{
    constexpr QByteArrayView utf32Mark("\xFF\xFE\0\0", 4);
    const QByteArrayView bytes(contents);
    // The mark of UTF-32 begins like the one of UTF-16.
    if (bytes.startsWith(utf32Mark))
        collector.Fail(Engine::tr("It is in UTF-32; save it in UTF-8."), 1);
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return Utf8OfUtf16(bytes.sliced(UnitSize), bytes.front() == '\xFE', collector);
    CheckUtf8(bytes, collector);
    if (MayBeUtf16(bytes))
        collector.Fail(Engine::tr("It seems to be in UTF-16, but it has no byte order mark."), 1);
    constexpr QByteArrayView mark("\xEF\xBB\xBF");
    return bytes.startsWith(mark) ? contents.sliced(mark.size()) : contents;
}

} // namespace Glyphor
