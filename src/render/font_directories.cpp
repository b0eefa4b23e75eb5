#include "render/font_directories.h"

#include <QFile>
#include <QStandardPaths>

#ifdef GLYPHOR_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace Glyphor {

namespace {

#ifdef GLYPHOR_FONTCONFIG

QStringList FontconfigDirectories()
{
    QStringList directories;
    FcConfig* const config = FcInitLoadConfigAndFonts();
    FcStrList* const list = config != nullptr ? FcConfigGetFontDirs(config) : nullptr;
    if (list != nullptr) {
        while (const FcChar8* const directory = FcStrListNext(list))
            directories.append(QFile::decodeName(reinterpret_cast<const char*>(directory)));
        FcStrListDone(list);
    }
    if (config != nullptr)
        FcConfigDestroy(config);
    return directories;
}

#else

QStringList FontconfigDirectories()
{
    return {};
}

#endif

} // namespace

QStringList SystemFontDirectories()
{
    const QStringList directories = FontconfigDirectories();
    return directories.isEmpty() ? QStandardPaths::standardLocations(QStandardPaths::FontsLocation)
                                 : directories;
}

} // namespace Glyphor
