#include "ui/translated_names.h"

#include <QCoreApplication>
#include <QStringList>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// For the tool that collects the texts: where they are used they are not literals of the window.
[[maybe_unused]] constexpr const char* Texts[] = {
    QT_TRANSLATE_NOOP("Engine", "Legacy, 1bpp"),
    QT_TRANSLATE_NOOP("Engine", "Legacy, anti-aliased, 2bpp"),
    QT_TRANSLATE_NOOP("Engine", "Legacy, anti-aliased, 4bpp"),
    QT_TRANSLATE_NOOP("Engine", "Standard, 1bpp"),
    QT_TRANSLATE_NOOP("Engine", "Standard, framed"),
    QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 2bpp"),
    QT_TRANSLATE_NOOP("Engine", "Standard, anti-aliased, 4bpp"),
    QT_TRANSLATE_NOOP("Engine", "Extended, 1bpp"),
    QT_TRANSLATE_NOOP("Engine", "Extended, framed"),
    QT_TRANSLATE_NOOP("Engine", "Extended, anti-aliased, 2bpp"),
    QT_TRANSLATE_NOOP("Engine", "Extended, anti-aliased, 4bpp"),
    QT_TRANSLATE_NOOP("Engine", "TrueType font formats"),
    QT_TRANSLATE_NOOP("Engine", "Glyph Bitmap Distribution Format"),
    QT_TRANSLATE_NOOP("Engine", "C fonts"),
    QT_TRANSLATE_NOOP("Engine", "External Bitmap Fonts"),
    QT_TRANSLATE_NOOP("Engine", "System Independent Fonts"),
    QT_TRANSLATE_NOOP("Engine", "Kerning C files"),
    QT_TRANSLATE_NOOP("Engine", "All supported file types"),
};

} // namespace

QString Translated(const QString& text)
{
    return QCoreApplication::translate("Engine", text.toUtf8().constData());
}

QString TranslatedFilter(const QString& filter)
{
    QStringList entries = filter.split(u";;"_s);
    for (QString& entry : entries) {
        const qsizetype patterns = entry.indexOf(" ("_L1);
        entry = Translated(entry.left(patterns)) + entry.mid(patterns);
    }
    return entries.join(u";;"_s);
}

} // namespace Glyphor
