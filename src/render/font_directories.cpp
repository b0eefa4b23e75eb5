#include "render/font_directories.h"

#include "app/file_name.h"

#include <QStandardPaths>

#ifdef GLYPHOR_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace Glyphor {

namespace {

QStringList FontconfigDirectories()
{
    QStringList directories;
#ifdef GLYPHOR_FONTCONFIG
    FcConfig* const config = FcInitLoadConfigAndFonts();
    FcStrList* const list = config != nullptr ? FcConfigGetFontDirs(config) : nullptr;
    if (list != nullptr) {
        while (const FcChar8* const directory = FcStrListNext(list))
            directories.append(
                FileNameOf(QByteArrayView(reinterpret_cast<const char*>(directory))));
        FcStrListDone(list);
    }
    if (config != nullptr)
        FcConfigDestroy(config);
#endif
    return directories;
}

} // namespace

QStringList SystemFontDirectories()
{
    const QStringList directories = FontconfigDirectories();
    return directories.isEmpty() ? QStandardPaths::standardLocations(QStandardPaths::FontsLocation)
                                 : directories;
}

} // namespace Glyphor
