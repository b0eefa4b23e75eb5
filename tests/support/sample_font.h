#pragma once

#include "app/critical_exception.h"
#include "model/font.h"

#include <QByteArray>

#include <memory>

namespace Glyphor::Test {

// Characters in two runs and three areas, an empty one among them, no two alike, and one that is
// disabled.
inline std::unique_ptr<Font> MakeSampleFont(FontFormat format,
                                            EncodingType encoding = EncodingType::Unicode)
{
    auto font = std::make_unique<Font>(format, encoding);
    font->SetName(QStringLiteral("8 Tests/Plain 1.5"));
    font->SetHeight(3);
    font->SetBaseline(2);
    font->SetReferenceHeights(1, 2);
    int width = 1;
    for (const quint16 code : std::initializer_list<quint16>{0x41, 0x42, 0x7F, 0x80, 0x81}) {
        Character& character = font->AddChar(code);
        character.info.height = IsLegacyFormat(format) ? 3 : 2;
        character.info.SetWidth(quint8(width));
        if (!IsLegacyFormat(format)) {
            character.info.xPos = qint8(-width);
            character.info.yPos = qint8(width - 2);
        }
        character.info.cursorDistance = quint8(width + 1);
        QByteArray data(character.info.bytesPerLine * character.info.Rows(), '\0');
        character.bitmap->AssignData(data);
        for (int x = 0; x < width; ++x)
            character.bitmap->SetPixelIndex(x, x % 2, width + x);
        width += 4;
    }
    if (!IsLegacyFormat(format)) {
        Character& empty = font->AddChar(0x43);
        empty.info.SetWidth(0);
        empty.info.height = 0;
        empty.bitmap->AdjustData();
    }
    font->AddChar(0x7E);
    font->SetEnabled(0x7E, 0x7E, false);
    return font;
}

// Width, height, both offsets and the cursor distance.
inline QList<int> Numbers(const CharInfo& info)
{
    return {info.width, info.height, info.xPos, info.yPos, info.cursorDistance};
}

// The font's metrics and those and the pixels of its characters: all of them, or the enabled ones,
// which are what a file keeps.
inline QByteArray Snapshot(const Font& font, bool onlyEnabled = false)
{
    const FontMetrics& metrics = font.Metrics();
    QByteArray text;
    for (const int value : {int(metrics.format), int(metrics.encoding), int(metrics.height),
                            int(metrics.verticalSpace), int(metrics.baseline),
                            int(metrics.lowercaseHeight), int(metrics.capitalHeight)})
        text += QByteArray::number(value) + ' ';
    const CodeSet& codes = font.ExistingCodes();
    for (const quint16 code : codes) {
        if (onlyEnabled && !font.IsEnabled(code))
            continue;
        const Character& character = *font.FindChar(code);
        text += '\n' + QByteArray::number(code);
        for (const int value : Numbers(character.info))
            text += ' ' + QByteArray::number(value);
        text += QByteArray(font.IsEnabled(code) ? " 1 " : " 0 ");
        text += character.bitmap->DataAsList().toHex();
    }
    return text;
}

// "title: text" of the failure of a call; empty where it does not fail.
template <typename Call>
QString FailureOf(Call call)
{
    try {
        call();
    } catch (const CriticalException& error) {
        return error.Title() + QStringLiteral(": ") + error.Text();
    }
    return {};
}

} // namespace Glyphor::Test
